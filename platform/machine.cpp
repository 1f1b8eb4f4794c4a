#include "platform/machine.h"

#include <filesystem>

#include "platform/text.h"

namespace {

std::shared_ptr<const Machine>& Current() {
  static std::shared_ptr<const Machine> machine = std::make_shared<Machine>();
  return machine;
}

}  // namespace

Machine::~Machine() = default;

bool Machine::Portable() const {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return false;
  return std::filesystem::exists(program.parent_path() / kPortableMark, error);
}

std::optional<std::optional<std::wstring>> Machine::LanguageFile() const { return std::nullopt; }

bool Machine::Fails(std::wstring_view) const { return false; }

std::map<wchar_t, std::wstring> Machine::Drives() const { return {}; }

std::vector<std::wstring> Machine::FolderNames(const std::wstring& nativeFolder,
                                               const std::atomic<bool>& cancelled) const {
  std::vector<std::wstring> names;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(ToUtf8(nativeFolder), error), end;
       !error && entry != end && !cancelled && names.size() < kMostFolderNames;
       entry.increment(error)) {
    std::error_code unknown;
    if (!entry->is_directory(unknown)) continue;
    // A name that is no text could be typed by nobody.
    if (auto name = FromUtf8Strict(entry->path().filename().native())) {
      names.push_back(std::move(*name));
    }
  }
  return names;
}

std::optional<std::map<std::wstring, std::wstring>> Machine::Folders() const {
  return std::nullopt;
}

bool Machine::Opens(std::wstring_view) const { return false; }

std::optional<bool> Machine::PlaysSound(std::wstring_view) const { return std::nullopt; }

bool Machine::UsesToolkitPickers() const { return false; }

const Machine& GetMachine() { return *Current(); }

std::shared_ptr<const Machine> ShareMachine() { return Current(); }

void SetMachine(std::shared_ptr<const Machine> machine) {
  Current() = machine != nullptr ? std::move(machine) : std::make_shared<Machine>();
}
