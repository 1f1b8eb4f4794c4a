// Opening the main dialog until it is painted, and showing each page for the first time, beside a
// plain Qt dialog that holds the same widgets with the same texts at the same places.

#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <QtWidgets>
#include <chrono>
#include <cstdio>
#include <functional>

#include "hollerin/application.h"
#include "hollerin/hollerin.h"
#include "hollerin/interpreter_list.h"
#include "ifc/brisquel.h"
#include "platform/application.h"
#include "ratios.h"

namespace {

using Clock = std::chrono::steady_clock;

/// Remembers when a widget was painted last, for both sides alike.
class PaintWatch : public QObject {
 public:
  Clock::time_point last;

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) last = Clock::now();
    return false;
  }
};

PaintWatch& Watch() {
  static PaintWatch watch;
  return watch;
}

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Watch().last - start).count();
}

/// What is needed to build a widget again by hand.
struct WidgetCopy {
  QByteArray kind;
  QString text;
  QRect rect;
  QStringList rows;
  bool visible = true;
};

const char* PlainKind(const QWidget& widget) {
  for (const char* kind : {"QTreeView", "QComboBox", "QLineEdit", "QSlider", "QCheckBox",
                           "QRadioButton", "QPushButton", "QLabel", "QPlainTextEdit"}) {
    if (widget.inherits(kind)) return kind;
  }
  return nullptr;
}

void CollectRows(const QAbstractItemModel& model, const QModelIndex& parent, QStringList& rows) {
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex index = model.index(row, 0, parent);
    rows << index.data().toString();
    CollectRows(model, index, rows);
  }
}

std::vector<WidgetCopy> CopyControls(const QWidget& dialog) {
  std::vector<WidgetCopy> copies;
  for (const QWidget* widget :
       dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    const char* kind = PlainKind(*widget);
    if (kind == nullptr) continue;
    WidgetCopy copy{kind,
                    widget->property("text").toString(),
                    widget->geometry(),
                    {},
                    widget->isVisibleTo(&dialog)};
    if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
      for (int row = 0; row < combo->count(); ++row) copy.rows << combo->itemText(row);
    } else if (const auto* lines = qobject_cast<const QPlainTextEdit*>(widget)) {
      copy.text = lines->toPlainText();
    } else if (const auto* tree = qobject_cast<const QTreeView*>(widget)) {
      if (tree->model() != nullptr) CollectRows(*tree->model(), {}, copy.rows);
    }
    copies.push_back(copy);
  }
  return copies;
}

QWidget* BuildControl(const WidgetCopy& copy, QWidget* parent) {
  if (copy.kind == "QLabel") return new QLabel(copy.text, parent);
  if (copy.kind == "QCheckBox") return new QCheckBox(copy.text, parent);
  if (copy.kind == "QRadioButton") return new QRadioButton(copy.text, parent);
  if (copy.kind == "QPushButton") return new QPushButton(copy.text, parent);
  if (copy.kind == "QLineEdit") return new QLineEdit(copy.text, parent);
  if (copy.kind == "QPlainTextEdit") return new QPlainTextEdit(copy.text, parent);
  if (copy.kind == "QSlider") return new QSlider(Qt::Horizontal, parent);
  if (copy.kind == "QComboBox") {
    auto* combo = new QComboBox(parent);
    combo->addItems(copy.rows);
    return combo;
  }
  auto* tree = new QTreeWidget(parent);
  tree->setHeaderHidden(true);
  const QPixmap pixmap(16, 16);
  for (const QString& row : copy.rows) {
    auto* item = new QTreeWidgetItem(tree, {row});
    item->setIcon(0, QIcon(pixmap));
  }
  tree->expandAll();
  return tree;
}

void BuildControls(const std::vector<WidgetCopy>& copies, QWidget* parent) {
  for (const WidgetCopy& copy : copies) {
    QWidget* widget = BuildControl(copy, parent);
    widget->setGeometry(copy.rect);
    widget->setVisible(copy.visible);
  }
}

/// The library with empty stores, opened on one page; `work` runs when the dialog is idle.
class Subject {
 public:
  Subject() {
    HOLLERIN::Application application;
    application.langFolder = QString(LANG_FOLDER).toStdWString();
    HOLLERIN::SetUpApplication(application);
    void* library = dlopen(BRISQUEL_LIBRARY, RTLD_NOW);
    if (library == nullptr) qFatal("%s", dlerror());
    using Getter = const BRISQUEL::EntryPoints* (*)();
    table_ = reinterpret_cast<Getter>(dlsym(library, "BrisquelEntryPoints"))();
    for (auto& store : stores_) HOLLERIN::CreateBlankConfigDataMgr(&store);
    HOLLERIN::LoadMainDefaultConfiguration(&stores_[0]);
  }

  /// Puts a list with that many interpreters into the configuration; each has a row of the tree.
  void StoreInterpreters(int count) {
    std::vector<HOLLERIN::InterpreterEntry> entries;
    for (int number = 0; number < count; ++number) {
      const std::wstring text = std::to_wstring(number);
      entries.push_back(
          {L"Format " + text, text, L"x" + text, L"A format", L"textconverter", true});
    }
    const auto list = HOLLERIN::MakeInterpreterList(std::move(entries));
    HOLLERIN::SaveConfigInterpreterList(stores_[0], list, true);
  }

  void Open(int page, const std::function<void(QWidget*)>& work) const {
    QTimer::singleShot(0, [&work] {
      QTimer::singleShot(0, [&work] {
        QWidget* dialog = QApplication::activeModalWidget();
        work(dialog);
        if (dialog != nullptr) dialog->close();
      });
    });
    table_->OpenConfigDialog(nullptr, stores_[0], stores_[1], stores_[2], stores_[3], page);
  }

 private:
  const BRISQUEL::EntryPoints* table_ = nullptr;
  BRISQUEL::StoreHandle stores_[4];
};

/// What stands in the dialog and in its shown page, taken from the real ones.
struct Plan {
  QSize size;
  std::vector<WidgetCopy> dialog;
  QRect pageRect;
  std::vector<WidgetCopy> page;
};

QWidget* ShownPage(const QWidget& dialog) {
  for (QWidget* child : dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    const QVariant number = child->property("templateNumber");
    const bool isPage = number.isValid() && number != dialog.property("templateNumber");
    if (isPage && child->isVisible()) return child;
  }
  return nullptr;
}

Plan MakePlan(const Subject& subject, int page) {
  Plan plan;
  subject.Open(page, [&plan](QWidget* dialog) {
    if (dialog == nullptr) qFatal("the main dialog did not open");
    plan.size = dialog->size();
    plan.dialog = CopyControls(*dialog);
    if (const QWidget* shown = ShownPage(*dialog)) {
      plan.pageRect = shown->geometry();
      plan.page = CopyControls(*shown);
    }
  });
  return plan;
}

void OpenMainDialog(benchmark::State& state, const Subject& subject, int page) {
  for (auto _ : state) {
    const auto start = Clock::now();
    double seconds = 0;
    subject.Open(page, [&](QWidget*) { seconds = SecondsSince(start); });
    state.SetIterationTime(seconds);
  }
}

void OpenPlainDialog(benchmark::State& state, const Plan& plan) {
  for (auto _ : state) {
    const auto start = Clock::now();
    double seconds = 0;
    QDialog dialog;
    dialog.resize(plan.size);
    BuildControls(plan.dialog, &dialog);
    auto* page = new QWidget(&dialog);
    page->setGeometry(plan.pageRect);
    BuildControls(plan.page, page);
    QTimer::singleShot(0, [&] {
      QTimer::singleShot(0, [&] {
        seconds = SecondsSince(start);
        dialog.reject();
      });
    });
    dialog.exec();
    state.SetIterationTime(seconds);
  }
}

/// Rows of the tree in order, with the group rows.
std::vector<QModelIndex> TreeRows(const QTreeView& tree) {
  std::vector<QModelIndex> rows;
  for (QModelIndex index = tree.model()->index(0, 0); index.isValid();
       index = tree.indexBelow(index)) {
    rows.push_back(index);
  }
  return rows;
}

/// All pages shown one after the other for the first time; the time of one round.
void ShowEveryPage(benchmark::State& state, const Subject& subject) {
  for (auto _ : state) {
    double seconds = 0;
    subject.Open(4, [&](QWidget* dialog) {
      auto* tree = dialog->findChild<QTreeView*>();
      for (const QModelIndex& index : TreeRows(*tree)) {
        if (index == tree->currentIndex()) continue;
        const auto start = Clock::now();
        tree->setCurrentIndex(index);
        QCoreApplication::processEvents();
        seconds += SecondsSince(start);
      }
    });
    state.SetIterationTime(seconds);
  }
}

void ShowEveryPlainPage(benchmark::State& state, const Plan& plan, const std::vector<Plan>& pages) {
  for (auto _ : state) {
    double seconds = 0;
    QDialog dialog;
    dialog.resize(plan.size);
    BuildControls(plan.dialog, &dialog);
    QTimer::singleShot(0, [&] {
      QTimer::singleShot(0, [&] {
        QWidget* shown = nullptr;
        auto* tree = dialog.findChild<QTreeWidget*>();
        int row = 0;
        for (const Plan& content : pages) {
          const auto start = Clock::now();
          tree->setCurrentItem(tree->topLevelItem(row++));
          if (shown != nullptr) shown->hide();
          shown = new QWidget(&dialog);
          BuildControls(content.page, shown);
          shown->setGeometry(content.pageRect);
          shown->show();
          QCoreApplication::processEvents();
          seconds += SecondsSince(start);
        }
        dialog.reject();
      });
    });
    dialog.exec();
    state.SetIterationTime(seconds);
  }
}

/// The plans of all pages but the first, in tree order.
std::vector<Plan> PagePlans(const Subject& subject) {
  std::vector<Plan> plans;
  subject.Open(4, [&](QWidget* dialog) {
    auto* tree = dialog->findChild<QTreeView*>();
    for (const QModelIndex& index : TreeRows(*tree)) {
      if (index == tree->currentIndex()) continue;
      tree->setCurrentIndex(index);
      QCoreApplication::processEvents();
      if (const QWidget* shown = ShownPage(*dialog)) {
        plans.push_back({{}, {}, shown->geometry(), CopyControls(*shown)});
      }
    }
  });
  return plans;
}

}  // namespace

int main(int argc, char** argv) {
  ToolkitApplication toolkit(argc, argv);
  qApp->installEventFilter(&Watch());
  const Subject subject;
  const Plan plan = MakePlan(subject, 27);
  const Plan group = MakePlan(subject, 4);
  const std::vector<Plan> pages = PagePlans(subject);
  Subject crowded;
  crowded.StoreInterpreters(10000);
  const Plan crowdedPlan = MakePlan(crowded, 27);

  benchmark::RegisterBenchmark("OpenMainDialog", OpenMainDialog, std::cref(subject), 27)
      ->UseManualTime();
  benchmark::RegisterBenchmark("OpenPlainDialog", OpenPlainDialog, std::cref(plan))
      ->UseManualTime();
  benchmark::RegisterBenchmark("OpenWith10000Formats", OpenMainDialog, std::cref(crowded), 27)
      ->UseManualTime();
  benchmark::RegisterBenchmark("OpenPlainWith10000Rows", OpenPlainDialog, std::cref(crowdedPlan))
      ->UseManualTime();
  benchmark::RegisterBenchmark("ShowEveryPage", ShowEveryPage, std::cref(subject))->UseManualTime();
  benchmark::RegisterBenchmark("ShowEveryPlainPage", ShowEveryPlainPage, std::cref(group),
                               std::cref(pages))
      ->UseManualTime();
  std::printf("%zu pages besides the first one\n", pages.size());
  return RunAndPrintRatios(argc, argv,
                           {{"OpenMainDialog", "OpenPlainDialog", 1.25},
                            {"OpenWith10000Formats", "OpenPlainWith10000Rows", 1.25},
                            {"ShowEveryPage", "ShowEveryPlainPage", 1.25}});
}
