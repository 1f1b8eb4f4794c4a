#include "platform/dialog.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <stdexcept>

#include "dialog_script.h"
#include "platform/application.h"
#include "platform/exceptions.h"
#include "platform/message_box.h"

namespace {

const std::vector<ItemSource> kItems = {
    {L"Static", L"Name:", -1, kPlain},
    {L"Edit", L"", 100},
    {L"Button", L"OK", IDOK, kStop | BS_DEFPUSHBUTTON},
    {L"Button", L"Cancel", IDCANCEL},
    {L"Button", L"Other", 101},
};

int Units(int value, int base, int parts) { return MulDiv(value, base, parts); }

TEST(Dialog, MeasuresItsTemplateInTheInterfaceFont) {
  const TestModule module({{500, {{L"Button", L"", 7, kStop, 13, 21, 55, 17}}}});
  TestDialog dialog(500);
  ASSERT_TRUE(dialog.Create(500, nullptr));
  const QFontMetrics metrics(QApplication::font());
  const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
  const int baseX = (metrics.horizontalAdvance(letters) / 26 + 1) / 2;
  const int baseY = metrics.height();
  EXPECT_EQ(WidgetOf(dialog.m_hWnd)->size(), QSize(Units(200, baseX, 4), Units(120, baseY, 8)));
  EXPECT_EQ(ControlWidget(dialog, 7)->geometry(), QRect(Units(13, baseX, 4), Units(21, baseY, 8),
                                                        Units(55, baseX, 4), Units(17, baseY, 8)));
  CRect rect(4, 8, 40, 80);
  MapDialogRect(dialog.m_hWnd, rect);
  EXPECT_EQ(rect, CRect(baseX, baseY, 10 * baseX, 10 * baseY));
}

TEST(Dialog, DescribesItsWidgets) {
  const TestModule module({{500, kItems}});
  TestDialog dialog(500);
  ASSERT_TRUE(dialog.Create(500, nullptr));
  const QWidget* window = WidgetOf(dialog.m_hWnd);
  EXPECT_EQ(window->objectName(), QStringLiteral("500"));
  EXPECT_EQ(window->property("templateNumber").toInt(), 500);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Title"));
  const QWidget* edit = ControlWidget(dialog, 100);
  EXPECT_EQ(edit->objectName(), QStringLiteral("500/100"));
  EXPECT_EQ(edit->property("controlNumber").toInt(), 100);
  EXPECT_EQ(edit->property("templateNumber").toInt(), 500);
  EXPECT_EQ(edit->property("templateOrder").toInt(), 1);
  EXPECT_EQ(edit->property("controlKind").toString(), QStringLiteral("edit"));
  EXPECT_STREQ(GetClassName(dialog.m_hWnd), L"#32770");
}

TEST(Dialog, NeedsAWholeTemplate) {
  const TestModule module({{500, {{L"NoSuchClass", L"", 1}}}});
  EXPECT_EQ(TestDialog(499).DoModal(), -1);
  TestDialog damaged(500);
  EXPECT_EQ(damaged.DoModal(), -1);
  EXPECT_FALSE(damaged.Create(499, nullptr));
  EXPECT_EQ(damaged.m_hWnd, nullptr);
}

TEST(Dialog, EndsByKeysAndByItsFrame) {
  const TestModule module({{500, kItems}});
  const struct {
    const char* name;
    int focus;
    std::function<void(QWidget*)> act;
    INT_PTR result;
  } rows[] = {
      {"Enter", 100, [](QWidget* focus) { QTest::keyClick(focus, Qt::Key_Return); }, IDOK},
      {"Enter on Cancel", IDCANCEL, [](QWidget* focus) { QTest::keyClick(focus, Qt::Key_Return); },
       IDCANCEL},
      {"Escape", 100, [](QWidget* focus) { QTest::keyClick(focus, Qt::Key_Escape); }, IDCANCEL},
      {"close", 100, [](QWidget* focus) { focus->window()->close(); }, IDCANCEL},
      {"unhandled button", 101, [](QWidget* focus) { QTest::keyClick(focus, Qt::Key_Space); },
       4711},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    TestDialog dialog(500);
    EXPECT_EQ(RunModal(dialog, {[&] {
                         dialog.GetDlgItem(row.focus)->SetFocus();
                         row.act(ControlWidget(dialog, row.focus));
                       }}),
              row.result);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
  }
}

TEST(Dialog, LeavesDisabledButtonsAlone) {
  const TestModule module({{500, kItems}});
  TestDialog dialog(500);
  const auto press = [&](int button, const std::function<void(QWidget*)>& act) {
    dialog.GetDlgItem(button)->EnableWindow(FALSE);
    act(ControlWidget(dialog, 100));
  };
  EXPECT_EQ(
      RunModal(dialog,
               {[&] { press(IDOK, [](QWidget* w) { QTest::keyClick(w, Qt::Key_Return); }); },
                [&] { press(IDCANCEL, [](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); }); },
                [&] { WidgetOf(dialog.m_hWnd)->close(); }}),
      4711);
}

TEST(Dialog, PressesTheButtonThatWasMadeTheDefault) {
  const TestModule module({{500, kItems}});
  TestDialog dialog(500);
  dialog.setUp = [](TestDialog& self) {
    self.SetDefID(IDCANCEL);
    return TRUE;
  };
  EXPECT_EQ(
      RunModal(dialog, {[&] { QTest::keyClick(ControlWidget(dialog, 100), Qt::Key_Return); }}),
      IDCANCEL);
}

TEST(Dialog, GivesTheFocusToTheFirstControlThatIsLeft) {
  const TestModule module({{500, kItems}});
  const struct {
    std::function<BOOL(TestDialog&)> setUp;
    int focus;
  } rows[] = {
      {[](TestDialog&) { return TRUE; }, 100},
      {[](TestDialog& self) { return self.GetDlgItem(100)->EnableWindow(FALSE), TRUE; }, IDOK},
      {[](TestDialog& self) { return self.GetDlgItem(101)->SetFocus(), FALSE; }, 101},
  };
  for (const auto& row : rows) {
    TestDialog dialog(500);
    dialog.setUp = row.setUp;
    int focus = 0;
    RunModal(dialog, {[&] { focus = CWnd::GetFocus()->GetDlgCtrlID(); }});
    EXPECT_EQ(focus, row.focus);
  }
}

TEST(Dialog, MayEndInItsSetUp) {
  const TestModule module({{500, kItems}});
  TestDialog dialog(500);
  dialog.setUp = [](TestDialog& self) { return self.EndDialog(33), TRUE; };
  EXPECT_EQ(dialog.DoModal(), 33);
}

class ThrowingDialog : public TestDialog {
 public:
  using TestDialog::TestDialog;
  std::function<void()> onOther;

 protected:
  void OnOther() { onOther(); }
  LRESULT OnPosted(WPARAM, LPARAM) { return onOther(), 0; }
  DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ThrowingDialog, TestDialog)
ON_BN_CLICKED(101, &ThrowingDialog::OnOther)
ON_MESSAGE(WM_APP + 1, &ThrowingDialog::OnPosted)
END_MESSAGE_MAP()

std::string What(const std::function<void()>& run) {
  try {
    run();
  } catch (const std::exception& error) {
    return error.what();
  }
  return "nothing";
}

TEST(Dialog, PassesExceptionsToItsCaller) {
  const TestModule module({{500, kItems}});
  ThrowingDialog dialog(500);
  dialog.onOther = [] { throw std::runtime_error("click"); };
  const auto click = [&] { QTest::mouseClick(ControlWidget(dialog, 101), Qt::LeftButton); };
  EXPECT_EQ(What([&] { RunModal(dialog, {click}); }), "click");
  EXPECT_EQ(dialog.m_hWnd, nullptr);

  dialog.onOther = [] { throw std::runtime_error("posted"); };
  EXPECT_EQ(What([&] { RunModal(dialog, {[&] { dialog.PostMessage(WM_APP + 1); }}); }), "posted");

  dialog.setUp = [](TestDialog&) -> BOOL { throw std::runtime_error("set-up"); };
  EXPECT_EQ(What([&] { dialog.DoModal(); }), "set-up");
  EXPECT_EQ(What([&] { dialog.Create(500, nullptr); }), "set-up");
  EXPECT_EQ(dialog.m_hWnd, nullptr);

  dialog.setUp = nullptr;
  EXPECT_EQ(RunModal(dialog, {[&] { dialog.EndDialog(5); }}), 5);
}

TEST(Dialog, UnwindsNestedRuns) {
  const TestModule module({{500, kItems}});
  ThrowingDialog outer(500), inner(500, &outer);
  inner.onOther = [] { throw std::runtime_error("inner"); };
  std::string seen;
  outer.onOther = [&] {
    seen = What([&] {
      RunModal(inner, {[&] { QTest::mouseClick(ControlWidget(inner, 101), Qt::LeftButton); }});
    });
  };
  const auto click = [&] { QTest::mouseClick(ControlWidget(outer, 101), Qt::LeftButton); };
  EXPECT_EQ(RunModal(outer, {click}), 4711);
  EXPECT_EQ(seen, "inner");

  // Nobody between the runs takes the exception: it ends both.
  outer.onOther = [&] {
    RunModal(inner, {[&] { QTest::mouseClick(ControlWidget(inner, 101), Qt::LeftButton); }});
  };
  EXPECT_EQ(What([&] { RunModal(outer, {click}); }), "inner");

  // The outer window dies while the inner one runs above it, inside the outer one's own message.
  outer.onOther = [&] { RunModal(inner, {[&] { outer.DestroyWindow(); }}); };
  EXPECT_EQ(RunModal(outer, {click}), -1);
  EXPECT_EQ(inner.m_hWnd, nullptr);
}

TEST(Dialog, EndsTheMessageBoxAboveItWithAnException) {
  const TestModule module({{500, kItems}});
  ThrowingDialog dialog(500);
  bool boxOpen = false, boxReturned = false;
  dialog.onOther = [&] {
    if (boxOpen) throw std::runtime_error("below the box");
    boxOpen = true;
    dialog.PostMessage(WM_APP + 1);
    MessageBoxW(dialog.m_hWnd, L"text", L"caption", MB_YESNO);
    boxReturned = true;
  };
  const auto click = [&] { QTest::mouseClick(ControlWidget(dialog, 101), Qt::LeftButton); };
  EXPECT_EQ(What([&] { RunModal(dialog, {click}); }), "below the box");
  EXPECT_TRUE(boxReturned);
}

TEST(Dialog, ReportsAnExceptionThatNoRunCanTake) {
  const TestModule module({{500, kItems}});
  ThrowingDialog dialog(500);
  dialog.onOther = [] { throw std::runtime_error("nobody listens"); };
  ASSERT_TRUE(dialog.Create(500, nullptr));
  testing::internal::CaptureStderr();
  QTest::mouseClick(ControlWidget(dialog, 101), Qt::LeftButton);
  EXPECT_NE(testing::internal::GetCapturedStderr().find("nobody listens"), std::string::npos);
  EXPECT_TRUE(IsWindow(dialog.m_hWnd));
}

TEST(Dialog, GivesTheFocusBackToTheWindowBelow) {
  const TestModule module({{500, kItems}});
  ThrowingDialog outer(500), inner(500, &outer);
  const auto settle = [] { ToolkitApplication::ProcessEvents(); };
  RunModal(outer,
           {settle,
            [&] {
              outer.GetDlgItem(101)->SetFocus();
              RunModal(inner, {settle});
            },
            settle, [&] { EXPECT_EQ(QApplication::focusWidget(), ControlWidget(outer, 101)); }});
}

TEST(Dialog, SurvivesBeingDestroyedInItsOwnMessage) {
  const TestModule module({{500, kItems}});
  ThrowingDialog dialog(500);
  dialog.onOther = [&] { dialog.DestroyWindow(); };
  const auto click = [&] { QTest::mouseClick(ControlWidget(dialog, 101), Qt::LeftButton); };
  EXPECT_EQ(RunModal(dialog, {click}), -1);

  auto* modeless = new ThrowingDialog(500);
  modeless->onOther = [modeless] { delete modeless; };
  ASSERT_TRUE(modeless->Create(500, nullptr));
  modeless->ShowWindow(SW_SHOW);
  const HWND window = modeless->m_hWnd;
  const HWND button = modeless->GetDlgItem(101)->m_hWnd;
  QTest::mouseClick(WidgetOf(button), Qt::LeftButton);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_FALSE(IsWindow(button));
  ToolkitApplication::ProcessEvents();
}

TEST(Dialog, OpensOnTheScreenAndOverItsOwner) {
  const TestModule module({{500, kItems}, {501, kItems, WS_POPUP, 60, 40}});
  TestDialog owner(500);
  TestDialog owned(501, &owner);
  const QRect screen = QApplication::primaryScreen()->availableGeometry();
  RunModal(owner, {[&] {
             QWidget* window = WidgetOf(owner.m_hWnd);
             const QPoint fromMiddle = window->frameGeometry().center() - screen.center();
             EXPECT_LE(fromMiddle.manhattanLength(), 2);
             owner.SetWindowPos(5, 5, 0, 0, SWP_NOSIZE);
             RunModal(owned, {[&] {
                        const QPoint away = WidgetOf(owned.m_hWnd)->frameGeometry().center() -
                                            window->frameGeometry().center();
                        EXPECT_LE(away.manhattanLength(), 2);
                      }});
             owner.SetWindowPos(screen.right() - 10, screen.bottom() - 10, 0, 0, SWP_NOSIZE);
             RunModal(owned, {[&] {
                        EXPECT_TRUE(screen.contains(WidgetOf(owned.m_hWnd)->frameGeometry()));
                      }});
           }});
}

TEST(Dialog, FindsItsModuleInsideEvents) {
  const TestModule module({{500, kItems}}, {{5031, L"text of the module"}});
  ThrowingDialog dialog(500);
  CString loaded;
  dialog.onOther = [&] { loaded.LoadString(5031); };
  ASSERT_TRUE(dialog.Create(500, nullptr));
  dialog.ShowWindow(SW_SHOW);
  const AFX_MODULE_STATE nothing(nullptr);
  const AFX_MAINTAIN_STATE2 state(nothing);
  QTest::mouseClick(ControlWidget(dialog, 101), Qt::LeftButton);
  EXPECT_EQ(loaded, L"text of the module");
}

}  // namespace
