// The language page alone, opened until it is idle with 2,000 language files in the folder, beside
// reading the beginning of as many files one after the other.

#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <QtWidgets>

#include "hollerin/application.h"
#include "hollerin/hollerin.h"
#include "ifc/brisquel.h"
#include "platform/application.h"
#include "ratios.h"

namespace {

constexpr int kFiles = 2000;
constexpr std::size_t kHeaderSize = 200;

void WriteLanguages(const QDir& folder) {
  QFile::copy(QString(LANG_FOLDER) + "lang-en.xml", folder.filePath("lang-en.xml"));
  for (int number = 1; number < kFiles; ++number) {
    QFile file(folder.filePath(QString("lang-%1.xml").arg(number)));
    if (!file.open(QFile::WriteOnly)) qFatal("%s", qPrintable(file.errorString()));
    file.write(QString("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<translation lang=\"Language "
                       "%1\" code=\"en\" version=\"1\">%2</translation>\n")
                   .arg(number)
                   .arg(QString(4000, ' '))
                   .toUtf8());
  }
}

const BRISQUEL::EntryPoints& Library() {
  void* library = dlopen(BRISQUEL_LIBRARY, RTLD_NOW);
  if (library == nullptr) qFatal("%s", dlerror());
  using Getter = const BRISQUEL::EntryPoints* (*)();
  return *reinterpret_cast<Getter>(dlsym(library, "BrisquelEntryPoints"))();
}

void OpenLanguagePage(benchmark::State& state, const BRISQUEL::EntryPoints& library) {
  BRISQUEL::StoreHandle store;
  HOLLERIN::CreateBlankConfigDataMgr(&store);
  for (auto _ : state) {
    int listed = 0;
    QTimer::singleShot(0, [&listed] {
      QTimer::singleShot(0, [&listed] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr) return;
        if (const auto* combo = dialog->findChild<QComboBox*>()) listed = combo->count();
        dialog->close();
      });
    });
    library.OpenLanguageDialog(store);
    if (listed != kFiles) qFatal("%d languages are listed", listed);
  }
}

void ReadSmallFiles(benchmark::State& state, const std::vector<std::string>& files) {
  char bytes[kHeaderSize];
  for (auto _ : state) {
    for (const std::string& file : files) {
      const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC);
      benchmark::DoNotOptimize(read(descriptor, bytes, sizeof bytes));
      close(descriptor);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  ToolkitApplication toolkit(argc, argv);
  const QTemporaryDir data;
  const QDir folder(data.path());
  WriteLanguages(folder);
  HOLLERIN::Application application;
  application.langFolder = (data.path() + '/').toStdWString();
  HOLLERIN::SetUpApplication(application);
  std::vector<std::string> files;
  for (const QString& name : folder.entryList(QDir::Files, QDir::Unsorted)) {
    files.push_back(folder.filePath(name).toStdString());
  }

  benchmark::RegisterBenchmark("OpenLanguagePage", OpenLanguagePage, std::cref(Library()));
  benchmark::RegisterBenchmark("ReadSmallFiles", ReadSmallFiles, std::cref(files));
  return RunAndPrintRatios(argc, argv, {{"OpenLanguagePage", "ReadSmallFiles", 0}});
}
