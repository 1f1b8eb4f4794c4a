#include "platform/qt/folder_names.h"

#include <algorithm>
#include <tuple>

#include "platform/qt/peer.h"

namespace {

/// A line break or the like, which no field of one line can hold.
bool HasControl(const QString& name) {
  return std::any_of(name.begin(), name.end(),
                     [](QChar character) { return character < QLatin1Char(' '); });
}

bool HasAnyOf(const QString& name, const QString& characters) {
  return std::any_of(characters.begin(), characters.end(),
                     [&name](QChar character) { return name.contains(character); });
}

}  // namespace

FolderNames::FolderNames(const std::vector<std::wstring>& names) {
  names_.reserve(names.size());
  for (const std::wstring& name : names) {
    QString text = ToQt(name);
    if (text.isEmpty() || HasControl(text)) continue;
    QString folded = text.toCaseFolded();
    names_.push_back({std::move(folded), std::move(text)});
  }
  std::sort(names_.begin(), names_.end(), [](const Name& a, const Name& b) {
    return std::tie(a.folded, a.text) < std::tie(b.folded, b.text);
  });
}

QStringList FolderNames::BeginningWith(const QString& start, const QString& excluded,
                                       int most) const {
  const QString folded = start.toCaseFolded();
  const bool hidden = start.startsWith(QLatin1Char('.'));
  auto name = std::lower_bound(
      names_.begin(), names_.end(), folded,
      [](const Name& candidate, const QString& sought) { return candidate.folded < sought; });
  QStringList found;
  for (; name != names_.end() && name->folded.startsWith(folded) && found.size() < most; ++name) {
    if (!hidden && name->text.startsWith(QLatin1Char('.'))) continue;
    if (!HasAnyOf(name->text, excluded)) found << name->text;
  }
  return found;
}
