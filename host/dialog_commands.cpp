#include "host/dialog_commands.h"

#include <QGuiApplication>

#include "host/drive/entry_runner.h"
#include "host/environment.h"
#include "host/exit_status.h"
#include "host/tour.h"

namespace {

bool HasDisplay() { return QGuiApplication::platformName() != QLatin1String("offscreen"); }

int Show(Environment& environment, const QString& entry) {
  EntryRunner entries(environment);
  if (QString error; !entries.Load(error)) {
    environment.Report(error);
    return kExitLibrary;
  }
  const EntryResult result = entries.Run(entry, {.page = environment.GetArguments().page});
  if (!result.error.isEmpty()) return kExitLibrary;
  if (!environment.AllSaved()) return kExitFile;
  return result.status == 0 ? kExitDone : kExitNotConfirmed;
}

int ShowOrPicture(Environment& environment, const QString& entry) {
  return HasDisplay() ? Show(environment, entry) : RunUnseenDialog(environment, entry);
}

std::wstring LanguageOf(Environment& environment) {
  return environment.GetStores().Get(kConfig).ReadString(L"Language", L"File", {});
}

}  // namespace

int RunConfig(Environment& environment) {
  if (!HasDisplay()) return RunUnseenConfig(environment);
  return Show(environment, QStringLiteral("OpenConfigDialog"));
}

int RunMessage(Environment& environment) {
  return ShowOrPicture(environment, QStringLiteral("ShowMessage"));
}

int RunClearHistory(Environment& environment) {
  return ShowOrPicture(environment, QStringLiteral("OpenClearHistoryDialog"));
}

int RunEditHistory(Environment& environment) {
  return ShowOrPicture(environment, QStringLiteral("OpenEditHistoryDialog"));
}

int RunDocuments(Environment& environment) {
  return ShowOrPicture(environment, QStringLiteral("OpenDocumentSettings"));
}

int RunArchives(Environment& environment) {
  return ShowOrPicture(environment, QStringLiteral("OpenArchiveSettings"));
}

int RunOcr(Environment& environment) {
  return ShowOrPicture(environment, QStringLiteral("OpenOCRSettings"));
}

int RunLanguage(Environment& environment) {
  const std::wstring before = LanguageOf(environment);
  const int status = ShowOrPicture(environment, QStringLiteral("OpenLanguageDialog"));
  if (status == kExitDone && (LanguageOf(environment) != before || !HasDisplay())) {
    Print(QStringLiteral("Another language takes effect at the next start.\n"));
  }
  return status;
}

int RunCache(Environment& environment) {
  return ShowOrPicture(environment, QStringLiteral("OpenCacheSettings"));
}

int RunFilters(Environment& environment) {
  return ShowOrPicture(environment, QStringLiteral("OpenSearchFilterList"));
}
