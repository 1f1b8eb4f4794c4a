// Combo boxes, driven by keys.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>

#include "listening_dialog.h"

namespace {

std::vector<std::wstring> Rows(const CComboBox& combo) {
  std::vector<std::wstring> rows;
  for (int row = 0; row < combo.GetCount(); ++row) {
    CString text;
    combo.GetLBText(row, text);
    rows.push_back(text.Str());
  }
  return rows;
}

TEST(Combo, SortsWithoutRegardToCase) {
  ListeningDialog dialog({{L"ComboBox", L"", kControl, kList | CBS_SORT}});
  Bound<CComboBox> combo(dialog);
  const std::pair<const wchar_t*, int> added[] = {
      {L"pear", 0}, {L"Zebra", 1}, {L"apple", 0}, {L"Pear", 1}, {L"banana", 1}};
  for (const auto& [text, row] : added) EXPECT_EQ(combo->AddString(text), row) << text;
  EXPECT_EQ(Rows(combo.control),
            (std::vector<std::wstring>{L"apple", L"banana", L"Pear", L"pear", L"Zebra"}));
  EXPECT_EQ(combo->GetCurSel(), -1);
  EXPECT_EQ(combo->InsertString(0, L"zoo"), 0);
}

TEST(Combo, KeepsSelectionWhenRowsChange) {
  ListeningDialog dialog({{L"ComboBox", L"", kControl, kList}});
  Bound<CComboBox> combo(dialog);
  for (const wchar_t* text : {L"a", L"b", L"c"}) combo->AddString(text);
  EXPECT_EQ(combo->SetCurSel(1), 1);
  combo->InsertString(0, L"new");
  EXPECT_EQ(combo->GetCurSel(), 2);
  EXPECT_EQ(combo->DeleteString(0), 3);
  EXPECT_EQ(combo->GetCurSel(), 1);
  combo->DeleteString(1);
  EXPECT_EQ(combo->GetCurSel(), -1);
  EXPECT_EQ(combo->SetCurSel(5), CB_ERR);
  EXPECT_EQ(combo->DeleteString(9), CB_ERR);
  EXPECT_EQ(combo->InsertString(9, L"x"), CB_ERR);
  EXPECT_EQ(combo->SetItemData(9, 1), CB_ERR);
  EXPECT_EQ(combo->SetItemData(1, ~DWORD_PTR{0}), 0);
  EXPECT_EQ(combo->GetItemData(1), ~DWORD_PTR{0});
}

TEST(Combo, FindsExactTextsAroundTheEnd) {
  ListeningDialog dialog({{L"ComboBox", L"", kControl, kList}});
  Bound<CComboBox> combo(dialog);
  for (const wchar_t* text : {L"One", L"two", L"ONE"}) combo->AddString(text);
  const struct {
    int after;
    const wchar_t* text;
    int row;
  } rows[] = {{-1, L"one", 0}, {0, L"one", 2}, {2, L"one", 0}, {99, L"TWO", 1}, {-1, L"on", -1}};
  for (const auto& row : rows) {
    EXPECT_EQ(combo->FindStringExact(row.after, row.text), row.row) << row.after;
    EXPECT_EQ(static_cast<int>(combo->SendMessage(CB_FINDSTRINGEXACT, WPARAM(row.after),
                                                  reinterpret_cast<LPARAM>(row.text))),
              row.row);
  }
}

TEST(Combo, TellsOnlyOfTheUsersChoice) {
  ListeningDialog dialog({{L"ComboBox", L"", kControl, kList}});
  Bound<CComboBox> combo(dialog);
  for (const wchar_t* text : {L"a", L"b", L"c"}) combo->AddString(text);
  combo->SetCurSel(0);
  auto& widget = dialog.At<QComboBox>();
  widget.setFocus();
  EXPECT_EQ(dialog.Take(), Notes{});
  QTest::keyClick(&widget, Qt::Key_Down);
  EXPECT_EQ(combo->GetCurSel(), 1);
  EXPECT_EQ(dialog.Take(), (Notes{{CBN_SELCHANGE, kControl}}));

  combo->ShowDropDown();
  ASSERT_TRUE(combo->GetDroppedState());
  EXPECT_EQ(dialog.Take(), (Notes{{CBN_DROPDOWN, kControl}}));
  QTest::keyClick(widget.view(), Qt::Key_Return);
  EXPECT_EQ(dialog.Take(), (Notes{{CBN_CLOSEUP, kControl}})) << "the row chosen already";

  combo->ShowDropDown();
  QTest::keyClick(widget.view(), Qt::Key_Down);
  EXPECT_EQ(combo->GetCurSel(), 2) << "the row highlighted";
  QTest::keyClick(widget.view(), Qt::Key_Return);
  EXPECT_EQ(dialog.Take(),
            (Notes{{CBN_DROPDOWN, kControl}, {CBN_CLOSEUP, kControl}, {CBN_SELCHANGE, kControl}}));

  combo->ShowDropDown();
  QTest::keyClick(widget.view(), Qt::Key_Up);
  QTest::keyClick(widget.view(), Qt::Key_Escape);
  EXPECT_FALSE(combo->GetDroppedState());
  EXPECT_EQ(combo->GetCurSel(), 2);
}

TEST(Combo, ClosesAtOnceWithoutRows) {
  ListeningDialog dialog({{L"ComboBox", L"", kControl, kList}});
  Bound<CComboBox> combo(dialog);
  combo->ShowDropDown();
  EXPECT_FALSE(combo->GetDroppedState());
  EXPECT_EQ(dialog.Take(), (Notes{{CBN_DROPDOWN, kControl}, {CBN_CLOSEUP, kControl}}));
}

TEST(Combo, KeepsTypedTextApartFromRows) {
  ListeningDialog dialog({{L"ComboBox", L"", kControl, kEditable}, {L"Edit", L"", kSecond}});
  Bound<CComboBox> combo(dialog);
  auto& widget = dialog.At<QComboBox>();
  widget.setFocus();
  QTest::keyClicks(&widget, QStringLiteral("al"));
  EXPECT_EQ(dialog.Take(), (Notes{{CBN_EDITCHANGE, kControl}, {CBN_EDITCHANGE, kControl}}));
  for (const wchar_t* text : {L"alpha", L"al", L"beta"}) combo->AddString(text);
  CString text;
  combo->GetWindowText(text);
  EXPECT_EQ(text, L"al") << "nothing is completed, and adding rows changes no text";
  EXPECT_EQ(combo->GetCurSel(), -1);
  dialog.At(kSecond).setFocus();
  EXPECT_EQ(combo->GetCurSel(), -1) << "leaving chooses no row";
  combo->SetCurSel(2);
  combo->GetWindowText(text);
  EXPECT_EQ(text, L"beta");
  EXPECT_TRUE(combo->SendMessage(CB_SETEDITSEL, 0, MAKELPARAM(1, -1)));
  DWORD start = 0;
  DWORD end = 0;
  combo->SendMessage(CB_GETEDITSEL, reinterpret_cast<WPARAM>(&start),
                     reinterpret_cast<LPARAM>(&end));
  EXPECT_EQ(std::pair(start, end), std::pair(1U, 4U));
  EXPECT_EQ(dialog.Take(), Notes{});
}

TEST(Combo, KeepsTheFocusWhileDropped) {
  ListeningDialog dialog({{L"ComboBox", L"", kControl, kList}, {L"Edit", L"", kSecond}});
  struct Listener : CComboBox {
    int lost = 0;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
      if (message == WM_KILLFOCUS) lost += GetDroppedState() != FALSE ? 10 : 1;
      return CComboBox::WindowProc(message, wParam, lParam);
    }
  };
  Bound<Listener> combo(dialog);
  combo->AddString(L"a");
  dialog.At().setFocus();
  combo->ShowDropDown();
  EXPECT_EQ(combo->lost, 0);
  dialog.At(kSecond).setFocus();
  EXPECT_EQ(combo->lost, 10);
  EXPECT_FALSE(combo->GetDroppedState());
}

TEST(Combo, IsOneRowHigh) {
  ListeningDialog dialog(
      {{L"ComboBox", L"", kControl, kList, 7, 7, 50, 100}, {L"Edit", L"", kSecond}});
  const QWidget& widget = dialog.At();
  EXPECT_EQ(widget.height(), widget.sizeHint().height());
  EXPECT_LT(widget.height(), 3 * widget.fontMetrics().height());
  const int before = widget.height();
  LOGFONTW large;
  large.lfHeight = 60;
  CFont font;
  font.CreateFontIndirect(large);
  dialog.GetDlgItem(kControl)->SetFont(font);
  EXPECT_GT(widget.height(), before);
}

}  // namespace
