#include "hollerin/system_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "hollerin/temporary_file.h"
#include "platform/text.h"

namespace HOLLERIN {
namespace {

namespace fs = std::filesystem;

constexpr int kMaxLinks = 40;
constexpr int kMaxAsideNames = 10000;

/// Follows symbolic links at the end of the path, also to a target that does not exist.
int ResolveLinks(std::string path, std::string& target) {
  for (int links = 0; links <= kMaxLinks; ++links) {
    std::error_code error;
    const fs::path link = fs::read_symlink(path, error);
    if (error) {  // No link; whatever else is wrong with the path shows when it is used.
      target = path;
      return 0;
    }
    path = (fs::path(path).parent_path() / link).string();
  }
  return ELOOP;
}

std::string FolderOf(const std::string& path) {
  const std::string folder = fs::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

/// Makes a renaming in the folder last.
int SyncFolder(const std::string& folder) {
  const Descriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // A folder that may be changed but not read cannot be flushed; nor can those of some systems.
  if (!descriptor) return errno == EACCES ? 0 : errno;
  if (fsync(descriptor.Get()) == 0 || errno == EINVAL || errno == EROFS) return 0;
  return errno;
}

int ReadAll(int descriptor, std::size_t expected, std::string& bytes) {
  std::size_t length = 0;
  bytes.resize(expected + 1);  // One more, so that the end is seen without growing.
  while (true) {
    const ssize_t count = read(descriptor, bytes.data() + length, bytes.size() - length);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
    if (length > kMaxFileSize) return EFBIG;
    if (length == bytes.size()) bytes.resize(2 * length);
  }
  bytes.resize(length);
  return 0;
}

}  // namespace

bool ToSystemPath(const std::wstring& path, std::string& systemPath) {
  if (path.empty() || path.find(L'\0') != path.npos) return false;
  systemPath = ToUtf8(path);
  return true;
}

std::wstring SystemText(int error) { return FromUtf8(std::strerror(error)); }

int ReadFile(const std::string& path, std::string& bytes) {
  // Without O_NONBLOCK opening a pipe would wait for somebody to write into it.
  const Descriptor descriptor(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!descriptor || fstat(descriptor.Get(), &status) != 0) return errno;
  if (!S_ISREG(status.st_mode)) return EINVAL;
  if (static_cast<std::size_t>(status.st_size) > kMaxFileSize) return EFBIG;
  return ReadAll(descriptor.Get(), static_cast<std::size_t>(status.st_size), bytes);
}

int ReplaceFile(const std::string& path, std::string_view bytes) {
  if (bytes.size() > kMaxFileSize) return EFBIG;
  std::string target;
  if (const int error = ResolveLinks(path, target)) return error;
  struct stat old {};
  const bool exists = stat(target.c_str(), &old) == 0;
  if (!exists && errno != ENOENT) return errno;
  if (exists && !S_ISREG(old.st_mode)) return EINVAL;
  // Renaming would get past the protection of the file itself.
  if (exists && faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return errno;

  TemporaryFile temporary;
  if (const int error = temporary.Create(target)) return error;
  if (const int error = temporary.Fill(bytes, exists ? &old : nullptr)) return error;
  if (const int error = temporary.MoveTo(target)) return error;
  return SyncFolder(FolderOf(target));
}

int PutAside(const std::string& path, std::string& newPath) {
  std::string target;
  if (const int error = ResolveLinks(path, target)) return error;
  for (int n = 1; n <= kMaxAsideNames; ++n) {
    newPath = target + ".damaged-" + std::to_string(n);
    // An empty file of our own takes the name first, so that the renaming replaces nothing else.
    const Descriptor place(open(newPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!place && errno == EEXIST) continue;
    if (!place) return errno;
    if (rename(target.c_str(), newPath.c_str()) == 0) return SyncFolder(FolderOf(target));
    const int error = errno;
    unlink(newPath.c_str());
    return error;
  }
  return EEXIST;
}

void RemoveLeftovers(const std::string& path) {
  std::string target;
  if (ResolveLinks(path, target) != 0) return;
  const std::string name = fs::path(target).filename().string();
  std::error_code error;
  fs::directory_iterator entry(FolderOf(target), error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (TemporaryFile::IsNameFor(name, entry->path().filename().string())) {
      TemporaryFile::RemoveAbandoned(entry->path().string());
    }
  }
}

}  // namespace HOLLERIN
