#include "platform/user_folder.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <sstream>

namespace {

constexpr std::size_t kAccountBytes = 1 << 14;
constexpr const char* kSystemData = "/usr/local/share:/usr/share";

}  // namespace

std::optional<std::string> AbsoluteFolder(std::string path) {
  if (!path.starts_with('/')) return std::nullopt;
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

std::optional<std::string> FolderFromEnvironment(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr ? AbsoluteFolder(value) : std::nullopt;
}

std::optional<std::string> HomeFolder() {
  if (auto home = FolderFromEnvironment("HOME")) return home;
  std::vector<char> buffer(kAccountBytes);
  passwd account = {};
  passwd* found = nullptr;
  if (getpwuid_r(getuid(), &account, buffer.data(), buffer.size(), &found) != 0 ||
      found == nullptr || found->pw_dir == nullptr) {
    return std::nullopt;
  }
  return AbsoluteFolder(found->pw_dir);
}

std::optional<std::string> UserFolder(const char* variable, const char* usual) {
  if (auto folder = FolderFromEnvironment(variable)) return folder;
  const auto home = HomeFolder();
  return home ? AbsoluteFolder(*home + usual) : std::nullopt;
}

std::optional<std::string> UserDataFolder() { return UserFolder("XDG_DATA_HOME", "/.local/share"); }

std::vector<std::string> DataFolders() {
  std::vector<std::string> folders;
  if (auto user = UserDataFolder()) folders.push_back(std::move(*user));
  const char* system = std::getenv("XDG_DATA_DIRS");
  std::istringstream names(system != nullptr && *system != '\0' ? system : kSystemData);
  for (std::string name; std::getline(names, name, ':');) {
    if (auto folder = AbsoluteFolder(name)) folders.push_back(std::move(*folder));
  }
  return folders;
}
