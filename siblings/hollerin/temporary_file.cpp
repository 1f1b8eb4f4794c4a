#include "hollerin/temporary_file.h"

#include <sys/file.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <random>

namespace HOLLERIN {
namespace {

constexpr std::string_view kMark = ".saving-";
constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::size_t kRandomDigits = 16;
constexpr int kMaxAttempts = 100;

std::string RandomDigits() {
  std::random_device device;
  std::string digits;
  while (digits.size() < kRandomDigits) digits += kHexDigits[device() % kHexDigits.size()];
  return digits;
}

/// Waits for the lock. A file system without locks counts as locked; nobody removes files there.
int Lock(int descriptor) {
  while (flock(descriptor, LOCK_EX) != 0) {
    if (errno == ENOTSUP || errno == ENOLCK || errno == ENOSYS) return 0;
    if (errno != EINTR) return errno;
  }
  return 0;
}

int WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(descriptor, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    if (count == 0) return EIO;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return 0;
}

int TakeOver(int descriptor, const struct stat& like) {
  mode_t mode = like.st_mode & 07777;
  struct stat own {};
  if (fstat(descriptor, &own) != 0) return errno;
  const bool sameOwner = own.st_uid == like.st_uid && own.st_gid == like.st_gid;
  // What was meant for another group must not open the file to the user's own.
  if (!sameOwner && fchown(descriptor, like.st_uid, like.st_gid) != 0) {
    mode &= ~static_cast<mode_t>(S_IRWXG | S_ISUID | S_ISGID);
  }
  return fchmod(descriptor, mode) == 0 ? 0 : errno;
}

}  // namespace

void Descriptor::Reset(int descriptor) {
  const int error = errno;
  if (descriptor_ >= 0) close(descriptor_);
  descriptor_ = descriptor;
  errno = error;
}

TemporaryFile::~TemporaryFile() {
  if (!path_.empty()) unlink(path_.c_str());
}

int TemporaryFile::Create(const std::string& target) {
  for (int attempt = 0; attempt < kMaxAttempts; ++attempt) {
    const std::string path = target + std::string(kMark) + RandomDigits();
    descriptor_.Reset(
        open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!descriptor_ && errno == EEXIST) continue;
    if (!descriptor_) return errno;
    path_ = path;
    if (const int error = Lock(descriptor_.Get())) return error;
    // Before the lock was ours a clean-up may have taken the file for an abandoned one.
    struct stat status {};
    if (fstat(descriptor_.Get(), &status) != 0) return errno;
    if (status.st_nlink > 0) return 0;
    path_.clear();
  }
  return EEXIST;
}

int TemporaryFile::Fill(std::string_view bytes, const struct stat* like) {
  if (const int error = WriteAll(descriptor_.Get(), bytes)) return error;
  if (like != nullptr) {
    if (const int error = TakeOver(descriptor_.Get(), *like)) return error;
  }
  return fsync(descriptor_.Get()) == 0 ? 0 : errno;
}

int TemporaryFile::MoveTo(const std::string& target) {
  if (rename(path_.c_str(), target.c_str()) != 0) return errno;
  path_.clear();
  return 0;
}

bool TemporaryFile::IsNameFor(std::string_view name, std::string_view entry) {
  if (!entry.starts_with(name)) return false;
  entry.remove_prefix(name.size());
  if (!entry.starts_with(kMark)) return false;
  entry.remove_prefix(kMark.size());
  return entry.size() == kRandomDigits && entry.find_first_not_of(kHexDigits) == entry.npos;
}

void TemporaryFile::RemoveAbandoned(const std::string& path) {
  const Descriptor descriptor(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!descriptor || fstat(descriptor.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return;
  if (flock(descriptor.Get(), LOCK_EX | LOCK_NB) == 0) unlink(path.c_str());
}

}  // namespace HOLLERIN
