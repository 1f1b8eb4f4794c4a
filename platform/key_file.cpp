#include "platform/key_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>

#include "platform/text.h"

namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

/// Without O_NONBLOCK opening a pipe would wait for somebody to write into it.
File Open(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return nullptr;
  File file(fdopen(descriptor, "rb"));
  if (file == nullptr) close(descriptor);
  return file;
}

std::optional<std::string> ReadBytes(const std::string& path, std::size_t most) {
  const File file = Open(path);
  struct stat status {};
  if (file == nullptr || fstat(fileno(file.get()), &status) != 0 || !S_ISREG(status.st_mode))
    return std::nullopt;
  // One more, so that a file that is too long, or grows, is seen.
  const auto size = static_cast<std::size_t>(status.st_size);
  std::string bytes(std::min(size, most) + 1, '\0');
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
  if (std::ferror(file.get()) != 0 || bytes.size() > std::min(size, most)) return std::nullopt;
  return bytes;
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

/// Takes the next line off the front of the text.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return Trimmed(line);
}

}  // namespace

std::optional<KeyFile> KeyFile::Parse(std::string_view bytes) {
  if (bytes.find('\0') != bytes.npos || !FromUtf8Strict(bytes)) return std::nullopt;
  KeyFile file;
  Group* group = nullptr;
  while (!bytes.empty()) {
    const std::string_view line = TakeLine(bytes);
    if (line.empty() || line.front() == '#') continue;
    if (line.front() == '[') {
      if (line.size() < 3 || line.back() != ']') return std::nullopt;
      group = &file.groups_[std::string(line.substr(1, line.size() - 2))];
      continue;
    }
    const std::size_t equals = line.find('=');
    if (group == nullptr || equals == line.npos || equals == 0) return std::nullopt;
    (*group)[std::string(Trimmed(line.substr(0, equals)))] = Trimmed(line.substr(equals + 1));
  }
  return file;
}

std::optional<KeyFile> KeyFile::Load(const std::string& path, std::size_t most) {
  const auto bytes = ReadBytes(path, most);
  return bytes ? Parse(*bytes) : std::nullopt;
}

const std::string* KeyFile::Find(std::string_view group, std::string_view key) const {
  const auto found = groups_.find(group);
  if (found == groups_.end()) return nullptr;
  const auto value = found->second.find(key);
  return value != found->second.end() ? &value->second : nullptr;
}
