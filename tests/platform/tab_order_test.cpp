#include <gtest/gtest.h>

#include <QLabel>

#include "dialog_script.h"
#include "platform/application.h"

namespace {

constexpr DWORD kRadio = kPlain | BS_AUTORADIOBUTTON;

const std::vector<DialogSource> kDialogs = {
    {500,
     {{L"SysTreeView32", L"", 100},
      {L"Button", L"Frame", -1, kPlain | BS_GROUPBOX},
      {L"Button", L"Defaults", 101},
      {L"Button", L"OK", IDOK, kStop | BS_DEFPUSHBUTTON},
      {L"Button", L"No stop", 102, kPlain},
      {L"Button", L"Cancel", IDCANCEL}}},
    {510,
     {{L"Static", L"&First:", 600, kPlain},
      {L"Edit", L"", 601},
      {L"Static", L"", 602, kPlain},
      {L"ComboBox", L"", 603, kStop | CBS_DROPDOWNLIST},
      {L"Button", L"&A && B", 604, kStop | BS_AUTOCHECKBOX},
      {L"Edit", L"", 605, kStop | ES_MULTILINE},
      {L"Button", L"R0", 610, kRadio | WS_TABSTOP | WS_GROUP},
      {L"Button", L"R1", 611, kRadio},
      {L"Button", L"R2", 612, kRadio},
      {L"Button", L"S0", 620, kRadio | WS_TABSTOP | WS_GROUP},
      {L"Button", L"S1", 621, kRadio}},
     WS_CHILD | WS_VISIBLE},
    {520,
     {{L"Edit", L"", 700},
      {L"Static", L"Introduction && more", 701, kPlain},
      {L"Edit", L"", 702},
      {L"Static", L"&Last:", 703, kPlain},
      {L"Static", L"Explanation", 704, kPlain}},
     WS_CHILD | WS_VISIBLE}};

/// A host with its page, open.
class TabOrder : public testing::Test {
 protected:
  void SetUp() override {
    int row = 0;
    ASSERT_TRUE(host_.Create(500, nullptr));
    ASSERT_TRUE(page_.Create(510, &host_));
    for (const HWND child : GetChildWindows(page_.m_hWnd))
      CWnd::FromHandle(child)->SetWindowPos(0, 20 * row++, 80, 18, SWP_NOZORDER);
    page_.SetWindowPos(0, 0, 300, 300, SWP_NOZORDER);
    host_.ShowWindow(SW_SHOW);
    WidgetOf(host_.m_hWnd)->activateWindow();
    ToolkitApplication::ProcessEvents();
  }

  static int Focus() { return CWnd::GetFocus()->GetDlgCtrlID(); }
  static void Press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
  std::vector<int> Stops(Qt::Key key, int from) {
    CWnd* start =
        host_.GetDlgItem(from) != nullptr ? host_.GetDlgItem(from) : page_.GetDlgItem(from);
    start->SetFocus();
    std::vector<int> stops{Focus()};
    do {
      Press(key);
      stops.push_back(Focus());
    } while (stops.back() != from && stops.size() < 20);
    return stops;
  }
  QString NameOf(int id) { return ControlWidget(page_, id)->accessibleName(); }

  TestModule module_{kDialogs};
  TestDialog host_{500}, page_{510};
};

TEST_F(TabOrder, FollowsTheTemplatesWithThePageBeforeTheButtons) {
  page_.CheckDlgButton(611, BST_CHECKED);
  const std::vector<int> forth = {100, 601, 603, 604, 605, 611, 620, 101, IDOK, IDCANCEL, 100};
  // A multi-line edit takes Tab as a character unless it is told otherwise.
  EXPECT_EQ(Stops(Qt::Key_Tab, 100), forth);
  EXPECT_EQ(Stops(Qt::Key_Backtab, 100), std::vector<int>(forth.rbegin(), forth.rend()));
}

TEST_F(TabOrder, ArrowsStayInTheirRadioGroup) {
  page_.CheckDlgButton(610, BST_CHECKED);
  page_.CheckDlgButton(620, BST_CHECKED);
  page_.GetDlgItem(610)->SetFocus();
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  EXPECT_EQ(Focus(), 612);
  Press(Qt::Key_Down);
  EXPECT_GE(Focus(), 610);
  EXPECT_LE(Focus(), 612);
  EXPECT_EQ(page_.IsDlgButtonChecked(static_cast<int>(Focus())), 1U);
  EXPECT_EQ(page_.IsDlgButtonChecked(620), 1U) << "another group";
}

TEST_F(TabOrder, NamesControlsAfterTheTextBeforeThem) {
  EXPECT_EQ(NameOf(601), QStringLiteral("First"));
  EXPECT_EQ(NameOf(603), QStringLiteral("First"));
  EXPECT_EQ(NameOf(604), QStringLiteral("A & B"));
  EXPECT_EQ(NameOf(605), QStringLiteral("A & B"));
  page_.SetDlgItemText(600, L"Pre&nom :");
  page_.SetDlgItemText(602, L"Choice");
  page_.SetDlgItemText(601, L"content");
  EXPECT_EQ(NameOf(601), QStringLiteral("Prenom"));
  EXPECT_EQ(NameOf(603), QStringLiteral("Choice"));
  EXPECT_EQ(NameOf(605), QStringLiteral("A & B"));
}

TEST_F(TabOrder, LabelsLeadToTheirControls) {
  host_.GetDlgItem(100)->SetFocus();
  auto* label = qobject_cast<QLabel*>(ControlWidget(page_, 600));
  EXPECT_EQ(label->buddy(), ControlWidget(page_, 601));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::AltModifier);
  EXPECT_EQ(Focus(), 601);
}

TEST_F(TabOrder, ALabelWithAKeyBehindTheLastControlLeadsToTheFirst) {
  TestDialog other(520);
  ASSERT_TRUE(other.Create(520, &host_));
  const auto buddy = [&other](int id) {
    return qobject_cast<QLabel*>(ControlWidget(other, id))->buddy();
  };
  EXPECT_EQ(buddy(701), ControlWidget(other, 702));
  EXPECT_EQ(buddy(703), ControlWidget(other, 700));
  EXPECT_EQ(buddy(704), nullptr);
  EXPECT_EQ(ControlWidget(other, 700)->accessibleName(), QStringLiteral("Last"));
  EXPECT_EQ(ControlWidget(other, 702)->accessibleName(), QStringLiteral("Introduction & more"));
  other.SetDlgItemText(703, L"Path");
  EXPECT_EQ(ControlWidget(other, 702)->accessibleName(), QStringLiteral("Introduction & more"));
}

TEST_F(TabOrder, ControlsMadeAtRunTimeJoin) {
  const HWND made = CreateWindowChild(L"BUTTON", L"New", kStop, CRect(0, 0, 9, 9), &page_, 650);
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(WidgetOf(made)->objectName(), QStringLiteral("510/650"));
  EXPECT_EQ(WidgetOf(made)->property("templateOrder").toInt(), 11);
  const std::vector<int> stops = Stops(Qt::Key_Tab, 620);
  EXPECT_EQ(stops[1], 650);
  EXPECT_EQ(stops[2], 101);
  EXPECT_EQ(CreateWindowChild(L"NoSuchClass", L"", kStop, CRect(), &page_, 651), nullptr);
}

}  // namespace
