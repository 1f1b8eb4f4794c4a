#include "hollerin/user_folders.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <sstream>
#include <vector>

#include "hollerin/system_file.h"
#include "platform/text.h"

namespace HOLLERIN {
namespace {

constexpr std::size_t kAccountBytes = 1 << 14;

/// Absolute, and without separators at its end; nothing for any other text.
std::optional<std::string> Folder(std::string path) {
  if (!path.starts_with('/')) return std::nullopt;
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

/// What is not an absolute path does not count, as if it were not set.
std::optional<std::string> FromEnvironment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? Folder(value) : std::nullopt;
}

std::optional<std::string> Home() {
  if (auto home = FromEnvironment("HOME")) return home;
  std::vector<char> buffer(kAccountBytes);
  passwd account = {};
  passwd* found = nullptr;
  if (getpwuid_r(getuid(), &account, buffer.data(), buffer.size(), &found) != 0 ||
      found == nullptr || found->pw_dir == nullptr) {
    return std::nullopt;
  }
  return Folder(found->pw_dir);
}

/// A folder of the user: named by the environment, or at its usual place.
std::optional<std::string> BaseFolder(const char* variable, const std::optional<std::string>& home,
                                      const char* usual) {
  if (auto folder = FromEnvironment(variable)) return folder;
  return home ? Folder(*home + usual) : std::nullopt;
}

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
  return text ? Folder(inHome ? home + *text : *text) : std::nullopt;
}

/// The last line counts, as it does for the shell.
std::optional<std::string> Documents(const std::optional<std::string>& home,
                                     const std::optional<std::string>& configuration) {
  if (!home) return std::nullopt;
  std::string bytes;
  std::optional<std::string> documents = Folder(*home + "/Documents");
  if (!configuration || ReadFile(*configuration + "/user-dirs.dirs", bytes) != 0) return documents;
  std::istringstream lines(bytes);
  for (std::string line; std::getline(lines, line);) {
    if (auto folder = ListedFolder(line, "XDG_DOCUMENTS_DIR", *home)) documents = folder;
  }
  return documents;
}

}  // namespace

std::map<std::wstring, std::wstring> UserFolders() {
  const auto home = Home();
  const auto configuration = BaseFolder("XDG_CONFIG_HOME", home, "/.config");
  const struct {
    const wchar_t* placeholder;
    std::optional<std::string> folder;
  } rows[] = {
      {L"%CONFIG%", configuration},
      {L"%DATA%", BaseFolder("XDG_DATA_HOME", home, "/.local/share")},
      {L"%CACHE%", BaseFolder("XDG_CACHE_HOME", home, "/.cache")},
      {L"%TEMP%", FromEnvironment("TMPDIR").value_or("/tmp")},
      {L"%DOCUMENTS%", Documents(home, configuration)},
  };
  std::map<std::wstring, std::wstring> folders;
  for (const auto& row : rows) {
    if (row.folder) folders[row.placeholder] = FromUtf8(*row.folder);
  }
  return folders;
}

}  // namespace HOLLERIN
