#include "host/drive/entry_runner.h"

#include <exception>

#include "host/environment.h"
#include "host/settings_library.h"
#include "ifc/clear_history_settings.h"
#include "quimbly/quimbly.h"

namespace {

constexpr int kUsualHistoryLength = 25;

/// The history of folders; none when it cannot be made.
BRISQUEL::HistoryHandle LookInHistory(const Stores& stores) {
  BRISQUEL::HistoryHandle history;
  TOLLIVER::CreateLoadComboReg(stores.Handle(kHistory), &history);
  const int length =
      stores.Get(kConfig).ReadInt(L"Options", L"MaxDropDownHistory", kUsualHistoryLength);
  if (history != nullptr) {
    history->SelectList(L"RecentFolders", length >= 0 ? length : kUsualHistoryLength);
  }
  return history;
}

struct Entry {
  const char* name;
  BRISQUEL::Status (*call)(const BRISQUEL::EntryPoints&, const Stores&, const EntryArguments&);
};

/// The entry points that take the configuration alone.
template <auto kFunction>
BRISQUEL::Status CallWithConfig(const BRISQUEL::EntryPoints& library, const Stores& stores,
                                const EntryArguments&) {
  return (library.*kFunction)(stores.Handle(kConfig));
}

constexpr Entry kEntries[] = {
    {"OpenConfigDialog",
     [](const BRISQUEL::EntryPoints& library, const Stores& stores,
        const EntryArguments& arguments) {
       return library.OpenConfigDialog(nullptr, stores.Handle(kConfig), stores.Handle(kMaster),
                                       stores.Handle(kHistory), stores.Handle(kFourth),
                                       arguments.page);
     }},
    {"ShowMessage", [](const BRISQUEL::EntryPoints& library, const Stores&,
                       const EntryArguments&) { return library.ShowMessage(nullptr); }},
    {"OpenClearHistoryDialog",
     [](const BRISQUEL::EntryPoints& library, const Stores& stores, const EntryArguments&) {
       CClearHistorySettings settings(stores.Handle(kConfig));
       return library.OpenClearHistoryDialog(nullptr, &settings, stores.Handle(kHistory));
     }},
    {"OpenEditHistoryDialog",
     [](const BRISQUEL::EntryPoints& library, const Stores& stores, const EntryArguments&) {
       return library.OpenEditHistoryDialog(nullptr, stores.Handle(kHistory),
                                            stores.Handle(kConfig));
     }},
    {"OpenLanguageDialog", &CallWithConfig<&BRISQUEL::EntryPoints::OpenLanguageDialog>},
    {"OpenDocumentSettings", &CallWithConfig<&BRISQUEL::EntryPoints::OpenDocumentSettings>},
    {"OpenArchiveSettings", &CallWithConfig<&BRISQUEL::EntryPoints::OpenArchiveSettings>},
    {"OpenOCRSettings", &CallWithConfig<&BRISQUEL::EntryPoints::OpenOCRSettings>},
    {"OpenCacheSettings", &CallWithConfig<&BRISQUEL::EntryPoints::OpenCacheSettings>},
    {"OpenSearchFilterList",
     [](const BRISQUEL::EntryPoints& library, const Stores& stores,
        const EntryArguments& arguments) {
       return library.OpenSearchFilterList(stores.Handle(kConfig), LookInHistory(stores), nullptr,
                                           arguments.active);
     }},
};

}  // namespace

QStringList EntryRunner::Names() {
  QStringList names;
  for (const Entry& entry : kEntries) names << QLatin1String(entry.name);
  return names;
}

bool EntryRunner::Load(QString& error) {
  library_ = LoadSettingsLibrary(error);
  return library_ != nullptr;
}

BRISQUEL::Status EntryRunner::Call(const QString& entry, const EntryArguments& arguments) {
  for (const Entry& known : kEntries) {
    if (entry == QLatin1String(known.name)) {
      return known.call(*library_, environment_.GetStores(), arguments);
    }
  }
  return E_INVALIDARG;
}

EntryResult EntryRunner::Run(const QString& entry, const EntryArguments& arguments) {
  EntryResult result{entry, E_FAIL, {}};
  environment_.GetStores().ArmThrowRule();
  running_ = true;
  try {
    result.status = Call(entry, arguments);
  } catch (const std::exception& raised) {
    result.error = QString::fromUtf8(raised.what());
  } catch (...) {
    result.error = QStringLiteral("an unknown exception");
  }
  running_ = false;
  if (result.error.isEmpty()) {
    environment_.ReportSaved(environment_.GetStores().SaveAfter(result.status));
    if (result.status == 0) environment_.ApplyShellSettings();
  } else {
    environment_.Report(QStringLiteral("%1 raised: %2").arg(entry, result.error));
  }
  return result;
}
