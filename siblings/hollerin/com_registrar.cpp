#include "hollerin/com_registrar.h"

#include "hollerin/application_state.h"
#include "hollerin/hollerin.h"
#include "platform/machine.h"

namespace HOLLERIN {
namespace {

constexpr const wchar_t* kFile = L"shell.xml";

/// The section of the flags, in the configuration and in the record.
constexpr const wchar_t* kShell = L"Shell";

struct FlagRow {
  const wchar_t* key;
  bool ShellRegistration::*flag;
};
constexpr FlagRow kFlags[] = {{L"AssociateSRF", &ShellRegistration::resultFiles},
                              {L"AddToDirCM", &ShellRegistration::folderMenu},
                              {L"AddToFileCM", &ShellRegistration::fileMenu},
                              {L"ReplaceF3", &ShellRegistration::searchKey},
                              {L"EnableHotKey", &ShellRegistration::hotKey}};

ShellRegistration ReadFlags(INTERNAL_IFC::IConfigDataMgr& store,
                            const ShellRegistration& defaults) {
  ShellRegistration flags;
  for (const FlagRow& row : kFlags) {
    flags.*row.flag = store.ReadBool(kShell, row.key, defaults.*row.flag);
  }
  return flags;
}

/// Null when the record can be neither read nor put aside.
std::shared_ptr<Store> OpenRecord() {
  const Application& application = GetApplicationState().application;
  if (application.dataFolder.empty()) return CreateStore();
  OpenReport report;
  const std::wstring path = application.dataFolder + kFile;
  std::shared_ptr<Store> record = OpenStore(path, report);
  if (!report.reason.empty() && application.log != nullptr) {
    application.log->LogLine(path + L" is not used: " + report.reason);
  }
  return record;
}

HRESULT Answer(const wchar_t* operation, VARIANT_BOOL* out, bool flag) {
  if (out == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(operation)) return E_FAIL;
  *out = flag ? VARIANT_TRUE : VARIANT_FALSE;
  return S_OK;
}

class CCOMRegistrar : public ICOMRegistrar {
 public:
  explicit CCOMRegistrar(const ShellRegistration& state) : state_(state) {}

  HRESULT GetShellIntegration(VARIANT_BOOL* resultFiles, VARIANT_BOOL* folderMenu,
                              VARIANT_BOOL* reserved, VARIANT_BOOL* searchKey) override {
    const struct {
      VARIANT_BOOL* out;
      bool flag;
    } answers[] = {{resultFiles, state_.resultFiles},
                   {folderMenu, state_.folderMenu},
                   {reserved, false},
                   {searchKey, state_.searchKey}};
    for (const auto& answer : answers) {
      if (answer.out == nullptr) return E_INVALIDARG;
    }
    for (const auto& answer : answers) {
      const HRESULT status = Answer(L"GetShellIntegration", answer.out, answer.flag);
      if (FAILED(status)) return status;
    }
    return S_OK;
  }
  HRESULT GetHotKeyEnabled(VARIANT_BOOL* enabled) override {
    return Answer(L"GetHotKeyEnabled", enabled, state_.hotKey);
  }
  HRESULT GetFileContextMenu(VARIANT_BOOL* enabled) override {
    return Answer(L"GetFileContextMenu", enabled, state_.fileMenu);
  }

 private:
  ShellRegistration state_;
};

}  // namespace

HRESULT CreateCOMRegistrar(std::shared_ptr<ICOMRegistrar>* registrar) {
  if (registrar == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(L"CreateCOMRegistrar")) return E_FAIL;
  std::optional<ShellRegistration> state = GetMachine().Registration();
  if (!state) {
    const std::shared_ptr<Store> record = OpenRecord();
    if (record == nullptr) return E_FAIL;
    state = ReadFlags(*record, {});
  }
  *registrar = std::make_shared<CCOMRegistrar>(*state);
  return S_OK;
}

HRESULT ApplyShellSettings(INTERNAL_IFC::IConfigDataMgr& configuration) {
  if (IsPortableInstall() != 0 || GetMachine().Registration()) return S_FALSE;
  const std::shared_ptr<Store> record = OpenRecord();
  if (record == nullptr) return E_FAIL;
  const ShellRegistration present = ReadFlags(*record, {});
  const ShellRegistration wanted = ReadFlags(configuration, present);
  if (wanted == present) return S_FALSE;
  for (const FlagRow& row : kFlags) record->WriteBool(kShell, row.key, wanted.*row.flag);
  return record->Save();
}

}  // namespace HOLLERIN
