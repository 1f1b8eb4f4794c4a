#include "host/drive/entry_runner.h"

#include <exception>

#include "host/environment.h"
#include "host/settings_library.h"
#include "ifc/clear_history_settings.h"

namespace {

struct Entry {
  const char* name;
  BRISQUEL::Status (*call)(const BRISQUEL::EntryPoints&, const Stores&, int page);
};

/// The entry points that take the configuration alone.
template <auto kFunction>
BRISQUEL::Status CallWithConfig(const BRISQUEL::EntryPoints& library, const Stores& stores, int) {
  return (library.*kFunction)(stores.Handle(kConfig));
}

constexpr Entry kEntries[] = {
    {"OpenConfigDialog",
     [](const BRISQUEL::EntryPoints& library, const Stores& stores, int page) {
       return library.OpenConfigDialog(nullptr, stores.Handle(kConfig), stores.Handle(kMaster),
                                       stores.Handle(kHistory), stores.Handle(kFourth), page);
     }},
    {"ShowMessage", [](const BRISQUEL::EntryPoints& library, const Stores&,
                       int) { return library.ShowMessage(nullptr); }},
    {"OpenClearHistoryDialog",
     [](const BRISQUEL::EntryPoints& library, const Stores& stores, int) {
       CClearHistorySettings settings(stores.Handle(kConfig));
       return library.OpenClearHistoryDialog(nullptr, &settings, stores.Handle(kHistory));
     }},
    {"OpenEditHistoryDialog",
     [](const BRISQUEL::EntryPoints& library, const Stores& stores, int) {
       return library.OpenEditHistoryDialog(nullptr, stores.Handle(kHistory),
                                            stores.Handle(kConfig));
     }},
    {"OpenLanguageDialog", &CallWithConfig<&BRISQUEL::EntryPoints::OpenLanguageDialog>},
    {"OpenDocumentSettings", &CallWithConfig<&BRISQUEL::EntryPoints::OpenDocumentSettings>},
    {"OpenArchiveSettings", &CallWithConfig<&BRISQUEL::EntryPoints::OpenArchiveSettings>},
    {"OpenOCRSettings", &CallWithConfig<&BRISQUEL::EntryPoints::OpenOCRSettings>},
    {"OpenCacheSettings", &CallWithConfig<&BRISQUEL::EntryPoints::OpenCacheSettings>},
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

BRISQUEL::Status EntryRunner::Call(const QString& entry, int page) {
  for (const Entry& known : kEntries) {
    if (entry == QLatin1String(known.name)) {
      return known.call(*library_, environment_.GetStores(), page);
    }
  }
  return E_INVALIDARG;
}

EntryResult EntryRunner::Run(const QString& entry, int page) {
  EntryResult result{entry, E_FAIL, {}};
  environment_.GetStores().ArmThrowRule();
  running_ = true;
  try {
    result.status = Call(entry, page);
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
