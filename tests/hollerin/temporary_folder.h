#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

/// A folder that lives as long as the object.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "hollerin-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
  }
  ~TemporaryFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }

  std::filesystem::path operator/(const char* name) const { return path_ / name; }
  const std::filesystem::path& Path() const { return path_; }

  /// The names of everything in the folder.
  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }

 private:
  std::filesystem::path path_;
};

inline std::string Contents(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void Put(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

/// Gives up the superuser's rights for as long as it lives, so that permissions count.
class OrdinaryUser {
 public:
  OrdinaryUser() : own_(geteuid()) {
    if (own_ == 0 && seteuid(kNobody) != 0) throw std::runtime_error("rights were not given up");
  }
  ~OrdinaryUser() {
    if (own_ == 0 && seteuid(own_) != 0) std::abort();
  }
  static constexpr uid_t kNobody = 65534;

 private:
  uid_t own_;
};
