#include "platform/component_registry.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <functional>
#include <vector>

#include "platform/machine.h"
#include "platform/text.h"

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestProgId = 128;
constexpr std::size_t kLongestFileName = 255;
constexpr std::size_t kMostBytes = 4096;          ///< Of a registration.
constexpr std::size_t kMostRegistrations = 1000;  ///< Of one folder.
constexpr std::string_view kGroup = "Component";
constexpr const char* kExtension = ".component";

bool IsLetterOrDigit(wchar_t character) {
  return (character >= L'0' && character <= L'9') || (character >= L'A' && character <= L'Z') ||
         (character >= L'a' && character <= L'z');
}

/// A number of exactly that many hexadecimal digits.
template <class Number>
bool ParseHex(std::string_view digits, Number& number) {
  if (digits.size() != 2 * sizeof number) return false;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number, 16);
  return error == std::errc() && stop == end;
}

/// "{12345678-1234-1234-1234-123456789abc}".
std::optional<CLSID> ParseClassId(std::string_view text) {
  if (text.size() != 38 || text[0] != '{' || text[9] != '-' || text[14] != '-' || text[19] != '-' ||
      text[24] != '-' || text[37] != '}') {
    return std::nullopt;
  }
  CLSID id;
  bool valid = ParseHex(text.substr(1, 8), id.Data1) && ParseHex(text.substr(10, 4), id.Data2) &&
               ParseHex(text.substr(15, 4), id.Data3);
  for (std::size_t i = 0; i < 8; ++i) {
    valid = valid && ParseHex(text.substr(i < 2 ? 20 + 2 * i : 21 + 2 * i, 2), id.Data4[i]);
  }
  return valid ? std::optional(id) : std::nullopt;
}

bool IsBareName(std::string_view name) {
  return !name.empty() && name.size() <= kLongestFileName && name.front() != '.' &&
         name.find('/') == name.npos && name.find('\0') == name.npos;
}

/// The registrations in a folder, in the order of their names.
std::vector<fs::path> RegistrationsIn(const std::string& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator() && files.size() < kMostRegistrations;
       entry.increment(error)) {
    if (entry->path().extension() == kExtension) files.push_back(entry->path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

using Wanted = std::function<bool(const fs::path& file, const ComponentRegistration&)>;

struct Found {
  fs::path folder;
  ComponentRegistration registration;
};

/// The first registration that is wanted, in the best folder that has one; damaged files do not
/// count.
std::optional<Found> FindFirst(const Wanted& wanted) {
  for (const std::string& folder : GetMachine().ComponentFolders()) {
    for (const fs::path& path : RegistrationsIn(folder)) {
      const auto file = KeyFile::Load(path, kMostBytes);
      const auto registration = file ? ParseRegistration(*file) : std::nullopt;
      if (registration && wanted(path, *registration)) return Found{folder, *registration};
    }
  }
  return std::nullopt;
}

}  // namespace

bool IsProgId(std::wstring_view text) {
  return !text.empty() && text.size() <= kLongestProgId && text.front() != L'.' &&
         std::all_of(text.begin(), text.end(), [](wchar_t character) {
           return IsLetterOrDigit(character) || character == L'.' || character == L'-' ||
                  character == L'_';
         });
}

std::optional<ComponentRegistration> ParseRegistration(const KeyFile& file) {
  const std::string* classText = file.Find(kGroup, "Class");
  const std::string* library = file.Find(kGroup, "Library");
  if (classText == nullptr || library == nullptr || !IsBareName(*library)) return std::nullopt;
  const auto classId = ParseClassId(*classText);
  if (!classId) return std::nullopt;
  return ComponentRegistration{*classId, *library};
}

std::optional<CLSID> FindComponent(std::wstring_view progId) {
  const CString name = std::wstring(progId);
  const auto found = FindFirst([&name](const fs::path& file, const ComponentRegistration&) {
    return name.CompareNoCase(FromUtf8(file.stem().string()).c_str()) == 0;
  });
  return found ? std::optional(found->registration.classId) : std::nullopt;
}

std::optional<std::string> FindComponentLibrary(const CLSID& classId) {
  const auto found =
      FindFirst([&classId](const fs::path&, const ComponentRegistration& registration) {
        return registration.classId == classId;
      });
  if (!found) return std::nullopt;
  std::error_code error;
  const fs::path folder = fs::canonical(found->folder, error);
  const fs::path library =
      error ? fs::path() : fs::canonical(folder / found->registration.library, error);
  const bool inside = !error && library.parent_path() == folder;
  return inside && fs::is_regular_file(library, error) ? library.string() : std::string();
}
