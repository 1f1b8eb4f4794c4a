#include "platform/machine.h"

#include <filesystem>

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

std::optional<std::map<std::wstring, std::wstring>> Machine::Folders() const {
  return std::nullopt;
}

std::optional<CacheContents> Machine::Cache() const { return std::nullopt; }

bool Machine::Opens(std::wstring_view) const { return false; }

std::optional<bool> Machine::PlaysSound(std::wstring_view) const { return std::nullopt; }

bool Machine::UsesToolkitPickers() const { return false; }

const Machine& GetMachine() { return *Current(); }

void SetMachine(std::shared_ptr<const Machine> machine) {
  Current() = machine != nullptr ? std::move(machine) : std::make_shared<Machine>();
}
