// quarrow-config: opens the dialogs of the settings library over stores of its own.

#include <QCoreApplication>
#include <QGuiApplication>
#include <exception>
#include <memory>

#include "host/dialog_commands.h"
#include "host/drive/drive_command.h"
#include "host/environment.h"
#include "host/exit_status.h"
#include "host/store_commands.h"
#include "host/tour.h"
#include "platform/application.h"
#include "platform/message_box.h"
#include "platform/messages.h"

namespace {

enum class Display { None, Person, OffScreen };

struct Command {
  const char* name;
  int (*run)(Environment&);
  Display display;
};

constexpr Command kCommands[] = {
    {"config", RunConfig, Display::Person},
    {"message", RunMessage, Display::Person},
    {"clear-history", RunClearHistory, Display::Person},
    {"edit-history", RunEditHistory, Display::Person},
    {"language", RunLanguage, Display::Person},
    {"documents", RunDocuments, Display::Person},
    {"archives", RunArchives, Display::Person},
    {"ocr", RunOcr, Display::Person},
    {"cache", RunCache, Display::Person},
    {"filters", RunFilters, Display::Person},
    {"get", RunGet, Display::None},
    {"set", RunSet, Display::None},
    {"list", RunList, Display::None},
    {"export", RunExport, Display::None},
    {"import", RunImport, Display::None},
    {"tour", RunTour, Display::OffScreen},
    {"drive", RunDrive, Display::OffScreen},
};

const Command& FindCommand(const QString& name) {
  for (const Command& command : kCommands) {
    if (name == QLatin1String(command.name)) return command;
  }
  return kCommands[0];
}

/// The toolkit for the command; it sees the program's name alone, as the arguments are ours.
class Toolkit {
 public:
  Toolkit(char* program, Display display, int dpi) : arguments_{program, nullptr} {
    if (display == Display::None) {
      plain_ = std::make_unique<QCoreApplication>(count_, arguments_);
      return;
    }
    // Pictures and replies shall not depend on the desktop that happens to be there.
    if (display == Display::OffScreen && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
      qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    windows_ = std::make_unique<ToolkitApplication>(count_, arguments_, dpi);
  }

 private:
  int count_ = 1;
  char* arguments_[2];
  std::unique_ptr<QCoreApplication> plain_;
  std::unique_ptr<ToolkitApplication> windows_;
};

void TellDamages(Environment& environment, Display display) {
  for (const QString& damage : environment.GetStores().Damages()) {
    environment.Report(damage);
    const bool seen = display == Display::Person && QGuiApplication::platformName() != "offscreen";
    if (seen) MessageBoxW(nullptr, damage.toStdWString(), L"Quarrow", MB_OK | MB_ICONEXCLAMATION);
  }
}

int Run(int argc, char** argv) {
  QStringList words;
  for (int i = 1; i < argc; ++i) words << QString::fromLocal8Bit(argv[i]);
  QString error;
  const Arguments arguments = ParseArguments(words, error);
  if (arguments.help) return Print(HelpText()) ? kExitDone : kExitFile;
  if (!error.isEmpty()) {
    PrintError(error + QStringLiteral(" See --help."));
    return kExitUsage;
  }
  const Command& command = FindCommand(arguments.command);
  Environment environment(arguments);
  if (const int status = environment.ReadMachine(); status != kExitDone) return status;
  int dpi = environment.Dpi();
  if (command.run == RunTour && dpi == 0) dpi = 96;
  const Toolkit toolkit(argv[0], command.display, dpi);
  if (const int status = environment.Start(); status != kExitDone) return status;
  TellDamages(environment, command.display);
  return command.run(environment);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& raised) {
    PrintError(QString::fromUtf8(raised.what()));
    return kExitLibrary;
  }
}
