#include "platform/machine.h"

#include <QThread>
#include <algorithm>
#include <filesystem>

#include "platform/text.h"
#include "platform/user_folder.h"

namespace {

/// The folder of the running program; empty when the system does not tell.
std::filesystem::path ProgramFolder() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

std::shared_ptr<const Machine>& Current() {
  static std::shared_ptr<const Machine> machine = std::make_shared<Machine>();
  return machine;
}

}  // namespace

Machine::~Machine() = default;

bool Machine::Portable() const {
  const std::filesystem::path folder = ProgramFolder();
  std::error_code error;
  return !folder.empty() && std::filesystem::exists(folder / kPortableMark, error);
}

int Machine::Processors() const { return std::max(1, QThread::idealThreadCount()); }

std::optional<ShellRegistration> Machine::Registration() const { return std::nullopt; }

std::optional<RegistryKey> Machine::FindRegistryKey(std::wstring_view) const {
  return std::nullopt;
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

std::optional<std::vector<EditorFact>> Machine::Editors() const { return std::nullopt; }

std::optional<std::vector<std::wstring>> Machine::Components() const { return std::nullopt; }

std::vector<std::string> Machine::ComponentFolders() const {
  std::vector<std::string> folders;
  if (const auto program = ProgramFolder(); !program.empty())
    folders.push_back(program / "components");
  if (const auto data = UserDataFolder()) folders.push_back(*data + "/quarrow/components");
  return folders;
}
std::optional<std::vector<DocumentFilter>> Machine::DocumentFilters() const { return std::nullopt; }

std::optional<std::vector<OcrLanguage>> Machine::OcrLanguages() const { return std::nullopt; }

std::optional<CacheContents> Machine::Cache() const { return std::nullopt; }

bool Machine::Opens(std::wstring_view) const { return false; }

std::optional<bool> Machine::PlaysSound(std::wstring_view) const { return std::nullopt; }

bool Machine::UsesToolkitPickers() const { return false; }

const Machine& GetMachine() { return *Current(); }

std::shared_ptr<const Machine> ShareMachine() { return Current(); }

void SetMachine(std::shared_ptr<const Machine> machine) {
  Current() = machine != nullptr ? std::move(machine) : std::make_shared<Machine>();
}
