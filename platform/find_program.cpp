#include "platform/find_program.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

bool IsProgram(const std::string& path) {
  struct stat facts = {};
  return stat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode) &&
         access(path.c_str(), X_OK) == 0;
}

std::optional<std::string> FindProgram(std::string_view name) {
  const char* const variable = std::getenv("PATH");
  if (variable == nullptr || name.empty() || name.find('/') != name.npos) return std::nullopt;
  for (std::string_view folders = variable; !folders.empty();) {
    const std::size_t length = std::min(folders.find(':'), folders.size());
    std::string path(folders.substr(0, length));
    folders.remove_prefix(std::min(length + 1, folders.size()));
    if (!path.starts_with('/')) continue;
    if (!path.ends_with('/')) path += '/';
    path += name;
    if (IsProgram(path)) return path;
  }
  return std::nullopt;
}
