// Filling the list of interpreters with 10,000 entries, and changing it to read-only and back,
// beside filling a bare QListWidget with the same texts and check boxes.

#include <benchmark/benchmark.h>

#include <QtWidgets>

#include "hollerin/hollerin.h"
#include "hollerin/interpreter_list.h"
#include "pages/formats/interpreter_list_ctrl.h"
#include "platform/application.h"
#include "platform/dialog_script.h"
#include "ratios.h"

namespace {

constexpr UINT kTemplate = 500;
constexpr int kList = 5078;
constexpr int kEntries = 10000;

/// A store with the entries, which are loaded once.
HOLLERIN::StoreHandle MakeStore() {
  std::vector<HOLLERIN::InterpreterEntry> entries;
  for (int i = 0; i < kEntries; ++i) {
    const std::wstring number = std::to_wstring(i);
    entries.push_back({L"Format number " + number, L"key" + number, L"ext" + number, L"",
                       L"textconverter", i % 3 != 0});
  }
  HOLLERIN::StoreHandle store;
  HOLLERIN::CreateBlankConfigDataMgr(&store);
  HOLLERIN::SaveConfigInterpreterList(store, HOLLERIN::MakeInterpreterList(entries), true);
  return store;
}

/// The list in a shown window.
struct Subject {
  explicit Subject(const HOLLERIN::StoreHandle& store)
      : module({{kTemplate, {{L"SysListView32", L"", kList, kStop, 7, 7, 180, 100}}}}) {
    dialog.Create(kTemplate, nullptr);
    list.SubclassDlgItem(kList, &dialog);
    list.SetConfigStore(store);
    list.SetFilter([](const auto&) { return true; });
    dialog.ShowWindow(SW_SHOW);
    list.Populate(true);
    QCoreApplication::processEvents();
  }
  TestModule module;
  CDialog dialog{kTemplate};
  CInterpreterListCtrl list;
};

/// The same rows by hand; an entry is kept with its row as the list keeps it.
struct Baseline {
  explicit Baseline(const HOLLERIN::StoreHandle& store) {
    HOLLERIN::LoadCurrentConfigInterpreterList(store, &entries);
    list.resize(300, 200);
    list.show();
    Fill(true);
    QCoreApplication::processEvents();
  }
  void Fill(bool checkBoxes) {
    list.clear();
    for (int i = 0; i < entries->GetCount(); ++i) {
      std::shared_ptr<INTERNAL_IFC::IConfigInterpreter> entry;
      entries->GetAt(i, entry);
      auto* item = new QListWidgetItem(QString::fromStdWString(entry->GetName()), &list);
      item->setData(Qt::UserRole, QVariant::fromValue<void*>(entry.get()));
      if (checkBoxes) item->setCheckState(entry->IsEnabled() ? Qt::Checked : Qt::Unchecked);
    }
  }
  HOLLERIN::InterpreterListHandle entries;
  QListWidget list;
};

template <class Work>
void Measure(benchmark::State& state, Work work, bool painted) {
  for (auto _ : state) {
    work();
    if (painted) {
      QCoreApplication::processEvents();
    } else {
      state.PauseTiming();
      QCoreApplication::processEvents();
      state.ResumeTiming();
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  ToolkitApplication toolkit(argc, argv);
  const HOLLERIN::StoreHandle store = MakeStore();
  Subject subject(store);
  Baseline baseline(store);
  bool readOnly = false, bare = false;

  for (const bool painted : {false, true}) {
    const std::string ending = painted ? "Painted" : "";
    const auto add = [&](const std::string& name, auto work) {
      benchmark::RegisterBenchmark((name + ending).c_str(),
                                   [work, painted](auto& state) { Measure(state, work, painted); });
    };
    add("Populate", [&] { subject.list.Populate(false); });
    add("FillQListWidget", [&] { baseline.Fill(true); });
    add("ChangeReadOnly", [&] { subject.list.ChangeReadOnly(readOnly = !readOnly); });
    add("RefillQListWidget", [&] { baseline.Fill(bare = !bare); });
  }
  return RunAndPrintRatios(argc, argv,
                           {{"Populate", "FillQListWidget", 1.5},
                            {"PopulatePainted", "FillQListWidgetPainted", 1.5},
                            {"ChangeReadOnly", "RefillQListWidget", 1.5},
                            {"ChangeReadOnlyPainted", "RefillQListWidgetPainted", 1.5}});
}
