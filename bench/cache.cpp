// Opening the dialog of the text cache over a database of a million texts, beside one without any.

#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <QtWidgets>
#include <vector>

#include "hollerin/application.h"
#include "hollerin/hollerin.h"
#include "ifc/brisquel.h"
#include "platform/application.h"
#include "quimbly/text_cache.h"
#include "ratios.h"

namespace {

constexpr int kItems = 1'000'000;
constexpr int kBatch = 10'000;

/// Makes the cache of a folder.
void Fill(const QString& folder, int items) {
  TextCache cache;
  const std::string file = folder.toStdString() + '/' + kCacheFileName;
  if (!cache.Open(file)) qFatal("the cache cannot be made");
  for (int first = 0; first < items; first += kBatch) {
    std::vector<CachedText> texts;
    for (int n = first; n < first + kBatch; ++n) {
      texts.push_back({{L"/documents/" + std::to_wstring(n), n, n}, std::wstring(100, L'x')});
    }
    if (!cache.Put(texts)) qFatal("the cache cannot be filled");
  }
}

/// The library with its global master configuration.
class Subject {
 public:
  Subject() {
    HOLLERIN::CreateBlankConfigDataMgr(&store_);
    HOLLERIN::CreateBlankConfigDataMgr(&master_);
    HOLLERIN::Application application;
    application.langFolder = QString(LANG_FOLDER).toStdWString();
    application.master = master_;
    HOLLERIN::SetUpApplication(application);
    void* library = dlopen(BRISQUEL_LIBRARY, RTLD_NOW);
    if (library == nullptr) qFatal("%s", dlerror());
    using Getter = const BRISQUEL::EntryPoints* (*)();
    table_ = reinterpret_cast<Getter>(dlsym(library, "BrisquelEntryPoints"))();
  }

  /// Opens the dialog and closes it when it is painted.
  void Open(const QString& folder) const {
    master_->WriteString(L"FOLDERS", L"CacheFolder", folder.toStdWString());
    QTimer::singleShot(0, [] {
      QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr) qFatal("the dialog did not open");
        dialog->close();
      });
    });
    table_->OpenCacheSettings(store_);
  }

 private:
  const BRISQUEL::EntryPoints* table_ = nullptr;
  BRISQUEL::StoreHandle store_;
  BRISQUEL::StoreHandle master_;
};

void OpenDialog(benchmark::State& state, const Subject& subject, const QString& folder) {
  for (auto _ : state) subject.Open(folder);
}

}  // namespace

int main(int argc, char** argv) {
  ToolkitApplication toolkit(argc, argv);
  const QTemporaryDir large, empty;
  Fill(large.path(), kItems);
  Fill(empty.path(), 0);
  const Subject subject;
  benchmark::RegisterBenchmark("OpenLargeCache", OpenDialog, std::cref(subject), large.path());
  benchmark::RegisterBenchmark("OpenEmptyCache", OpenDialog, std::cref(subject), empty.path());
  return RunAndPrintRatios(argc, argv, {{"OpenLargeCache", "OpenEmptyCache", 1.05}});
}
