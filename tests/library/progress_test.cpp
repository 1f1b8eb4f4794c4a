// Progress: the helper without a window, and the dialog that tasks run in.

#include <gtest/gtest.h>

#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>

#include "environment.h"
#include "fake_language.h"
#include "foundation/exception.h"
#include "foundation/progress_helper.h"
#include "panterow/progress_dialog.h"
#include "platform/dialog_script.h"

namespace {

using INTERNAL_IFC::IRunningStatus;
using INTERNAL_IFC::IWorkProgress;

struct Status : IRunningStatus {
  bool cancelled = false;
  int asked = 0;
  bool IsCancelled() override {
    ++asked;
    return cancelled;
  }
};

/// Keeps what it is told, and which of its operations made a sub-task.
struct Target : IWorkProgress {
  std::vector<std::vector<int>> reports;
  std::vector<int> texts;
  bool IsCancelled() override { return false; }
  void ReportProgress(int step, int steps, int done, int total, int reserved) override {
    reports.push_back({step, steps, done, total, reserved});
  }
  void SetProgressText(int text) override { texts.push_back(text); }
  std::shared_ptr<IWorkProgress> CreateSubProgress(int last, std::shared_ptr<IRunningStatus>,
                                                   std::shared_ptr<IWorkProgress>, int) override {
    reports.push_back({last});
    return std::make_shared<Target>();
  }
  std::shared_ptr<IWorkProgress> CreateSubProgressRange(int first, int last, int,
                                                        std::shared_ptr<IRunningStatus>,
                                                        std::shared_ptr<IWorkProgress>,
                                                        int) override {
    reports.push_back({first, last});
    return std::make_shared<Target>();
  }
};

TEST(ProgressHelper, AsksItsChecksInOrderUpToTheFirstThatIsTrue) {
  Status parent;
  std::vector<int> asked;
  bool second = false;
  CProgressHelper helper(&parent);
  EXPECT_FALSE(helper.IsCancelled());
  helper.AddCheck([&] { return asked.push_back(2), second; });
  helper.AddCheck([&] { return asked.push_back(3), false; });
  EXPECT_FALSE(helper.IsCancelled());
  EXPECT_EQ(asked, (std::vector<int>{2, 3}));
  second = true;
  EXPECT_TRUE(static_cast<IRunningStatus&>(helper).IsCancelled());
  EXPECT_EQ(asked, (std::vector<int>{2, 3, 2}));
  parent.cancelled = true;
  EXPECT_TRUE(static_cast<IWorkProgress&>(helper).IsCancelled());
  EXPECT_EQ(asked.size(), 3U) << "the parent comes first";
}

TEST(ProgressHelper, DropsReportsWithoutTargetAndCancelsItsSubTasks) {
  Status parent;
  const auto top = std::make_shared<CProgressHelper>(&parent);
  top->ReportProgress(1, 2, 3, 4, 5);
  top->SetProgressText(6);
  const auto sub = top->CreateSubProgress(1, nullptr, nullptr, 0);
  const auto subOfSub = sub->CreateSubProgressRange(1, 2, 0, nullptr, nullptr, 0);
  EXPECT_FALSE(subOfSub->IsCancelled());
  parent.cancelled = true;
  EXPECT_TRUE(subOfSub->IsCancelled());
}

TEST(ProgressHelper, PassesEverythingOnToItsTarget) {
  Target target;
  CProgressHelper helper;
  helper.SetTarget(&target);
  helper.ReportProgress(1, 2, 3, 4, 5);
  helper.SetProgressText(6);
  EXPECT_NE(dynamic_cast<Target*>(helper.CreateSubProgress(7, {}, {}, 0).get()), nullptr);
  EXPECT_NE(dynamic_cast<Target*>(helper.CreateSubProgressRange(8, 9, 0, {}, {}, 0).get()),
            nullptr);
  EXPECT_EQ(target.reports, (std::vector<std::vector<int>>{{1, 2, 3, 4, 5}, {7}, {8, 9}}));
  EXPECT_EQ(target.texts, std::vector<int>{6});
}

TEST(ProgressHelper, EndsItsChecksInOrder) {
  std::vector<int> ended;
  struct End {
    End(std::vector<int>& list, int number) : list_(list), number_(number) {}
    ~End() { list_.push_back(number_); }
    std::vector<int>& list_;
    int number_;
  };
  auto helper = std::make_unique<CProgressHelper>();
  for (const int number : {1, 2, 3}) {
    helper->AddCheck([end = std::make_shared<End>(ended, number)] { return false; });
  }
  ended.clear();
  helper.reset();
  EXPECT_EQ(ended, (std::vector<int>{1, 2, 3}));
}

/// The window of the task; null before it has appeared.
QProgressDialog* Window() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* window = qobject_cast<QProgressDialog*>(widget);
    if (window != nullptr && window->isVisible()) return window;
  }
  return nullptr;
}

QProgressDialog& AwaitWindow(IWorkProgress& progress) {
  while (Window() == nullptr) EXPECT_FALSE(progress.IsCancelled());
  return *Window();
}

/// Polls until an event that is posted now has been handled.
void AwaitTurn(IWorkProgress& progress) {
  bool handled = false;
  QMetaObject::invokeMethod(
      qApp, [&] { handled = true; }, Qt::QueuedConnection);
  while (!handled) progress.IsCancelled();
}

class ProgressDialog : public testing::Test {
 protected:
  using Work = INTERNAL_IFC::IWorkProgressDialog::Work;
  long Run(const Work& work, bool cancellable = true) {
    auto* runner = dynamic_cast<INTERNAL_IFC::IWorkProgressDialog*>(dialog_.get());
    return runner->RunWork(L"Reading filters", cancellable, work);
  }

 private:
  std::unique_ptr<PANTEROW::CWindowObject> dialog_ = PANTEROW::CreateProgressDialog(nullptr);
};

TEST_F(ProgressDialog, ShowsTheTaskAndGoesWithIt) {
  const auto language = std::make_shared<FakeLanguage>();
  EXPECT_EQ(Run([](IWorkProgress* progress) {
              QProgressDialog& window = AwaitWindow(*progress);
              EXPECT_EQ(window.windowTitle(), "Reading filters");
              EXPECT_TRUE(window.isModal());
              auto& bar = *window.findChild<QProgressBar*>();
              const struct {
                int step, steps, done, total, thousandths;
              } reports[] = {{1, 2, 0, 10, 0},
                             {1, 2, 5, 10, 250},
                             {2, 2, 5, 10, 750},
                             {2, 2, 99, 10, 1000},
                             {1, 4, 7, 0, 0},
                             {0, 0, 1, 2, 0},
                             {1, 1, 2000000000, 2000000000, 1000}};
              for (const auto& row : reports) {
                progress->ReportProgress(row.step, row.steps, row.done, row.total, 0);
                AwaitTurn(*progress);
                EXPECT_EQ(bar.value(), row.thousandths);
              }
              progress->SetProgressText(445);
              EXPECT_EQ(window.labelText(), "File name");
              return 7L;
            }),
            7);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_THROW(Run([](IWorkProgress* progress) -> long {
                 AwaitWindow(*progress);
                 throw CCP_Exception({});
               }),
               CCP_Exception);
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(ProgressDialog, IsCancelledInEveryWay) {
  const std::function<void(QProgressDialog&)> ways[] = {
      [](QProgressDialog& window) { window.findChild<QPushButton*>()->click(); },
      [](QProgressDialog& window) { QTest::keyClick(&window, Qt::Key_Escape); },
      [](QProgressDialog& window) { window.close(); },
      [](QProgressDialog& window) { window.reject(); },
  };
  for (const auto& cancel : ways) {
    EXPECT_EQ(Run([&](IWorkProgress* progress) {
                cancel(AwaitWindow(*progress));
                while (!progress->IsCancelled()) continue;
                progress->ReportProgress(1, 1, 1, 1, 0);
                return progress->IsCancelled() ? 1L : 0L;
              }),
              1);
  }
}

TEST_F(ProgressDialog, MayNotBeCancelled) {
  Run(
      [](IWorkProgress* progress) {
        QProgressDialog& window = AwaitWindow(*progress);
        EXPECT_EQ(window.findChild<QPushButton*>(), nullptr);
        QTest::keyClick(&window, Qt::Key_Escape);
        window.close();
        AwaitTurn(*progress);
        EXPECT_FALSE(progress->IsCancelled());
        EXPECT_EQ(Window(), &window);
        return 0L;
      },
      false);
}

TEST_F(ProgressDialog, GivesSubTasksTheirPart) {
  Run([](IWorkProgress* progress) {
    auto& bar = *AwaitWindow(*progress).findChild<QProgressBar*>();
    const auto status = std::make_shared<Status>();
    const auto listener = std::make_shared<Target>();
    progress->ReportProgress(1, 5, 0, 1, 0);
    const auto sub = progress->CreateSubProgress(500, status, listener, 0);
    const auto inner = sub->CreateSubProgressRange(500, 1000, 0, nullptr, nullptr, 0);
    const std::pair<IWorkProgress*, int> halves[] = {{sub.get(), 250}, {inner.get(), 375}};
    for (const auto& [task, thousandths] : halves) {
      task->ReportProgress(1, 2, 1, 1, 0);
      AwaitTurn(*task);
      EXPECT_EQ(bar.value(), thousandths);
    }
    EXPECT_EQ(listener->reports, (std::vector<std::vector<int>>{{1, 2, 1, 1, 0}}));
    status->cancelled = true;
    EXPECT_TRUE(inner->IsCancelled());
    EXPECT_FALSE(progress->IsCancelled());
    return 0L;
  });
}

TEST_F(ProgressDialog, KeepsInputFromOtherWindows) {
  const TestModule module({{500, {{L"Button", L"Press", 100}}}});
  TestDialog dialog(500);
  ASSERT_TRUE(dialog.Create(500, nullptr));
  dialog.ShowWindow(SW_SHOW);
  int pressed = 0;
  auto* button = static_cast<QPushButton*>(ControlWidget(dialog, 100));
  QObject::connect(button, &QPushButton::clicked, [&] { ++pressed; });
  const auto click = [&] {
    QTest::mouseClick(dialog.GetSafeHwnd() != nullptr ? button->window()->windowHandle() : nullptr,
                      Qt::LeftButton, {}, button->geometry().center());
  };
  click();
  EXPECT_EQ(pressed, 1);
  Run([&](IWorkProgress* progress) {
    AwaitWindow(*progress);
    click();
    AwaitTurn(*progress);
    return 0L;
  });
  EXPECT_EQ(pressed, 1);
}

}  // namespace
