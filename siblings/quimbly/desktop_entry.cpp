#include "quimbly/desktop_entry.h"

#include <algorithm>
#include <sstream>

#include "platform/text.h"

namespace {

constexpr std::string_view kGroup = "Desktop Entry";
constexpr std::string_view kCategory = "TextEditor";
constexpr std::string_view kBlanks = " \t\n\r";

/// The text that a value stands for; an escape that is not known stands for itself.
std::string Unescape(std::string_view value) {
  constexpr std::string_view kLetters = "sntr\\";
  constexpr std::string_view kCharacters = " \n\t\r\\";
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i) {
    const std::size_t known =
        value[i] == '\\' && i + 1 < value.size() ? kLetters.find(value[i + 1]) : kLetters.npos;
    text += known != kLetters.npos ? kCharacters[known] : value[i];
    if (known != kLetters.npos) ++i;
  }
  return text;
}

std::string TextOf(const KeyFile& file, std::string_view key) {
  const std::string* value = file.Find(kGroup, key);
  return value != nullptr ? Unescape(*value) : std::string();
}

bool IsSet(const KeyFile& file, std::string_view key) { return TextOf(file, key) == "true"; }

bool IsTextEditor(const KeyFile& file) {
  std::istringstream categories(TextOf(file, "Categories"));
  for (std::string category; std::getline(categories, category, ';');) {
    if (category == kCategory) return true;
  }
  return false;
}

std::string NameOf(const KeyFile& file, const std::vector<std::string>& locales) {
  for (const std::string& locale : locales) {
    std::string name = TextOf(file, "Name[" + locale + ']');
    if (!name.empty()) return name;
  }
  return TextOf(file, "Name");
}

/// The text of a word in double quotes, which begins behind its opening quote; empty when the quote
/// is never closed.
std::string QuotedWord(std::string_view rest) {
  std::string word;
  for (std::size_t i = 0; i < rest.size(); ++i) {
    if (rest[i] == '"') return word;
    if (rest[i] == '\\' && i + 1 < rest.size()) ++i;
    word += rest[i];
  }
  return {};
}

/// The first word of a command line.
std::string FirstWord(std::string_view command) {
  command.remove_prefix(std::min(command.find_first_not_of(kBlanks), command.size()));
  if (command.starts_with('"')) return QuotedWord(command.substr(1));
  return std::string(command.substr(0, command.find_first_of(kBlanks)));
}

}  // namespace

std::vector<std::string> LocaleForms(std::string_view locale) {
  const std::size_t at = std::min(locale.find('@'), locale.size());
  const std::string modifier(locale.substr(at));
  const std::string place(locale.substr(0, std::min(locale.find('.'), at)));
  const std::string language = place.substr(0, place.find('_'));
  std::vector<std::string> forms;
  for (const std::string& form : {place + modifier, place, language + modifier, language}) {
    const bool known = std::find(forms.begin(), forms.end(), form) != forms.end();
    if (!language.empty() && !known) forms.push_back(form);
  }
  return forms;
}

std::optional<EditorEntry> ReadEditorEntry(const KeyFile& file,
                                           const std::vector<std::string>& locales) {
  if (TextOf(file, "Type") != "Application" || IsSet(file, "NoDisplay") || IsSet(file, "Hidden") ||
      !IsTextEditor(file)) {
    return std::nullopt;
  }
  EditorEntry entry = {FromUtf8(NameOf(file, locales)), FirstWord(TextOf(file, "Exec")),
                       TextOf(file, "TryExec")};
  if (entry.name.empty() || entry.program.empty()) return std::nullopt;
  return entry;
}
