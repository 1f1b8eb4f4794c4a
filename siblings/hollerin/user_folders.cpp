#include "hollerin/user_folders.h"

#include <algorithm>
#include <optional>
#include <sstream>

#include "hollerin/system_file.h"
#include "platform/text.h"
#include "platform/user_folder.h"

namespace HOLLERIN {
namespace {

/// The text of a shell word in double quotes, which begins behind its opening quote; nothing when
/// the quote is never closed.
std::optional<std::string> Unquote(std::string_view word) {
  std::string text;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (word[i] == '"') return text;
    if (word[i] == '\\' && i + 1 < word.size()) ++i;
    text += word[i];
  }
  return std::nullopt;
}

/// The value of one line KEY="..." of the user's list of folders.
std::optional<std::string> ListedFolder(std::string_view line, std::string_view key,
                                        const std::string& home) {
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  if (!line.starts_with(key) || !line.substr(key.size()).starts_with("=\"")) return std::nullopt;
  line.remove_prefix(key.size() + 2);
  constexpr std::string_view kHome = "$HOME";
  const bool inHome = line.starts_with(kHome);
  if (inHome) line.remove_prefix(kHome.size());
  const auto text = Unquote(line);
  return text ? AbsoluteFolder(inHome ? home + *text : *text) : std::nullopt;
}

/// The last line counts, as it does for the shell.
std::optional<std::string> Documents(const std::optional<std::string>& home,
                                     const std::optional<std::string>& configuration) {
  if (!home) return std::nullopt;
  std::string bytes;
  std::optional<std::string> documents = AbsoluteFolder(*home + "/Documents");
  if (!configuration || ReadFile(*configuration + "/user-dirs.dirs", bytes) != 0) return documents;
  std::istringstream lines(bytes);
  for (std::string line; std::getline(lines, line);) {
    if (auto folder = ListedFolder(line, "XDG_DOCUMENTS_DIR", *home)) documents = folder;
  }
  return documents;
}

}  // namespace

std::map<std::wstring, std::wstring> UserFolders() {
  const auto home = HomeFolder();
  const auto configuration = UserFolder("XDG_CONFIG_HOME", "/.config");
  const struct {
    const wchar_t* placeholder;
    std::optional<std::string> folder;
  } rows[] = {
      {L"%CONFIG%", configuration},
      {L"%DATA%", UserDataFolder()},
      {L"%CACHE%", UserFolder("XDG_CACHE_HOME", "/.cache")},
      {L"%TEMP%", FolderFromEnvironment("TMPDIR").value_or("/tmp")},
      {L"%DOCUMENTS%", Documents(home, configuration)},
  };
  std::map<std::wstring, std::wstring> folders;
  for (const auto& row : rows) {
    if (row.folder) folders[row.placeholder] = FromUtf8(*row.folder);
  }
  return folders;
}

}  // namespace HOLLERIN
