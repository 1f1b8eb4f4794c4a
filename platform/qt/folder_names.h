#pragma once

// The names of the folders in one folder, ready to be looked up by their beginnings. Private to the
// platform layer.

#include <QString>
#include <QStringList>
#include <string>
#include <vector>

class FolderNames {
 public:
  explicit FolderNames(const std::vector<std::wstring>& names);

  /// The first `most` names, in order, that begin with `start` without regard to case. Names that
  /// begin with a dot only when `start` does. None that holds a character of `excluded`.
  QStringList BeginningWith(const QString& start, const QString& excluded, int most) const;

 private:
  struct Name {
    QString folded;
    QString text;
  };
  std::vector<Name> names_;  ///< In the order of the folded texts.
};
