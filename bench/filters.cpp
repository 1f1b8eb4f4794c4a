// Opening the list of persistent search filters with 10,000 filters until it is painted, beside a
// plain Qt dialog with a QTreeWidget that holds the same rows. Both load the filters from the
// store.

#include <benchmark/benchmark.h>

#include <QtWidgets>

#include "dialogs/search_filter_list_dlg.h"
#include "foundation/globals.h"
#include "foundation/library_module.h"
#include "hollerin/application.h"
#include "hollerin/hollerin.h"
#include "hollerin/search_filter_text.h"
#include "platform/application.h"
#include "ratios.h"

namespace {

constexpr int kFilters = 10000;

HOLLERIN::StoreHandle MakeStore() {
  std::vector<HOLLERIN::SearchFilterValues> filters;
  for (int i = 0; i < kFilters; ++i) {
    const std::wstring number = std::to_wstring(i);
    const bool location = i % 4 == 0;
    filters.push_back({i % 3 != 0, location ? 0 : 1, L"Filter number " + number, location ? 1 : 4,
                       location ? L"/folders/" + number : L"*." + number});
  }
  HOLLERIN::StoreHandle store;
  HOLLERIN::CreateBlankConfigDataMgr(&store);
  store->WriteString(HOLLERIN::kSearchFilterSection, HOLLERIN::kSearchFilterListKey,
                     HOLLERIN::FormatSearchFilters(filters));
  return store;
}

/// Closes the dialog that is shown next, when it is painted.
void CloseWhenPainted() {
  QTimer::singleShot(0, [] {
    QTimer::singleShot(0, [] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr) qFatal("the dialog did not open");
      dialog->close();
    });
  });
}

void OpenFilterList(benchmark::State& state, const HOLLERIN::StoreHandle& store) {
  for (auto _ : state) {
    CloseWhenPainted();
    Geometry::CGeometryWnd<CSearchFilterListDlg>(store, nullptr, false).DoModal();
  }
}

void FillTree(QTreeWidget& tree, INTERNAL_IFC::ISearchFilterList& filters) {
  for (int index = 0; index < filters.GetCount(); ++index) {
    const auto filter = filters.GetAt(index);
    auto* row = new QTreeWidgetItem(&tree);
    row->setText(0, QString::fromStdWString(filter->GetName()));
    row->setText(1, QString::fromStdWString(filter->GetValue()));
    row->setText(
        2, filter->GetFilterKind() == 0 ? QStringLiteral("Location") : QStringLiteral("File name"));
    row->setCheckState(0, filter->IsEnabled() ? Qt::Checked : Qt::Unchecked);
    row->setData(0, Qt::UserRole, QVariant::fromValue<void*>(filter.get()));
  }
}

void OpenTreeWidget(benchmark::State& state, const HOLLERIN::StoreHandle& store) {
  for (auto _ : state) {
    CloseWhenPainted();
    std::shared_ptr<INTERNAL_IFC::ISearchFilterList> filters;
    HOLLERIN::LoadSearchFilterList(store, &filters);
    QDialog dialog;
    QTreeWidget tree(&dialog);
    tree.setColumnCount(3);
    tree.setUniformRowHeights(true);
    tree.setRootIsDecorated(false);
    for (const auto& [column, width] : {std::pair(0, 300), {1, 200}, {2, 200}}) {
      tree.setColumnWidth(column, width);
    }
    FillTree(tree, *filters);
    tree.setGeometry(10, 90, 560, 250);
    dialog.resize(590, 400);
    dialog.exec();
  }
}

}  // namespace

int main(int argc, char** argv) {
  ToolkitApplication toolkit(argc, argv);
  HOLLERIN::Application application;
  application.langFolder = QString(LANG_FOLDER).toStdWString();
  HOLLERIN::SetUpApplication(application);
  Process() = ProcessObjects();
  QFile file(BRISQUEL_RES);
  if (!file.open(QIODevice::ReadOnly)) qFatal("the resources cannot be read");
  const QByteArray resources = file.readAll();
  const LibraryModule module(std::as_bytes(std::span(resources.constData(), resources.size())));
  const AFX_MAINTAIN_STATE2 current(LibraryModuleState());

  const HOLLERIN::StoreHandle store = MakeStore();
  benchmark::RegisterBenchmark("OpenFilterList", OpenFilterList, std::cref(store));
  benchmark::RegisterBenchmark("OpenQTreeWidget", OpenTreeWidget, std::cref(store));
  return RunAndPrintRatios(argc, argv, {{"OpenFilterList", "OpenQTreeWidget", 1.5}});
}
