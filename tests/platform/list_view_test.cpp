#include "platform/list_ctrl.h"

#include <QAccessible>
#include <QScrollBar>

#include "listening_dialog.h"
#include "platform/qt/list_peer.h"

namespace {

constexpr DWORD kReport = kStop | LVS_REPORT | LVS_SHOWSELALWAYS;
constexpr DWORD kFlow = kStop | LVS_LIST;
constexpr UINT kAllStates = LVIS_FOCUSED | LVIS_SELECTED | LVIS_STATEIMAGEMASK;
constexpr UINT kOff = INDEXTOSTATEIMAGEMASK(1), kOn = INDEXTOSTATEIMAGEMASK(2);

/// A dialog with one list that keeps what the list tells: code, row and the new state.
class ListViewDialog : public CBCGPDialog {
 public:
  struct Told {
    UINT code;
    int row;
    UINT state;
    bool operator==(const Told&) const = default;
    friend void PrintTo(const Told& told, std::ostream* out) {
      *out << int(told.code) << " row " << told.row << " state " << told.state;
    }
  };

  explicit ListViewDialog(DWORD style, int rows = 0, DWORD extended = 0)
      : CBCGPDialog(kTemplate),
        module_({{kTemplate,
                  {{L"SYSLISTVIEW32", L"Things", kControl, style, 7, 7, 160, 60},
                   {L"Button", L"OK", IDOK, kStop | BS_DEFPUSHBUTTON, 7, 80}}}}) {
    EXPECT_TRUE(Create(kTemplate, nullptr));
    EXPECT_TRUE(list.SubclassDlgItem(kControl, this));
    list.SetExtendedStyle(extended);
    for (int row = 0; row < rows; ++row) EXPECT_EQ(list.InsertItem(row, Label(row)), row);
    ShowWindow(SW_SHOW);
    WidgetOf(m_hWnd)->activateWindow();
    ToolkitApplication::ProcessEvents();
    WidgetOf(m_hWnd)->findChild<QPushButton*>()->setFocus();
    told.clear();
  }

  static CString Label(int row) {
    return std::wstring(1, static_cast<wchar_t>(L'a' + row % 26)) + L" row";
  }
  ListView& View() { return FindPeerAs<ListPeer>(list.m_hWnd)->View(); }
  QWidget& Ground() { return *View().viewport(); }
  QPoint Below() { return Ground().rect().bottomRight() - QPoint(1, 1); }
  void Click(int row, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(&Ground(), Qt::LeftButton, modifiers, View().RowRect(row).center());
  }
  void ClickBox(int row) {
    QTest::mouseClick(&Ground(), Qt::LeftButton, {}, View().CheckBoxRect(row).center());
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    View().setFocus();
    QTest::keyClick(&View(), key, modifiers);
  }
  std::vector<int> Selected() const {
    std::vector<int> rows;
    for (POSITION at = list.GetFirstSelectedItemPosition(); at != 0;) {
      rows.push_back(list.GetNextSelectedItem(at));
    }
    return rows;
  }
  std::vector<int> Checked() const {
    std::vector<int> rows;
    for (int row = 0; row < list.GetItemCount(); ++row)
      if (list.GetCheck(row)) rows.push_back(row);
    return rows;
  }
  std::vector<Told> Take() { return std::exchange(told, {}); }

  CBCGPListCtrl list;
  std::vector<Told> told;
  std::vector<LPARAM> menus;
  std::function<void()> onTold;
  bool accepted = false;

 protected:
  BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT*) override {
    const auto& note = *reinterpret_cast<NMLISTVIEW*>(lParam);
    EXPECT_EQ(note.hdr.idFrom, static_cast<UINT_PTR>(kControl));
    told.push_back({note.hdr.code, note.iItem, note.uNewState});
    if (onTold) onTold();
    return TRUE;
  }
  void OnOK() override { accepted = true; }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_CONTEXTMENU) {
      told.push_back({message, 0, 0});
      menus.push_back(lParam);
      return 0;
    }
    return CBCGPDialog::WindowProc(message, wParam, lParam);
  }

 private:
  TestModule module_;
};

using Told = ListViewDialog::Told;
using Numbers = std::vector<int>;

TEST(ListView, KeepsRowsTextsAndData) {
  ListViewDialog dialog(kReport);
  CBCGPListCtrl& list = dialog.list;
  EXPECT_EQ(list.GetColumnWidth(0), 0);
  EXPECT_EQ(list.InsertColumn(0, L"Name", LVCFMT_LEFT, 80), 0);
  EXPECT_EQ(list.InsertColumn(9, L"Kind", LVCFMT_RIGHT, 55), 1);
  EXPECT_TRUE(list.SetColumnWidth(1, 60));
  EXPECT_FALSE(list.SetColumnWidth(2, 60));
  EXPECT_EQ(list.GetColumnWidth(0), 80);
  EXPECT_EQ(list.GetColumnWidth(1), 60);
  EXPECT_EQ(list.InsertItem(7, L"b"), 0) << "past the end";
  EXPECT_EQ(list.InsertItem(0, L"a"), 0);
  EXPECT_EQ(list.InsertItem(-1, L"x"), -1);
  EXPECT_TRUE(list.SetItemText(1, 1, L"second"));
  EXPECT_FALSE(list.SetItemText(1, 2, L"no column"));
  EXPECT_FALSE(list.SetItemText(2, 0, L"no row"));
  EXPECT_TRUE(list.SetItemData(1, 77));
  EXPECT_FALSE(list.SetItemData(2, 77));
  EXPECT_EQ(list.InsertItem(1, L"between"), 1);
  EXPECT_EQ(list.GetItemData(2), 77U) << "the data goes with its row";
  EXPECT_EQ(list.GetItemText(2, 1), L"second");
  EXPECT_EQ(list.GetItemText(2, 5), L"");
  EXPECT_TRUE(list.DeleteColumn(0));
  EXPECT_FALSE(list.DeleteColumn(1));
  EXPECT_EQ(list.GetItemText(2, 0), L"second");
  EXPECT_EQ(list.GetColumnWidth(0), 60);
  EXPECT_TRUE(list.DeleteColumn(0));
  EXPECT_EQ(list.GetColumnWidth(0), 0);
  EXPECT_EQ(list.GetItemText(2, 0), L"second") << "labels stay without columns";
  EXPECT_TRUE(list.DeleteItem(0));
  EXPECT_FALSE(list.DeleteItem(2));
  EXPECT_EQ(list.GetItemCount(), 2);
  EXPECT_TRUE(list.DeleteAllItems());
  EXPECT_EQ(list.GetItemCount(), 0);
}

TEST(ListView, ChecksByClickBySpaceAndByProgram) {
  ListViewDialog dialog(kFlow, 5);
  EXPECT_FALSE(dialog.list.SetCheck(1)) << "without check boxes";
  dialog.list.SetExtendedStyle(LVS_EX_CHECKBOXES);
  EXPECT_TRUE(dialog.list.SetCheck(1));
  EXPECT_TRUE(dialog.list.SetCheck(1));
  EXPECT_EQ(dialog.Take(), (std::vector<Told>{{LVN_ITEMCHANGED, 1, kOn}})) << "once";
  dialog.ClickBox(3);
  EXPECT_EQ(dialog.Checked(), (Numbers{1, 3}));
  dialog.Click(0);
  dialog.Click(2, Qt::ShiftModifier);
  EXPECT_EQ(dialog.Selected(), (Numbers{0, 1, 2}));
  dialog.Take();
  dialog.Press(Qt::Key_Space);
  EXPECT_EQ(dialog.Checked(), (Numbers{0, 1, 2, 3})) << "as the focused row, which is now checked";
  EXPECT_EQ(dialog.Selected(), (Numbers{0, 1, 2}));
  EXPECT_EQ(dialog.Take(),
            (std::vector<Told>{{LVN_ITEMCHANGED, 2, kOn}, {LVN_ITEMCHANGED, 0, kOn}}));
  dialog.Press(Qt::Key_Down, Qt::ControlModifier);
  dialog.Press(Qt::Key_Space);
  EXPECT_EQ(dialog.Checked(), (Numbers{0, 1, 2})) << "the focused row alone, as it is not selected";
  dialog.list.SetExtendedStyle(0);
  dialog.Press(Qt::Key_Space);
  EXPECT_EQ(dialog.Checked(), Numbers{});
}

TEST(ListView, AKeyThatLeadsNoFurtherSelectsTheOnlyRow) {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp}) {
    ListViewDialog dialog(kReport | LVS_SINGLESEL, 1);
    dialog.Press(key, Qt::ControlModifier);
    EXPECT_EQ(dialog.Selected(), Numbers{}) << key;
    dialog.Press(key);
    EXPECT_EQ(dialog.Selected(), Numbers{0}) << key;
    dialog.list.DeleteAllItems();
    dialog.Press(key);
    EXPECT_EQ(dialog.Selected(), Numbers{}) << key;
  }
}

TEST(ListView, SelectsOneRowOrMany) {
  const struct {
    DWORD style;
    Numbers twoClicks, all;
  } cases[] = {{kReport | LVS_SINGLESEL, {2}, {2}}, {kReport, {1, 2}, {0, 1, 2, 3}}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.style);
    ListViewDialog dialog(row.style, 4);
    dialog.Press(Qt::Key_Shift);
    EXPECT_EQ(dialog.Selected(), Numbers{}) << "the focus alone selects nothing";
    dialog.Click(1);
    dialog.Click(2, Qt::ControlModifier);
    EXPECT_EQ(dialog.Selected(), row.twoClicks);
    EXPECT_EQ(dialog.list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED), row.all.size() > 1);
    EXPECT_EQ(dialog.Selected(), row.all);
    EXPECT_TRUE(dialog.list.DeleteItem(2));
    EXPECT_EQ(dialog.list.GetItemState(2, kAllStates), LVIS_FOCUSED | (row.all.size() > 1 ? 2 : 0))
        << "the focus is on the next row, and what was not selected is not now";
    QTest::mouseClick(&dialog.Ground(), Qt::LeftButton, {}, dialog.Below());
    EXPECT_EQ(dialog.Selected(), Numbers{});
  }
}

TEST(ListView, TellsOfChangesWhoeverMakesThem) {
  ListViewDialog dialog(kReport | LVS_SINGLESEL, 3, LVS_EX_CHECKBOXES);
  dialog.list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  EXPECT_EQ(dialog.Take(), (std::vector<Told>{{LVN_ITEMCHANGED, 1, LVIS_SELECTED},
                                              {LVN_ITEMCHANGED, 0, 0},
                                              {LVN_ITEMCHANGED, 1, LVIS_FOCUSED}}));
  EXPECT_EQ(dialog.list.GetItemState(1, kAllStates), kOff | LVIS_SELECTED | LVIS_FOCUSED);
  dialog.Click(2);
  std::vector<Told> told = dialog.Take();
  ASSERT_EQ(told.size(), 5U);
  EXPECT_EQ(told.back(), (Told{NM_CLICK, 2, 0}));
  told.pop_back();
  for (const Told& expected : {Told{LVN_ITEMCHANGED, 1, 0}, Told{LVN_ITEMCHANGED, 2, LVIS_SELECTED},
                               Told{LVN_ITEMCHANGED, 2, LVIS_FOCUSED}}) {
    EXPECT_NE(std::find(told.begin(), told.end(), expected), told.end());
  }
  dialog.list.DeleteAllItems();
  EXPECT_EQ(dialog.Take(), std::vector<Told>{}) << "rows that go do not change";
}

TEST(ListView, TellsOfClicksAndAsksForTheMenu) {
  ListViewDialog dialog(kReport, 2, LVS_EX_CHECKBOXES);
  const auto doubleClick = [&](const QPoint& place) {
    dialog.Take();
    QTest::mouseClick(&dialog.Ground(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(&dialog.Ground(), Qt::LeftButton, {}, place);
    std::vector<Told> clicks;
    for (const Told& told : dialog.Take())
      if (told.code != LVN_ITEMCHANGED) clicks.push_back(told);
    return clicks;
  };
  EXPECT_EQ(doubleClick(dialog.View().RowRect(1).center()),
            (std::vector<Told>{{NM_CLICK, 1, 0}, {NM_DBLCLK, 1, 0}}));
  EXPECT_EQ(doubleClick(dialog.Below()),
            (std::vector<Told>{{NM_CLICK, -1, 0}, {NM_DBLCLK, -1, 0}}));
  EXPECT_EQ(doubleClick(dialog.View().CheckBoxRect(0).center()),
            (std::vector<Told>{{NM_CLICK, 0, 0}}))
      << "twice quickly on a box only changes it";

  const QPoint place = dialog.View().RowRect(1).center();
  QWidget& window = *WidgetOf(dialog.m_hWnd);
  dialog.Take();
  QTest::mouseClick(window.windowHandle(), Qt::RightButton, {},
                    dialog.Ground().mapTo(&window, place));
  EXPECT_EQ(dialog.Selected(), Numbers{1}) << "the row whose menu it is";
  const std::vector<Told> told = dialog.Take();
  ASSERT_GE(told.size(), 2U);
  EXPECT_EQ(told.end()[-2], (Told{NM_RCLICK, 1, 0}));
  EXPECT_EQ(told.back().code, WM_CONTEXTMENU);
  const QPoint global = dialog.Ground().mapToGlobal(place);
  EXPECT_EQ(dialog.menus, std::vector<LPARAM>{MAKELPARAM(global.x(), global.y())});
  QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(2, 2));
  QApplication::sendEvent(&dialog.View(), &byKey);
  EXPECT_EQ(dialog.menus.back(), -1);
}

TEST(ListView, HitsRowsBoxesAndNothing) {
  ListViewDialog dialog(kReport, 2, LVS_EX_CHECKBOXES);
  const auto hit = [&](const QPoint& place) {
    UINT flags = 0;
    const int row = dialog.list.HitTest(CPoint(place.x(), place.y()), &flags);
    return std::pair(row, flags);
  };
  EXPECT_EQ(hit(dialog.View().RowRect(1).center()), std::pair(1, LVHT_ONITEMLABEL));
  EXPECT_EQ(hit(dialog.View().CheckBoxRect(0).center()), std::pair(0, LVHT_ONITEMSTATEICON));
  EXPECT_EQ(hit(dialog.Below()), std::pair(-1, LVHT_NOWHERE));
}

TEST(ListView, FlowsInColumnsAsWideAsNeeded) {
  ListViewDialog dialog(kFlow, 40, LVS_EX_CHECKBOXES);
  ListView& view = dialog.View();
  EXPECT_FALSE(view.Headings().isVisible());
  const QRect first = view.RowRect(0);
  int rows = 1;
  while (view.RowRect(rows).left() == first.left()) {
    EXPECT_EQ(view.RowRect(rows).top(), view.RowRect(rows - 1).bottom() + 1);
    ++rows;
  }
  EXPECT_EQ(rows, dialog.Ground().height() / first.height()) << "as many as fit";
  EXPECT_EQ(view.RowRect(rows).topLeft(), QPoint(first.right() + 1, first.top()));
  EXPECT_FALSE(view.verticalScrollBar()->isVisible());

  const CString longest(L"a label that is a good deal longer than all the others");
  const int text = view.fontMetrics().horizontalAdvance(ToQt(longest.Str()));
  dialog.list.SetItemText(3, 0, longest);
  EXPECT_GT(view.RowRect(0).width(), text);
  dialog.list.DeleteItem(3);
  EXPECT_EQ(view.RowRect(0).width(), first.width());
  view.resize(view.width(), view.height() / 2);
  EXPECT_GT(view.RowRect(rows - 1).left(), first.left()) << "at once";
}

TEST(ListView, ShowsColumnsBelowTheirHeadingsInReportView) {
  ListViewDialog dialog(kFlow, 3);
  dialog.list.InsertColumn(0, L"Name", LVCFMT_LEFT, 80);
  dialog.list.InsertColumn(1, L"Kind", LVCFMT_LEFT, 70);
  dialog.list.ModifyStyle(LVS_TYPEMASK, LVS_REPORT);
  ToolkitApplication::ProcessEvents();
  ListView& view = dialog.View();
  EXPECT_TRUE(view.Headings().isVisible());
  EXPECT_LE(view.Headings().geometry().bottom(), view.viewport()->y());
  for (int row = 0; row < 3; ++row) {
    EXPECT_EQ(view.RowRect(row).top(), row * view.RowRect(0).height());
  }
  EXPECT_EQ(view.CellRect(view.RowRect(1), 1),
            QRect(80, view.RowRect(1).y(), 70, view.RowRect(1).height()));
  dialog.list.SetColumnWidth(1, 900);
  ToolkitApplication::ProcessEvents();
  view.horizontalScrollBar()->setValue(50);
  EXPECT_EQ(view.CellRect(view.RowRect(1), 1).left(), 30) << "headings and rows scroll together";
  EXPECT_EQ(view.RowRect(1).left(), -50);
  dialog.list.SetItemText(1, 1, L"inside");
  dialog.list.ModifyStyle(0, LVS_LIST);
  EXPECT_FALSE(view.Headings().isVisible());
}

TEST(ListView, MarksTheSelectionAsItsStylesSay) {
  const struct {
    DWORD style, extended;
    bool focus;
    bool label, whole;
  } cases[] = {
      {kReport, LVS_EX_FULLROWSELECT, false, true, true},
      {kReport, 0, false, true, false},
      {kStop | LVS_REPORT, LVS_EX_FULLROWSELECT, false, false, false},
      {kStop | LVS_REPORT, LVS_EX_FULLROWSELECT, true, true, true},
  };
  for (const auto& expected : cases) {
    SCOPED_TRACE(testing::Message() << expected.style << " " << expected.extended);
    ListViewDialog dialog(expected.style, 2, expected.extended);
    dialog.list.InsertColumn(0, L"Name", LVCFMT_LEFT, 80);
    dialog.list.InsertColumn(1, L"Kind", LVCFMT_LEFT, 80);
    if (expected.focus) dialog.View().setFocus();
    const auto cell = [&](int column) {
      const QRect row = dialog.View().RowRect(1);
      return dialog.Ground().grab(dialog.View().CellRect(row, column)).toImage();
    };
    const QImage label = cell(0), other = cell(1);
    dialog.list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(cell(0) != label, expected.label);
    EXPECT_EQ(cell(1) != other, expected.whole);
  }
}

TEST(ListView, GoesToTheRowThatIsTyped) {
  ListViewDialog dialog(kFlow | LVS_SINGLESEL, 20, LVS_EX_CHECKBOXES);
  dialog.Press(Qt::Key_K);
  EXPECT_EQ(dialog.Selected(), Numbers{10});
  dialog.Press(Qt::Key_End);
  EXPECT_EQ(dialog.Selected(), Numbers{19});
  EXPECT_TRUE(dialog.Ground().rect().contains(dialog.View().RowRect(19))) << "scrolled to";
  EXPECT_FALSE(dialog.accepted);
  dialog.Press(Qt::Key_Return);
  EXPECT_TRUE(dialog.accepted) << "Enter is the dialog's";
}

TEST(ListView, IsSpokenAsAListOfRowsWithCheckBoxes) {
  ListViewDialog dialog(kReport, 2, LVS_EX_CHECKBOXES);
  dialog.list.InsertColumn(0, L"Name");
  dialog.list.InsertColumn(1, L"Kind");
  dialog.list.InsertColumn(2, L"Value");
  dialog.list.SetItemText(1, 2, L"*.txt");
  dialog.list.SetCheck(1);
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&dialog.View());
  EXPECT_EQ(list->text(QAccessible::Name), QStringLiteral("Things"));
  ASSERT_NE(list->tableInterface(), nullptr);
  QAccessibleInterface* row = list->tableInterface()->cellAt(1, 0);
  EXPECT_EQ(row->text(QAccessible::Name), QStringLiteral("b row, *.txt"));
  EXPECT_TRUE(row->state().checkable);
  EXPECT_TRUE(row->state().checked);
  EXPECT_FALSE(list->tableInterface()->cellAt(0, 0)->state().checked);
}

TEST(ListView, ScrollsByItsMessages) {
  ListViewDialog dialog(kReport, 100);
  dialog.list.SendMessage(WM_VSCROLL, static_cast<WPARAM>(MAKELPARAM(SB_THUMBPOSITION, 12)));
  EXPECT_EQ(dialog.list.GetScrollPos(SB_VERT), 12);
  CRect row;
  EXPECT_TRUE(dialog.list.GetItemRect(12, row));
  EXPECT_EQ(row.top, 0);
  dialog.list.SendMessage(LVM_SCROLL, 0, -5 * row.Height());
  EXPECT_EQ(dialog.list.GetScrollPos(SB_VERT), 7);
  EXPECT_TRUE(dialog.list.EnsureVisible(99));
  EXPECT_FALSE(dialog.list.EnsureVisible(100));
  EXPECT_TRUE(dialog.Ground().rect().contains(dialog.View().RowRect(99)));
  EXPECT_FALSE(dialog.list.GetItemRect(100, row));
}

TEST(ListView, IsPaintedOnlyWhileItMayBe) {
  ListViewDialog dialog(kReport, 1);
  const QImage before = dialog.Ground().grab().toImage();
  dialog.list.SetRedraw(FALSE);
  EXPECT_FALSE(dialog.View().updatesEnabled());
  dialog.list.InsertItem(1, L"later");
  dialog.list.SetRedraw();
  EXPECT_TRUE(dialog.View().updatesEnabled());
  EXPECT_NE(dialog.Ground().grab().toImage(), before);
}

TEST(ListView, MayEndInItsOwnNotifications) {
  const std::pair<UINT, std::function<void(ListViewDialog&)>> cases[] = {
      {LVN_ITEMCHANGED, [](ListViewDialog& dialog) { dialog.Click(1); }},
      {LVN_ITEMCHANGED, [](ListViewDialog& dialog) { dialog.ClickBox(1); }},
      {NM_DBLCLK,
       [](ListViewDialog& dialog) {
         QTest::mouseDClick(&dialog.Ground(), Qt::LeftButton, {},
                            dialog.View().RowRect(1).center());
       }},
  };
  for (const auto& [code, act] : cases) {
    ListViewDialog dialog(kReport, 3, LVS_EX_CHECKBOXES);
    dialog.onTold = [&dialog, code = code] {
      if (dialog.told.back().code == code) dialog.DestroyWindow();
    };
    act(dialog);
    EXPECT_EQ(dialog.list.m_hWnd, nullptr);
    EXPECT_EQ(dialog.list.GetItemCount(), 0);
    EXPECT_EQ(dialog.told.back().code, code) << "and nothing after it";
  }
}

}  // namespace
