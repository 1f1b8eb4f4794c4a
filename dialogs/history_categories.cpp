#include "dialogs/history_categories.h"

#include "foundation/language.h"
#include "resources/text_ids.h"

namespace {

/// Where a name comes from: a text, which may belong to a dialog, and a second one in brackets.
struct Name {
  constexpr Name(unsigned first) : text(first) {}
  constexpr Name(unsigned first, unsigned inBrackets) : text(first), second(inBrackets) {}
  constexpr Name(DialogText first)
      : dialog(first.dialog), text(static_cast<unsigned>(first.number)) {}

  unsigned dialog = 0;
  unsigned text;
  unsigned second = 0;
};

struct Category {
  int number;
  const wchar_t* section;
  Name name;
};

constexpr Category kCategories[] = {
    {kRecentFolders, L"RecentFolders", {TextId::kHistoryLookIn}},
    {kRecentFileName, L"RecentFileName", {TextId::kColumnFileName}},
    {kRecentContains, L"RecentContains", {TextId::kHistoryContaining}},
    {3, L"ScriptEngine", {TextId::kHistoryScriptEngine}},
    {4, L"RecentTransform", {TextId::kHistoryTransform}},
    {5, L"RecentSaveResults", {TextId::kHistorySaveResults}},
    {6, L"RecentBulkCopy", {TextId::kHistoryCopy, TextId::kHistoryCopyTarget}},
    {7, L"RecentBulkZip", {TextId::kHistoryZip}},
    {8, L"RecentSearchSession", {TextId::kHistorySessions}},
    {9, L"RecentWorkspace", {TextId::kHistoryWorkspaces}},
    {10, L"RecentIndex", {TextId::kHistoryIndex}},
    {11, L"RecentFileNameLists", {TextId::kHistoryList, TextId::kColumnFileName}},
    {12, L"RecentContainingTextLists", {TextId::kHistoryList, TextId::kHistoryContaining}},
    {13, L"RecentIndexGroups", {TextId::kHistoryIndexGroups}},
};

const Category* Find(int number) {
  for (const Category& category : kCategories) {
    if (category.number == number) return &category;
  }
  return nullptr;
}

CString Unknown(int number) {
  CString text;
  text.Format(L"unknown-%d", number);
  return text;
}

}  // namespace

CString HistorySection(int number) {
  const Category* category = Find(number);
  return category != nullptr ? CString(category->section) : Unknown(number);
}

CString HistoryName(int number) {
  const Category* category = Find(number);
  if (category == nullptr) return Unknown(number);
  const Name& name = category->name;
  if (name.dialog != 0) return LanguagePlaceholder(name.dialog, static_cast<int>(name.text));
  if (name.second == 0) return LanguageString(name.text);
  CString text;
  text.Format(L"%s (%s)", LanguageString(name.text), LanguageString(name.second));
  return text;
}
