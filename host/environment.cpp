#include "host/environment.h"

#include <cstdio>

#include "hollerin/com_registrar.h"
#include "host/exit_status.h"
#include "host/folders.h"

void PrintError(const QString& text) {
  std::fprintf(stderr, "quarrow-config: %s\n", text.toUtf8().constData());
}

bool Print(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  const auto size = static_cast<std::size_t>(bytes.size());
  return std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

Environment::Environment(const Arguments& arguments)
    : arguments_(arguments), stores_(DataFolder(arguments.dataFolder)) {}

int Environment::ReadMachine() {
  if (arguments_.machineFile.isEmpty()) return kExitDone;
  QString error;
  machine_ = MachineFile::Load(arguments_.machineFile, error);
  if (machine_ == nullptr) {
    PrintError(QStringLiteral("The machine file %1: %2.").arg(arguments_.machineFile, error));
    return kExitUsage;
  }
  SetMachine(machine_);
  return kExitDone;
}

int Environment::Dpi() const {
  if (arguments_.dpi != 0) return arguments_.dpi;
  return machine_ != nullptr ? machine_->Dpi() : 0;
}

int Environment::Start() {
  QString error;
  if (const int status = stores_.Lock(error); status != kExitDone) {
    PrintError(error);
    return status;
  }
  if (!stores_.Open(error)) {
    PrintError(error);
    return kExitFile;
  }
  if (machine_ != nullptr && machine_->Throws()) stores_.SetThrowRule(*machine_->Throws());
  SetUp();
  if (machine_ == nullptr) {
    if (!stores_.LayDefaults(GetMachine().Portable(), error)) {
      Report(error);
      return kExitLibrary;
    }
    if (!ReportSaved(stores_.SaveAll())) return kExitFile;
  }
  return kExitDone;
}

std::wstring Environment::LanguageFile() const {
  const auto dictated = GetMachine().LanguageFile();
  if (dictated && *dictated) return **dictated;
  return stores_.Get(kConfig).ReadString(L"Language", L"File", L"lang-en.xml");
}

void Environment::SetUp() {
  log_ = HOLLERIN::CreateMemoryLog(
      HOLLERIN::CreateFileLog((stores_.Folder() + "/quarrow.log").toStdWString()));
  HOLLERIN::Application application;
  application.appFolder = WithSeparator(ApplicationFolder(stores_.Folder()));
  application.langFolder = WithSeparator(LanguageFolder(arguments_.languageFolder));
  application.langFile = LanguageFile();
  application.dataFolder = WithSeparator(stores_.Folder());
  if (machine_ != nullptr) {
    application.defaultConfig = machine_->DefaultConfig();
    application.defaultMaster = machine_->DefaultMaster();
  }
  application.log = log_;
  application.master = stores_.Handle(kMaster);
  const std::wstring problem = HOLLERIN::SetUpApplication(std::move(application));
  if (!problem.empty()) Report(QString::fromStdWString(problem));
}

void Environment::StayInside() {
  // Without a machine file it is a machine that dictates nothing else.
  const auto inside = machine_ != nullptr ? std::make_shared<MachineFile>(*machine_)
                                          : std::make_shared<MachineFile>();
  inside->StayInside(outside_);
  SetMachine(inside);
}

void Environment::Report(const QString& text) {
  PrintError(text);
  if (log_ != nullptr) log_->LogLine(text.toStdWString());
}

void Environment::ApplyShellSettings() {
  if (FAILED(HOLLERIN::ApplyShellSettings(stores_.Get(kConfig)))) {
    Report(
        QStringLiteral("The desktop integration cannot be recorded in %1.").arg(stores_.Folder()));
    allSaved_ = false;
  }
}

bool Environment::ReportSaved(const QStringList& failed) {
  for (const QString& name : failed) {
    Report(QStringLiteral("The store %1 cannot be written to %2.")
               .arg(name, stores_.Path(Stores::Find(name))));
  }
  allSaved_ = allSaved_ && failed.isEmpty();
  return failed.isEmpty();
}
