#include "hollerin/application.h"

#include "hollerin/application_state.h"
#include "hollerin/default_configuration.h"
#include "hollerin/export.h"
#include "hollerin/hollerin.h"
#include "hollerin/store.h"
#include "platform/machine.h"

namespace HOLLERIN {
namespace {

constexpr const wchar_t* kDefaultLanguageFile = L"lang-en.xml";

class CGlobalMgr : public INTERNAL_IFC::IGlobalMgr {
 public:
  std::shared_ptr<INTERNAL_IFC::ILogMgr> GetLogMgr() override {
    return GetApplicationState().application.log;
  }
};

std::optional<StoreHandle> NewStore(Values values) {
  return std::make_shared<ConfigStore>(std::move(values));
}

/// A folder of the application; nothing before the set-up.
std::optional<std::wstring> Folder(std::wstring Application::*folder) {
  const ApplicationState& state = GetApplicationState();
  if (!state.isSetUp) return std::nullopt;
  return state.application.*folder;
}

}  // namespace

ApplicationState& GetApplicationState() {
  static ApplicationState state;
  return state;
}

std::wstring SetUpApplication(Application application) {
  ApplicationState& state = GetApplicationState();
  state.application = std::move(application);
  state.isSetUp = true;
  state.language.reset();

  std::wstring file = state.application.langFile;
  if (const auto dictated = GetMachine().LanguageFile()) {
    if (!*dictated) return {};
    file = **dictated;
  }
  std::wstring reason;
  const std::wstring& folder = state.application.langFolder;
  state.language = LoadLanguage(folder, file, reason);
  if (state.language != nullptr || file == kDefaultLanguageFile) return reason;
  std::wstring defaultReason;
  state.language = LoadLanguage(folder, kDefaultLanguageFile, defaultReason);
  return state.language != nullptr ? reason : reason + L"; " + defaultReason;
}

std::shared_ptr<INTERNAL_IFC::IGlobalMgr> GetGlobalMgr(
    std::shared_ptr<RES::ILanguageMgr>* language) {
  static const auto manager = std::make_shared<CGlobalMgr>();
  if (language != nullptr) *language = GetApplicationState().language;
  return manager;
}

HRESULT CreateBlankConfigDataMgr(StoreHandle* store) {
  return Export(L"CreateBlankConfigDataMgr", store, [] { return NewStore({}); });
}

HRESULT LoadMainDefaultConfiguration(StoreHandle* store) {
  return Export(L"LoadMainDefaultConfiguration", store, [] {
    const std::optional<Values>& own = GetApplicationState().application.defaultConfig;
    return NewStore(own ? *own : ShippedConfiguration());
  });
}

HRESULT CreateDefaultMasterConfiguration(StoreHandle* store, bool portable) {
  return Export(L"CreateDefaultMasterConfiguration", store, [portable] {
    const Application& application = GetApplicationState().application;
    return NewStore(application.defaultMaster
                        ? *application.defaultMaster
                        : ShippedMasterConfiguration(portable, application.appFolder));
  });
}

HRESULT GetGlobalMasterConfiguration(StoreHandle* store) {
  return Export(L"GetGlobalMasterConfiguration", store, []() -> std::optional<StoreHandle> {
    const StoreHandle& master = GetApplicationState().application.master;
    if (master == nullptr) return std::nullopt;
    return master;
  });
}

int IsPortableInstall() { return GetMachine().Portable() ? 1 : 0; }

HRESULT GetAppPath(std::wstring* folder) {
  return Export(L"GetAppPath", folder, [] { return Folder(&Application::appFolder); });
}

HRESULT GetLangFileLocation(std::wstring* folder) {
  return Export(L"GetLangFileLocation", folder, [] { return Folder(&Application::langFolder); });
}

}  // namespace HOLLERIN
