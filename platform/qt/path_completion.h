#pragma once

// Completes the path that a user types into an edit part. Private to the platform layer.

#include <QLineEdit>
#include <QPointer>
#include <optional>

#include "platform/qt/completion_list.h"
#include "platform/qt/folder_reader.h"
#include "platform/qt/peer.h"
#include "platform/qt/typed_path.h"

class PathCompletion : public QObject {
 public:
  /// `edit` is the window of the field; it asks that for the part of the text to complete.
  PathCompletion(HWND edit, QLineEdit& line);
  ~PathCompletion() override;

  /// ACO_ options; none at first.
  void SetOptions(DWORD options) { options_ = options; }
  bool IsShown() const { return list_ != nullptr && list_->isVisible(); }
  void Close();

  /// A key-down of the edit; true when it was for the list.
  bool OnKey(UINT key);
  /// A character is about to change the text: whether one is typed or one is removed.
  void OnCharacter(bool typed) { typing_ = typed; }

  /// Whether the answer for any edit is on its way.
  static bool IsAnyBusy();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  /// The entry of the text that is being completed; places count the characters of the field.
  struct Part {
    int start = 0;
    int end = 0;
    int caret = 0;
    QString excluded;
    bool operator==(const Part&) const = default;
  };

  Part AskPart() const;
  bool OpensWith(UINT key) const;
  void OnEdited();
  void OnCaretMoved(int to);
  void OnRowClicked(int row);

  /// Completes what stands in the edit now; false when that is no path.
  bool Begin(bool append);
  void Read();
  void Offer();
  QStringList Suggestions() const;
  void AppendTail(const QStringList& rows);
  void Move(int rows);
  void ShowRow(int row);
  void Accept();
  void Restore();
  void Replace(const QString& text, int from, int to);
  CompletionList& List();

  HWND edit_;
  QPointer<QLineEdit> line_;
  QPointer<QWidget> field_;  ///< What has the focus and is seen: the field or the combo around it.
  QPointer<CompletionList> list_;
  DWORD options_ = 0;

  FolderReader reader_;
  FolderReader::Names names_;  ///< Those of namesFolder_; kept while names of it are typed.
  std::wstring namesFolder_;   ///< Being read, or read.

  // What was typed when the completion began.
  Part part_;
  TypedPath path_;
  QString typed_;     ///< Up to the caret.
  QString original_;  ///< The whole entry.
  bool append_ = false;

  QString shownText_;    ///< The whole text as the list was opened for it or last changed it.
  bool typing_ = false;  ///< The change under way types a character.
  bool own_ = false;     ///< The change under way is the completion's own.
};
