#pragma once

// The file that is written beside the one it will replace. Its writer holds a lock on it for as
// long as it lives, so that one without a lock was left behind by a process that died.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace HOLLERIN {

/// Owns an open file; closing keeps the thread's error number.
class Descriptor {
 public:
  explicit Descriptor(int descriptor = -1) : descriptor_(descriptor) {}
  ~Descriptor() { Reset(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  explicit operator bool() const { return descriptor_ >= 0; }
  int Get() const { return descriptor_; }
  void Reset(int descriptor = -1);

 private:
  int descriptor_;
};

/// Removed when destroyed, unless it was moved to its place. Functions return error numbers.
class TemporaryFile {
 public:
  TemporaryFile() = default;
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// Makes the file beside `target`, locked, readable by its user alone.
  int Create(const std::string& target);
  /// Writes and flushes the bytes, and takes over owner and permissions of `like`, if given.
  int Fill(std::string_view bytes, const struct stat* like);
  int MoveTo(const std::string& target);

  /// Whether `entry` is the name of a temporary file for the file called `name`.
  static bool IsNameFor(std::string_view name, std::string_view entry);
  static void RemoveAbandoned(const std::string& path);

 private:
  std::string path_;
  Descriptor descriptor_;
};

}  // namespace HOLLERIN
