#include "foundation/geometry.h"

#include <gtest/gtest.h>

#include <functional>

#include "environment.h"
#include "fake_language.h"
#include "foundation/translate_dialog.h"
#include "platform/application.h"
#include "platform/controls.h"
#include "resources/resource.h"

namespace {

constexpr int kButton = 6001;
constexpr int kEdit = 6002;
constexpr int kFree = 6003;
constexpr int kCombo = 6004;
constexpr DWORD kShown = WS_CHILD | WS_VISIBLE;

/// A dialog whose controls a test makes and binds in its set-up.
class TestDialog : public CBaseTranslateDialog, public Geometry::ILayout {
 public:
  TestDialog() : CBaseTranslateDialog(IDD_MESSAGE_BOX) {}
  std::function<void(TestDialog&)> setUp;

  HWND Add(const wchar_t* className, int id, const CRect& rect, DWORD style = 0,
           const wchar_t* text = L"") {
    return CreateWindowChild(className, text, kShown | style, rect, this, id);
  }
  void AddMarker(const wchar_t* text, const CRect& rect, DWORD style = BS_GROUPBOX) {
    ShowWindowOf(Add(L"Button", Geometry::kNoControlNumber, rect, style, text), SW_HIDE);
  }
  void Bind(int id, std::wstring_view text) {
    const Geometry::ControlConstraint row{id, text};
    Geometry::BindControls(*this, this, {&row, 1});
  }
  CRect RectOf(int id) const { return GetChildRect(GetDlgItem(id)->m_hWnd); }
  static void ShowWindowOf(HWND window, int command) {
    CWnd::FromHandle(window)->ShowWindow(command);
  }

 protected:
  BOOL OnInitDialog() override {
    CBaseTranslateDialog::OnInitDialog();
    setUp(*this);
    return TRUE;
  }
};

/// The dialog with its window, and size messages for client areas that differ from the initial one.
class Fixture : public testing::Test {
 protected:
  void Open(std::function<void(TestDialog&)> setUp) {
    dialog.setUp = std::move(setUp);
    ASSERT_TRUE(dialog.Create(IDD_MESSAGE_BOX, nullptr));
    dialog.GetClientRect(client_);
  }
  void Grow(int dx, int dy, UINT type = SIZE_RESTORED) {
    dialog.SendMessage(WM_SIZE, type, MAKELPARAM(client_.Width() + dx, client_.Height() + dy));
  }

  Geometry::CGeometryWnd<TestDialog> dialog;
  CRect client_;
};

const CRect kButtonRect(200, 100, 250, 120);
const CRect kEditRect(10, 10, 110, 30);
const CRect kFreeRect(10, 40, 60, 60);

void AddControls(TestDialog& dialog) {
  dialog.Add(L"Button", kButton, kButtonRect);
  dialog.Add(L"Edit", kEdit, kEditRect);
  dialog.Add(L"Button", kFree, kFreeRect);
}

void AddAndBind(TestDialog& dialog) {
  AddControls(dialog);
  dialog.Bind(kButton, L"X+Y");
  dialog.Bind(kEdit, L"CX");
}

CRect Moved(CRect rect, int dx, int dy) {
  rect.OffsetRect(dx, dy);
  return rect;
}

CRect Widened(CRect rect, int dx) {
  rect.right += dx;
  return rect;
}

using GeometryTest = Fixture;

TEST_F(GeometryTest, GrowsAndShrinksBack) {
  Open(AddAndBind);
  Grow(100, 40);
  EXPECT_EQ(dialog.RectOf(kButton), Moved(kButtonRect, 100, 40));
  EXPECT_EQ(dialog.RectOf(kEdit), Widened(kEditRect, 100));
  EXPECT_EQ(dialog.RectOf(kFree), kFreeRect);
  Grow(0, 0);
  EXPECT_EQ(dialog.RectOf(kButton), kButtonRect);
  EXPECT_EQ(dialog.RectOf(kEdit), kEditRect);
  Grow(-50, -50);
  EXPECT_EQ(dialog.RectOf(kButton), kButtonRect);
}

TEST_F(GeometryTest, FollowsTheRealWindow) {
  Open(AddAndBind);
  dialog.ShowWindow(SW_SHOW);
  CRect window;
  dialog.GetWindowRect(window);
  window.right += 30;
  window.bottom += 20;
  dialog.MoveWindow(window);
  EXPECT_EQ(dialog.RectOf(kButton), Moved(kButtonRect, 30, 20));
}

TEST_F(GeometryTest, PositionsSetDuringSetUpAreTheFirstOnes) {
  const CRect late(150, 90, 200, 110);
  Open([&](TestDialog& it) {
    AddAndBind(it);
    it.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(3000, 3000));
    it.GetDlgItem(kButton)->MoveWindow(late);
  });
  EXPECT_EQ(dialog.RectOf(kButton), late);
  EXPECT_EQ(dialog.RectOf(kEdit), kEditRect);
  Grow(10, 0);
  EXPECT_EQ(dialog.RectOf(kButton), Moved(late, 10, 0));
}

TEST_F(GeometryTest, BindingAgainKeepsTheFirstRectangle) {
  Open(AddAndBind);
  Grow(100, 40);
  dialog.Bind(kButton, L"Y");
  Grow(50, 50);
  EXPECT_EQ(dialog.RectOf(kButton), Moved(kButtonRect, 0, 50));
  dialog.Bind(kFree, L"X");
  Grow(60, 50);
  EXPECT_EQ(dialog.RectOf(kFree), Moved(kFreeRect, 60, 0)) << "its first rectangle is that of now";
}

TEST_F(GeometryTest, BindsBeforeTheControlExists) {
  Open([](TestDialog& it) {
    Geometry::CConstraint constraint;
    Geometry::ParseConstraint(L"X", constraint);
    EXPECT_TRUE(it.BindControl(kButton, constraint, nullptr));
    AddControls(it);
    it.Bind(6099, L"X");
  });
  Grow(15, 0);
  EXPECT_EQ(dialog.RectOf(kButton), Moved(kButtonRect, 15, 0));
}

TEST_F(GeometryTest, UnboundControlsStay) {
  Open(AddAndBind);
  dialog.UnbindControl(kButton);
  dialog.UnbindControl(6099);
  Grow(100, 40);
  EXPECT_EQ(dialog.RectOf(kButton), kButtonRect);
  EXPECT_EQ(dialog.RectOf(kEdit), Widened(kEditRect, 100));
  dialog.UnbindAll();
  Grow(10, 4);
  EXPECT_EQ(dialog.RectOf(kEdit), Widened(kEditRect, 100));
}

TEST_F(GeometryTest, LaysOutOnlyWhileEnabledAndNotMinimised) {
  Open(AddAndBind);
  dialog.EnableGeometry(false);
  Grow(100, 40);
  EXPECT_EQ(dialog.RectOf(kButton), kButtonRect);
  dialog.ApplyLayout();
  EXPECT_EQ(dialog.RectOf(kButton), Moved(kButtonRect, 100, 40));
  dialog.EnableGeometry(true);
  Grow(0, 0, SIZE_MINIMIZED);
  EXPECT_EQ(dialog.RectOf(kButton), Moved(kButtonRect, 100, 40));
}

TEST_F(GeometryTest, ARepeatedSizeDoesNothing) {
  Open(AddAndBind);
  Grow(100, 40);
  dialog.GetDlgItem(kButton)->MoveWindow(kButtonRect);
  Grow(100, 40);
  EXPECT_EQ(dialog.RectOf(kButton), kButtonRect);
}

TEST_F(GeometryTest, AControlThatIsGoneIsPassedOver) {
  Open(AddAndBind);
  dialog.GetDlgItem(kButton)->DestroyWindow();
  Grow(20, 20);
  EXPECT_EQ(dialog.RectOf(kEdit), Widened(kEditRect, 20));
}

TEST_F(GeometryTest, StopsAtTheGreatestLayoutSize) {
  Open(AddAndBind);
  dialog.SetMaxLayoutSize(client_.Width() + 30, 0);
  Grow(100, 40);
  EXPECT_EQ(dialog.RectOf(kButton), Moved(kButtonRect, 30, 40));
  EXPECT_EQ(dialog.RectOf(kEdit), Widened(kEditRect, 30));
}

TEST_F(GeometryTest, CannotBecomeSmallerThanAtFirst) {
  Open(AddAndBind);
  CRect window;
  dialog.GetWindowRect(window);
  MINMAXINFO info;
  dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
  EXPECT_EQ(info.ptMinTrackSize.x, window.Width());
  EXPECT_EQ(info.ptMinTrackSize.y, window.Height());
  EXPECT_GT(info.ptMinTrackSize.x, 0);
}

TEST_F(GeometryTest, TheShownWindowKeepsItsFirstClientArea) {
  Open([](TestDialog& it) { it.EnableLayout(); });
  dialog.ShowWindow(SW_SHOW);
  ToolkitApplication::ProcessEvents();
  dialog.MoveWindow(CRect(0, 0, 40, 30));
  CRect client;
  dialog.GetClientRect(client);
  EXPECT_EQ(client, client_);
}

TEST_F(GeometryTest, TextAndSelectionSurviveTheMove) {
  const CRect rect(10, 70, 110, 90);
  Open([&](TestDialog& it) {
    it.Add(L"ComboBox", kCombo, rect, CBS_DROPDOWN);
    it.Bind(kCombo, L"CX+R");
    it.SetDlgItemText(kCombo, L"some text");
    it.GetDlgItem(kCombo)->SendMessage(CB_SETEDITSEL, 0, MAKELPARAM(2, 6));
  });
  const int width = dialog.RectOf(kCombo).Width();
  Grow(25, 0);
  EXPECT_EQ(dialog.RectOf(kCombo).Width(), width + 25);
  EXPECT_EQ(GetWindowText(dialog.GetDlgItem(kCombo)->m_hWnd), L"some text");
  EXPECT_EQ(dialog.GetDlgItem(kCombo)->SendMessage(CB_GETEDITSEL), MAKELPARAM(2, 6));
}

TEST_F(GeometryTest, MarkersBindWhatLiesInside) {
  const CRect label(205, 70, 245, 90);
  HWND inside = nullptr, outside = nullptr;
  Open([&](TestDialog& it) {
    AddAndBind(it);
    outside = it.Add(L"Static", Geometry::kNoControlNumber, kFreeRect);
    inside = it.Add(L"Static", Geometry::kNoControlNumber, label);
    it.AddMarker(L"$Geometry:CX", CRect(190, 60, 260, 130));
    it.AddMarker(L"$Geometry:Y", CRect(195, 95, 255, 125));
    it.AddMarker(L"$geometry:X", CRect(0, 0, 500, 500));
    it.AddMarker(L"$Geometry:X", CRect(0, 0, 500, 500), BS_PUSHBUTTON);
    it.Add(L"Button", Geometry::kNoControlNumber, CRect(0, 0, 500, 500), BS_GROUPBOX,
           L"$Geometry:X");
  });
  Grow(30, 20);
  EXPECT_EQ(dialog.RectOf(kButton), Moved(kButtonRect, 0, 20)) << "the later marker counts";
  EXPECT_EQ(dialog.RectOf(kEdit), Widened(kEditRect, 30)) << "outside of every marker";
  EXPECT_EQ(GetChildRect(inside), Widened(label, 30));
  EXPECT_EQ(GetChildRect(outside), kFreeRect);
}

struct LayoutValueCase {
  const wchar_t* value;
  int widest;  ///< Greatest layout width; 0 for none.
};

TEST(TranslatedDialog, TakesTheGreatestWidthFromTheLanguage) {
  for (const LayoutValueCase& row :
       {LayoutValueCase{L"600", 600}, {L"700px", 700}, {L"0", 0}, {L"wide", 0}, {L"-600", 0}}) {
    const auto language = std::make_shared<FakeLanguage>();
    language->values[{IDD_MESSAGE_BOX, 1}] = row.value;
    const ScopedLanguage scope(language);
    Geometry::CGeometryWnd<TestDialog> dialog;
    dialog.setUp = AddAndBind;
    ASSERT_TRUE(dialog.Create(IDD_MESSAGE_BOX, nullptr));
    CRect client;
    dialog.GetClientRect(client);
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(1000, 2000));
    const int width = row.widest != 0 ? row.widest : 1000;
    EXPECT_EQ(dialog.RectOf(kButton),
              Moved(kButtonRect, width - client.Width(), 2000 - client.Height()))
        << ToUtf8(row.value);
  }
}

TEST(TranslatedDialog, ToolTipsComeFromTheStringTable) {
  const ScopedLanguage scope(std::make_shared<FakeLanguage>());
  constexpr int kWithText = 5127, kWithout = 6005;
  Geometry::CGeometryWnd<TestDialog> dialog;
  HWND with = nullptr, without = nullptr;
  dialog.setUp = [&](TestDialog& it) {
    with = it.Add(L"Button", kWithText, kButtonRect);
    without = it.Add(L"Button", kWithout, kFreeRect);
  };
  ASSERT_TRUE(dialog.Create(IDD_MESSAGE_BOX, nullptr));
  const auto ask = [&](UINT_PTR id, UINT flags) {
    TOOLTIPTEXTW tip;
    tip.hdr = {nullptr, id, TTN_NEEDTEXTW};
    tip.uFlags = flags;
    dialog.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&tip));
    return std::wstring(tip.lpszText != nullptr ? tip.lpszText : L"");
  };
  EXPECT_EQ(ask(reinterpret_cast<UINT_PTR>(with), TTF_IDISHWND), L"[-1 {5}]");
  EXPECT_EQ(ask(reinterpret_cast<UINT_PTR>(without), TTF_IDISHWND), L"");
  EXPECT_EQ(ask(kWithText, 0), L"");
}

}  // namespace
