#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QScreen>

#include "dialog_script.h"
#include "platform/application.h"
#include "platform/gdi.h"

namespace {

const std::vector<ItemSource> kItems = {
    {L"Button", L"A", 100},
    {L"Button", L"B", 101, kPlain | WS_DISABLED},
    {L"Edit", L"", 102, WS_CHILD},
};
const std::vector<DialogSource> kDialogs = {
    {500, kItems},
    {510, {{L"Edit", L"", 700}}, WS_CHILD | WS_DISABLED, 80, 50},
};

/// Remembers the messages that it gets, and can do something in each.
class WatchingDialog : public TestDialog {
 public:
  using TestDialog::TestDialog;
  std::vector<std::pair<UINT, LPARAM>> seen;
  CSize least;
  std::function<void(UINT)> during;
  CString tip;

  std::vector<LPARAM> Of(UINT message) const {
    std::vector<LPARAM> found;
    for (const auto& entry : seen)
      if (entry.first == message) found.push_back(entry.second);
    return found;
  }

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    seen.emplace_back(message, lParam);
    if (during) during(message);
    return TestDialog::WindowProc(message, wParam, lParam);
  }
  void OnGetMinMaxInfo(MINMAXINFO* limits) { limits->ptMinTrackSize = {least.cx, least.cy}; }
  BOOL OnNeedText(UINT, NMHDR* header, LRESULT*) {
    auto* asked = reinterpret_cast<TOOLTIPTEXTW*>(header);
    const HWND control = reinterpret_cast<HWND>(header->idFrom);
    if ((asked->uFlags & TTF_IDISHWND) == 0 || ::GetDlgCtrlID(control) != 100) return FALSE;
    asked->lpszText = tip;
    return TRUE;
  }
  DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WatchingDialog, TestDialog)
ON_WM_GETMINMAXINFO()
ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &WatchingDialog::OnNeedText)
END_MESSAGE_MAP()

template <class Dialog>
struct Opened : Dialog {
  explicit Opened(UINT id) : Dialog(id) { this->Create(id, nullptr); }
};

TEST(Window, StaleHandlesAreKnown) {
  const TestModule module(kDialogs);
  HWND old = nullptr;
  {
    Opened<TestDialog> dialog(500);
    old = dialog.GetDlgItem(100)->m_hWnd;
    EXPECT_TRUE(IsWindow(old));
  }
  Opened<TestDialog> next(500);
  for (const HWND living : GetChildWindows(next.m_hWnd)) EXPECT_NE(living, old);
  EXPECT_FALSE(IsWindow(old));
  EXPECT_EQ(CWnd::FromHandle(old), nullptr);
  EXPECT_FALSE(SetWindowText(old, L"x"));
  EXPECT_EQ(GetWindowText(old), L"");
  EXPECT_FALSE(IsWindow(nullptr));
  EXPECT_FALSE(IsWindow(reinterpret_cast<HWND>(static_cast<std::uintptr_t>(0xFFFFFF))));
  // The toolkit may delete a widget by itself.
  const HWND button = next.GetDlgItem(100)->m_hWnd;
  delete WidgetOf(button);
  EXPECT_FALSE(IsWindow(button));
  EXPECT_EQ(GetChildWindows(next.m_hWnd).size(), kItems.size() - 1);
}

TEST(Window, StylesAreTheStateOfTheWidget) {
  const TestModule module(kDialogs);
  Opened<TestDialog> dialog(500);
  CWnd& button = *dialog.GetDlgItem(101);
  CWnd& edit = *dialog.GetDlgItem(102);
  EXPECT_FALSE(button.IsWindowEnabled());
  EXPECT_EQ(edit.GetStyle() & WS_VISIBLE, 0U);
  EXPECT_TRUE(button.EnableWindow());
  EXPECT_EQ(button.GetStyle() & WS_DISABLED, 0U);
  EXPECT_FALSE(button.EnableWindow(FALSE));
  EXPECT_NE(button.GetStyle() & WS_DISABLED, 0U);
  EXPECT_TRUE(button.ModifyStyle(WS_DISABLED, 0));
  EXPECT_TRUE(WidgetOf(button.m_hWnd)->isEnabled());
  EXPECT_FALSE(button.ModifyStyle(WS_DISABLED, 0));
  EXPECT_FALSE(edit.ShowWindow(SW_SHOW));
  EXPECT_NE(edit.GetStyle() & WS_VISIBLE, 0U);
  EXPECT_FALSE(edit.IsWindowVisible()) << "the dialog itself is not shown";
  dialog.ShowWindow(SW_SHOW);
  EXPECT_TRUE(edit.IsWindowVisible());
  EXPECT_TRUE(edit.ShowWindow(SW_HIDE));
  EXPECT_FALSE(edit.IsWindowVisible());
}

TEST(Window, APageIsAChildThatTheHostShows) {
  const TestModule module(kDialogs);
  Opened<TestDialog> host(500);
  WatchingDialog page(510);
  ASSERT_TRUE(page.Create(510, &host));
  host.ShowWindow(SW_SHOW);
  EXPECT_EQ(page.GetParent(), &host);
  EXPECT_FALSE(page.IsWindowEnabled());
  EXPECT_FALSE(page.IsWindowVisible());
  EXPECT_TRUE(page.ModifyStyle(page.GetStyle(), WS_CHILD | WS_CLIPCHILDREN));
  page.ModifyStyleEx(page.GetExStyle(), WS_EX_CONTROLPARENT);
  EXPECT_TRUE(page.IsWindowEnabled());
  EXPECT_FALSE(page.IsWindowVisible());
  page.ShowWindow(SW_SHOW);
  EXPECT_TRUE(page.GetDlgItem(700)->IsWindowVisible());
  page.ModifyStyle(page.GetStyle(), WS_CHILD | WS_CLIPCHILDREN);
  EXPECT_FALSE(page.IsWindowVisible());
  EXPECT_EQ(page.GetStyle(), static_cast<DWORD>(WS_CHILD | WS_CLIPCHILDREN));
  EXPECT_EQ(page.GetExStyle(), static_cast<DWORD>(WS_EX_CONTROLPARENT));

  page.seen.clear();
  page.SetWindowPos(11, 12, 130, 90, SWP_NOZORDER | SWP_NOACTIVATE);
  EXPECT_EQ(page.Of(WM_SIZE), std::vector<LPARAM>{MAKELPARAM(130, 90)}) << "also while hidden";
  CRect rect;
  page.GetWindowRect(rect);
  host.ScreenToClient(rect);
  EXPECT_EQ(rect, CRect(11, 12, 141, 102));
  const HWND window = page.m_hWnd;
  host.DestroyWindow();
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(page.m_hWnd, nullptr);
}

TEST(Window, TellsItsSize) {
  const TestModule module(kDialogs);
  WatchingDialog dialog(500);
  dialog.setUp = [](TestDialog& self) { return self.ModifyStyle(0, WS_THICKFRAME), TRUE; };
  RunModal(dialog, {[&] {
             const QSize size = WidgetOf(dialog.m_hWnd)->size();
             EXPECT_EQ(dialog.Of(WM_SIZE),
                       std::vector<LPARAM>{MAKELPARAM(size.width(), size.height())});
             EXPECT_EQ(dialog.seen.front().first, WM_INITDIALOG);
             WidgetOf(dialog.m_hWnd)->resize(700, 500);
             EXPECT_EQ(dialog.Of(WM_SIZE).back(), MAKELPARAM(700, 500));
           }});
}

TEST(Window, IsResizedOnlyAsFarAsItSays) {
  const TestModule module(kDialogs);
  for (const bool sizing : {false, true}) {
    WatchingDialog dialog(500);
    QSize initial;
    dialog.setUp = [&](TestDialog& self) {
      if (sizing) self.ModifyStyle(0, WS_THICKFRAME);
      initial = WidgetOf(self.m_hWnd)->size();
      dialog.least = CSize(initial.width() - 20, initial.height() - 10);
      return TRUE;
    };
    RunModal(dialog, {[&] {
               QWidget* window = WidgetOf(dialog.m_hWnd);
               window->resize(1, 1);
               EXPECT_EQ(window->size(), sizing ? initial - QSize(20, 10) : initial);
               window->resize(initial * 2);
               EXPECT_EQ(window->size(), sizing ? initial * 2 : initial);
             }});
  }
}

TEST(Window, MovesABatchAtOnce) {
  const TestModule module(kDialogs);
  Opened<TestDialog> dialog(500);
  WatchingDialog page(510);
  ASSERT_TRUE(page.Create(510, &dialog));
  const HWND first = dialog.GetDlgItem(100)->m_hWnd;
  const HWND second = dialog.GetDlgItem(101)->m_hWnd;
  const QRect firstBefore = WidgetOf(first)->geometry();
  const QRect secondBefore = WidgetOf(second)->geometry();

  HDWP batch = BeginDeferWindowPos(3);
  batch = DeferWindowPos(batch, page.m_hWnd, 0, 0, 33, 44, SWP_NOZORDER | SWP_NOMOVE);
  batch = DeferWindowPos(batch, first, 1, 2, 99, 99, SWP_NOZORDER | SWP_NOSIZE);
  batch = DeferWindowPos(batch, second, 9, 9, 60, 30, SWP_NOZORDER | SWP_NOMOVE);
  EXPECT_EQ(WidgetOf(first)->geometry(), firstBefore) << "nothing moves before the end";
  // The page's size message destroys a window that is still in the batch.
  page.during = [&](UINT message) {
    if (message == WM_SIZE) CWnd::FromHandle(first)->DestroyWindow();
  };
  EXPECT_TRUE(EndDeferWindowPos(batch));
  EXPECT_FALSE(IsWindow(first));
  EXPECT_EQ(WidgetOf(second)->geometry(), QRect(secondBefore.topLeft(), QSize(60, 30)));
  EXPECT_EQ(WidgetOf(page.m_hWnd)->size(), QSize(33, 44));
  EXPECT_FALSE(EndDeferWindowPos(nullptr));
}

TEST(Window, AsksTheDialogForToolTips) {
  const TestModule module(kDialogs);
  Opened<WatchingDialog> dialog(500);
  dialog.tip = L"what it does";
  const HWND button = dialog.GetDlgItem(100)->m_hWnd;
  EXPECT_EQ(GetToolTipText(button), L"");
  dialog.EnableToolTips();
  EXPECT_EQ(GetToolTipText(button), L"what it does");
  EXPECT_EQ(GetToolTipText(dialog.GetDlgItem(101)->m_hWnd), L"");
}

class WatchingButton : public CButton {
 public:
  std::vector<UINT> seen;
  bool takes = false;
  BOOL PreTranslateMessage(MSG* message) override {
    seen.push_back(static_cast<UINT>(message->wParam));
    return takes;
  }

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    seen.push_back(message);
    if (message == WM_CONTEXTMENU && takes) return 0;
    return CButton::WindowProc(message, wParam, lParam);
  }
};

TEST(Window, OffersKeysBeforeTheControlSeesThem) {
  const TestModule module(kDialogs);
  Opened<TestDialog> dialog(500);
  WatchingButton button;
  ASSERT_TRUE(button.SubclassDlgItem(100, &dialog));
  int clicks = 0;
  QObject::connect(qobject_cast<QAbstractButton*>(ControlWidget(dialog, 100)),
                   &QAbstractButton::clicked, [&] { ++clicks; });
  for (const bool takes : {true, false}) {
    button.takes = takes;
    button.seen.clear();
    QTest::keyClick(ControlWidget(dialog, 100), Qt::Key_Space);
    EXPECT_EQ(button.seen, std::vector<UINT>{0x20});
  }
  EXPECT_EQ(clicks, 1);
  const std::pair<int, UINT> keys[] = {
      {Qt::Key_Enter, VK_RETURN}, {Qt::Key_F4, VK_F4}, {Qt::Key_A, 'A'}, {Qt::Key_F12, 0}};
  for (const auto& [key, expected] : keys) EXPECT_EQ(VirtualKey(key), expected);
}

TEST(Window, ContextMenusAreAskedOfTheControlThenOfItsDialog) {
  const TestModule module(kDialogs);
  Opened<WatchingDialog> dialog(500);
  WatchingButton button;
  ASSERT_TRUE(button.SubclassDlgItem(100, &dialog));
  for (const bool takes : {true, false}) {
    button.takes = takes;
    dialog.seen.clear();
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(1, 1), QPoint(40, 50));
    QApplication::sendEvent(ControlWidget(dialog, 100), &event);
    EXPECT_EQ(dialog.Of(WM_CONTEXTMENU).empty(), takes);
    if (takes) continue;
    EXPECT_EQ(dialog.Of(WM_CONTEXTMENU).front(), MAKELPARAM(40, 50));
  }
}

TEST(Window, LosesTheFocusByMessage) {
  const TestModule module(kDialogs);
  Opened<TestDialog> dialog(500);
  WatchingButton button;
  ASSERT_TRUE(button.SubclassDlgItem(100, &dialog));
  const std::pair<Qt::FocusReason, bool> rows[] = {{Qt::TabFocusReason, true},
                                                   {Qt::PopupFocusReason, false}};
  for (const auto& [reason, told] : rows) {
    button.seen.clear();
    QFocusEvent event(QEvent::FocusOut, reason);
    QApplication::sendEvent(ControlWidget(dialog, 100), &event);
    EXPECT_EQ(button.seen == std::vector<UINT>{WM_KILLFOCUS}, told);
  }
}

class PaintedStatic : public CStatic {
 protected:
  void OnPaint() {
    CPaintDC surface(this);
    surface.FillSolidRect(CRect(0, 0, 10, 10), RGB(1, 2, 3));
  }
  DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PaintedStatic, CStatic)
ON_WM_PAINT()
END_MESSAGE_MAP()

class PaintedDialog : public TestDialog {
 public:
  using TestDialog::TestDialog;

 protected:
  BOOL OnEraseBkgnd(CDC* surface) {
    surface->FillSolidRect(CRect(0, 0, 5, 5), RGB(9, 8, 7));
    return TRUE;
  }
  DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PaintedDialog, TestDialog)
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

TEST(Window, PaintsWhatItsHandlersPaint) {
  const TestModule module({{500, {{L"Static", L"text", 100, kPlain}}}});
  Opened<PaintedDialog> dialog(500);
  PaintedStatic picture;
  ASSERT_TRUE(picture.SubclassDlgItem(100, &dialog));
  dialog.ShowWindow(SW_SHOW);
  const QImage image = WidgetOf(dialog.m_hWnd)->grab().toImage();
  EXPECT_EQ(image.pixelColor(2, 2), QColor(9, 8, 7));
  EXPECT_EQ(image.pixelColor(ControlWidget(dialog, 100)->pos() + QPoint(5, 5)), QColor(1, 2, 3));
}

TEST(Window, SendsToAllDescendants) {
  const TestModule module(kDialogs);
  Opened<WatchingDialog> host(500);
  WatchingDialog page(510);
  ASSERT_TRUE(page.Create(510, &host));
  LOGFONTW description;
  description.lfHeight = -31;
  CFont font;
  ASSERT_TRUE(font.CreateFontIndirect(description));
  host.SendMessageToDescendants(WM_SETFONT, reinterpret_cast<WPARAM>(&font), TRUE);
  EXPECT_EQ(page.Of(WM_SETFONT).size(), 1U);
  EXPECT_TRUE(host.Of(WM_SETFONT).empty());
  EXPECT_EQ(ControlWidget(page, 700)->font().pixelSize(), ToQtFont(font).pixelSize());
  EXPECT_EQ(page.GetDlgItem(700)->GetFont().GetHeight(), font.GetHeight());
}

}  // namespace
