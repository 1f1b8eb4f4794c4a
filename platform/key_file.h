#pragma once

// Key files: groups of lines "key=value", as desktop entries and the registrations of components
// have them.

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

/// The values of a key file. A line is blank, a comment ("#"), the heading of a group ("[Group]")
/// or a pair below a heading; blanks around keys and values do not count. Of a key that a group has
/// twice the later line counts.
class KeyFile {
 public:
  /// Nothing when the bytes are no UTF-8, hold a zero, or have a line of another kind.
  static std::optional<KeyFile> Parse(std::string_view bytes);

  /// As Parse, for the regular file at `path`; nothing also when it cannot be read or has more than
  /// `most` bytes.
  static std::optional<KeyFile> Load(const std::string& path, std::size_t most);

  /// The value as it stands in the file; null when the group or the key is missing.
  const std::string* Find(std::string_view group, std::string_view key) const;

 private:
  using Group = std::map<std::string, std::string, std::less<>>;
  std::map<std::string, Group, std::less<>> groups_;
};
