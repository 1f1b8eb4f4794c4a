#include "platform/list_box.h"

#include <gtest/gtest.h>

#include <QListWidget>
#include <QPlainTextEdit>

#include "dialog_script.h"
#include "platform/application.h"

namespace {

constexpr int kList = 100;
constexpr int kEdit = 102;

const std::vector<DialogSource> kDialogs = {
    {500,
     {{L"ListBox", L"Things", kList, kStop | LBS_NOTIFY, 7, 7, 80, 100},
      {L"Button", L"After", 101, kStop, 100, 7}}},
    {501, {{L"LISTBOX", L"", kList, kStop, 7, 7, 80, 100}}}};

/// Counts the notifications of its list, which has the rows "a", a separator, "b" and "c".
class ListDialog : public CDialog {
 public:
  explicit ListDialog(UINT id) : CDialog(id) {
    EXPECT_TRUE(Create(id, nullptr));
    EXPECT_TRUE(list.SubclassDlgItem(kList, this));
    EXPECT_EQ(list.AddString(L"a"), 0);
    EXPECT_EQ(list.AddSeparator(), 1);
    EXPECT_EQ(list.AddString(L"b"), 2);
    EXPECT_EQ(list.AddString(L"c"), 3);
    ShowWindow(SW_SHOW);
    WidgetOf(m_hWnd)->activateWindow();
    ToolkitApplication::ProcessEvents();
  }

  QListWidget& Widget() { return *static_cast<QListWidget*>(ControlWidget(*this, kList)); }
  void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    const QRect place = Widget().visualItemRect(Widget().item(row));
    QTest::mouseClick(Widget().viewport(), Qt::LeftButton, modifiers, place.center());
  }

  CBCGPListBox list;
  std::vector<int> selected;

 protected:
  void OnSelected() { selected.push_back(list.GetCurSel()); }
  DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ListDialog, CDialog)
ON_LBN_SELCHANGE(kList, &ThisClass::OnSelected)
END_MESSAGE_MAP()

TEST(ListBox, TellsWhatTheUserSelectsAndNothingElse) {
  const TestModule module(kDialogs);
  ListDialog dialog(500);
  dialog.Widget().setFocus();
  EXPECT_EQ(dialog.list.GetCurSel(), LB_ERR);
  EXPECT_EQ(dialog.list.SetCurSel(2), 2);
  EXPECT_EQ(dialog.list.SetCurSel(4), LB_ERR);
  EXPECT_EQ(dialog.list.GetCurSel(), LB_ERR);
  EXPECT_TRUE(dialog.selected.empty());
  dialog.ClickRow(1);
  dialog.ClickRow(1);
  dialog.ClickRow(3, Qt::ControlModifier);
  dialog.ClickRow(3, Qt::ControlModifier);
  QTest::keyClick(&dialog.Widget(), Qt::Key_Up);
  EXPECT_EQ(dialog.selected, (std::vector<int>{1, 3, 2}));
  EXPECT_TRUE(dialog.Widget().item(2)->isSelected());
}

TEST(ListBox, SaysNothingWithoutTheStyleThatAsksForIt) {
  const TestModule module(kDialogs);
  ListDialog dialog(501);
  dialog.ClickRow(2);
  EXPECT_EQ(dialog.list.GetCurSel(), 2);
  EXPECT_TRUE(dialog.selected.empty());
}

TEST(ListBox, KeepsDataAndSeparators) {
  const TestModule module(kDialogs);
  ListDialog dialog(500);
  EXPECT_EQ(dialog.list.GetCount(), 4);
  EXPECT_EQ(dialog.list.SetItemData(3, 77), 0);
  EXPECT_EQ(dialog.list.SetItemData(4, 77), LB_ERR);
  const std::vector<DWORD_PTR> data = {0, 0, 0, 77, 0};
  for (int row = 0; row < 5; ++row) {
    EXPECT_EQ(dialog.list.GetItemData(row), data[static_cast<std::size_t>(row)]);
    EXPECT_EQ(dialog.list.IsSeparatorItem(row), row == 1);
  }
  EXPECT_LT(dialog.Widget().visualItemRect(dialog.Widget().item(1)).height(),
            dialog.Widget().visualItemRect(dialog.Widget().item(0)).height());
}

TEST(ListBox, NamesAndPlacesOfControlsMadeAtRunTime) {
  const TestModule module(kDialogs);
  ListDialog dialog(500);
  CWnd* edit = CWnd::FromHandle(CreateWindowChild(L"Edit", L"", kStop | ES_MULTILINE,
                                                  CRect(100, 60, 200, 90), &dialog, kEdit));
  EXPECT_FALSE(edit->SetWindowPos(edit, 0, 0, 9, 9, SWP_NOMOVE));
  EXPECT_FALSE(edit->SetWindowPos(&dialog, 0, 0, 9, 9, SWP_NOMOVE));
  EXPECT_EQ(GetChildRect(edit->m_hWnd).Width(), 100);
  EXPECT_TRUE(edit->SetWindowPos(&dialog.list, 0, 0, 90, 30, SWP_NOMOVE));
  EXPECT_EQ(GetChildRect(edit->m_hWnd).Width(), 90);
  std::vector<int> order;
  for (const HWND child : GetChildWindows(dialog.m_hWnd)) order.push_back(GetDlgCtrlID(child));
  EXPECT_EQ(order, (std::vector<int>{kList, kEdit, 101}));
  dialog.list.SetFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(CWnd::GetFocus()->GetDlgCtrlID(), kEdit);
  EXPECT_EQ(dialog.Widget().accessibleName(), "Things");
  SetAccessibleName(dialog.list.m_hWnd, L"Others");
  SetAccessibleName(edit->m_hWnd, L"Text");
  edit->SetWindowText(L"what the user typed");
  EXPECT_EQ(dialog.Widget().accessibleName(), "Others");
  EXPECT_EQ(WidgetOf(edit->m_hWnd)->accessibleName(), "Text");
}

TEST(MultiLineEdit, KeepsEveryCharacterOfItsText) {
  const TestModule module(kDialogs);
  ListDialog dialog(500);
  CWnd* edit = CWnd::FromHandle(CreateWindowChild(L"Edit", L"", kStop | ES_MULTILINE | WS_HSCROLL,
                                                  CRect(0, 0, 90, 90), &dialog, kEdit));
  EXPECT_EQ(static_cast<QPlainTextEdit*>(WidgetOf(edit->m_hWnd))->lineWrapMode(),
            QPlainTextEdit::NoWrap);
  // A blank that does not break, and a line separator inside an entry.
  const std::wstring text = L"a\u00A0b\r\n\r\nc\u2028d\r\n";
  edit->SetWindowText(text);
  EXPECT_EQ(GetWindowText(edit->m_hWnd), text);
}

TEST(ListBox, RowsComeAndGoWithoutNotice) {
  const TestModule module(kDialogs);
  ListDialog dialog(500);
  CListBox& list = dialog.list;
  const auto rows = [&] {
    QStringList texts;
    for (int row = 0; row < list.GetCount(); ++row) texts << dialog.Widget().item(row)->text();
    return texts.join('|');
  };
  list.SetCurSel(2);
  EXPECT_EQ(list.InsertString(0, L"first"), 0);
  EXPECT_EQ(list.InsertString(-1, L"last"), 5);
  EXPECT_EQ(rows(), "first|a||b|c|last");
  EXPECT_EQ(list.GetCurSel(), 3) << "the row stays selected";
  EXPECT_EQ(list.DeleteString(0), 5);
  EXPECT_EQ(list.GetCurSel(), 2);
  EXPECT_EQ(list.DeleteString(2), 4);
  EXPECT_EQ(list.GetCurSel(), LB_ERR) << "no neighbour takes its place";
  EXPECT_EQ(rows(), "a||c|last");
  for (const int outside : {-2, 5}) EXPECT_EQ(list.InsertString(outside, L"x"), LB_ERR);
  for (const UINT outside : {4U, 0xFFFFFFFFU}) EXPECT_EQ(list.DeleteString(outside), LB_ERR);
  EXPECT_EQ(rows(), "a||c|last");
  EXPECT_TRUE(dialog.selected.empty());
}

}  // namespace
