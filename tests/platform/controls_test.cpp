#include "platform/controls.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSizeGrip>
#include <QSlider>
#include <QToolButton>
#include <QTreeWidget>
#include <QWheelEvent>

#include "dialog_script.h"
#include "platform/application.h"
#include "platform/bcg.h"

namespace {

constexpr UINT kTemplate = 500;
constexpr int kControl = 7;
constexpr int kSecond = 8;
constexpr DWORD kList = kStop | CBS_DROPDOWNLIST;
constexpr DWORD kEditable = kStop | CBS_DROPDOWN;

struct Note {
  UINT code;
  int id;
  bool operator==(const Note&) const = default;
};
void PrintTo(const Note& note, std::ostream* out) { *out << note.id << ":" << int(note.code); }
using Notes = std::vector<Note>;

/// Keeps what its controls tell it.
class ListeningDialog : public CBCGPDialog {
 public:
  explicit ListeningDialog(const std::vector<ItemSource>& items)
      : CBCGPDialog(kTemplate), module_({{kTemplate, items}}) {
    EXPECT_TRUE(Create(kTemplate, nullptr));
    ShowWindow(SW_SHOW);
    WidgetOf(m_hWnd)->activateWindow();
    ToolkitApplication::ProcessEvents();
  }

  Notes notes;
  std::function<LRESULT(NMTREEVIEW&)> onTree;
  std::vector<CSize> sizes;

  Notes Take() { return std::exchange(notes, {}); }
  template <class Widget = QWidget>
  Widget& At(int id = kControl) {
    return *static_cast<Widget*>(ControlWidget(*this, id));
  }

 protected:
  BOOL OnCommand(WPARAM wParam, LPARAM) override {
    notes.push_back({HIWORD(wParam), LOWORD(wParam)});
    return TRUE;
  }
  BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
    auto& note = *reinterpret_cast<NMTREEVIEW*>(lParam);
    notes.push_back({note.hdr.code, static_cast<int>(note.hdr.idFrom)});
    *result = onTree ? onTree(note) : 0;
    return TRUE;
  }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_HSCROLL) notes.push_back({WM_HSCROLL, static_cast<int>(HIWORD(wParam))});
    if (message == WM_SIZE) sizes.push_back(CSize(static_cast<DWORD>(lParam)));
    return CBCGPDialog::WindowProc(message, wParam, lParam);
  }

 private:
  TestModule module_;
};

void Click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

std::vector<std::wstring> Rows(const CComboBox& combo) {
  std::vector<std::wstring> rows;
  for (int row = 0; row < combo.GetCount(); ++row) {
    CString text;
    combo.GetLBText(row, text);
    rows.push_back(text.Str());
  }
  return rows;
}

template <class Control>
struct Bound {
  explicit Bound(ListeningDialog& dialog, int id = kControl) {
    EXPECT_TRUE(control.SubclassDlgItem(static_cast<UINT>(id), &dialog));
  }
  Control* operator->() { return &control; }
  Control control;
};

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

void Turn(QWidget& widget) {
  const QPointF middle = widget.rect().center();
  QWheelEvent event(middle, widget.mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &event);
}

TEST(Wheel, ChangesOnlyTheControlWithFocus) {
  ListeningDialog dialog({{L"ComboBox", L"", kControl, kList},
                          {L"msctls_trackbar32", L"", kSecond},
                          {L"Edit", L"", 9}});
  Bound<CComboBox> combo(dialog);
  Bound<CSliderCtrl> slider(dialog, kSecond);
  for (const wchar_t* text : {L"a", L"b"}) combo->AddString(text);
  combo->SetCurSel(0);
  slider->SetRange(0, 9);
  slider->SetPos(5);
  dialog.At(9).setFocus();
  for (const int id : {kControl, kSecond}) Turn(dialog.At(id));
  EXPECT_EQ(std::pair(combo->GetCurSel(), slider->GetPos()), std::pair(0, 5));
  EXPECT_EQ(dialog.Take(), Notes{});
  for (const int id : {kControl, kSecond}) {
    dialog.At(id).setFocus();
    Turn(dialog.At(id));
  }
  EXPECT_EQ(combo->GetCurSel(), 1);
  EXPECT_NE(slider->GetPos(), 5);
}

TEST(Slider, TellsWhereTheUserMovedIt) {
  ListeningDialog dialog({{L"msctls_trackbar32", L"", kControl}});
  Bound<CSliderCtrl> slider(dialog);
  slider->SetRange(0, 2);
  slider->SetPos(7);
  EXPECT_EQ(slider->GetPos(), 2);
  slider->SetPos(0);
  EXPECT_EQ(dialog.Take(), Notes{});
  QTest::keyClick(&dialog.At(), Qt::Key_PageUp);
  EXPECT_EQ(slider->GetPos(), 1);
  EXPECT_EQ(dialog.Take(), (Notes{{WM_HSCROLL, 1}}));
}

TEST(Edit, TakesOnlyWhatItsStyleAllows) {
  const struct {
    DWORD style;
    const char* keys;
    const wchar_t* text;
    std::size_t changes;
  } rows[] = {
      {ES_NUMBER, "1a2-3 ", L"123", 3},
      {0, "1a-", L"1a-", 3},
      {ES_READONLY, "1", L"", 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.keys);
    ListeningDialog dialog({{L"Edit", L"", kControl, kStop | row.style}});
    QTest::keyClicks(&dialog.At(), QString::fromLatin1(row.keys));
    CString text;
    dialog.GetDlgItemText(kControl, text);
    EXPECT_EQ(text, row.text);
    EXPECT_EQ(dialog.Take(), Notes(row.changes, {EN_CHANGE, kControl}));
  }
}

TEST(Edit, OfSeveralLinesEndsThemWithBothMarks) {
  ListeningDialog dialog({{L"Edit", L"", kControl, kStop | ES_MULTILINE}});
  Bound<CEdit> edit(dialog);
  edit->SetWindowText(L"one\r\ntwo\nthree");
  CString text;
  edit->GetWindowText(text);
  EXPECT_EQ(text, L"one\r\ntwo\r\nthree");
  EXPECT_EQ(dialog.Take(), Notes{});
  edit->SetLimitText(15);
  edit->SetSel(0, 0);
  QTest::keyClicks(&dialog.At(), QStringLiteral("<>x"));
  edit->GetWindowText(text);
  EXPECT_EQ(text, L"<>one\r\ntwo\r\nthree") << "thirteen characters and two more";
  edit->SetSel(0, -1);
  int start = -1;
  int end = -1;
  edit->GetSel(start, end);
  EXPECT_EQ(std::pair(start, end), std::pair(0, 15));
}

TEST(Button, ChangesItsStateAsItsStyleSays) {
  const struct {
    DWORD style;
    std::vector<int> states;  // After each click in the middle.
  } rows[] = {
      {BS_AUTOCHECKBOX, {1, 0, 1}}, {BS_CHECKBOX, {0, 0}},
      {BS_AUTO3STATE, {1, 2, 0}},   {BS_3STATE, {0}},
      {BS_RADIOBUTTON, {0}},        {BS_PUSHBUTTON, {0}},
      {BS_AUTORADIOBUTTON, {1, 1}}, {BS_AUTOCHECKBOX | BS_MULTILINE, {1}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.style);
    ListeningDialog dialog({{L"Button", L"&x", kControl, kStop | row.style, 7, 7, 150, 24}});
    Bound<CButton> button(dialog);
    for (const int state : row.states) {
      Click(dialog.At());
      EXPECT_EQ(button->GetCheck(), state);
      EXPECT_EQ(dialog.Take(), (Notes{{BN_CLICKED, kControl}}));
    }
    button->SetCheck(BST_CHECKED);
    EXPECT_EQ(button->GetCheck(), BST_CHECKED);
    button->SetCheck(BST_UNCHECKED);
    EXPECT_EQ(button->GetCheck(), BST_UNCHECKED);
    EXPECT_EQ(dialog.Take(), Notes{});
  }
}

TEST(Button, WrapsTheLabelOfSeveralLines) {
  const wchar_t* label = L"Two words or more than fit into the first line";
  ListeningDialog dialog(
      {{L"Button", label, kControl, kStop | BS_AUTOCHECKBOX, 7, 7, 70, 30},
       {L"Button", label, kSecond, kStop | BS_AUTOCHECKBOX | BS_MULTILINE, 7, 50, 70, 30}});
  const auto inkedRows = [&](int id) {
    const QImage image = dialog.At(id).grab().toImage();
    const int right = image.width() - 8;
    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 30; x < right; ++x) {
        if (qGray(image.pixel(x, y)) < 100 && ++inked) break;
      }
    }
    return inked;
  };
  EXPECT_GT(inkedRows(kSecond), inkedRows(kControl) * 3 / 2);
}

TEST(Static, TellsOfClicksOnlyWhenAskedTo) {
  ListeningDialog dialog(
      {{L"Static", L"<b>x</b>", kControl, kPlain | SS_NOTIFY}, {L"Static", L"", kSecond, kPlain}});
  Click(dialog.At(kControl));
  Click(dialog.At(kSecond));
  EXPECT_EQ(dialog.Take(), (Notes{{STN_CLICKED, kControl}}));
  EXPECT_EQ(dialog.At<QLabel>().textFormat(), Qt::PlainText);
}

class TreeTest : public testing::Test {
 protected:
  TreeTest() {
    tree_->SetItemHeight(23);
    root_ = tree_->InsertItem(L"Root", 0, 0, TVI_ROOT, TVI_LAST);
    first_ = tree_->InsertItem(L"First", 0, 0, root_, TVI_LAST);
    second_ = tree_->InsertItem(L"Second", 0, 0, root_, TVI_LAST);
    tree_->SetItemData(root_, 1);
    tree_->SetItemData(first_, 11);
    tree_->SetItemData(second_, 12);
    tree_->Expand(root_, TVE_EXPAND);
    widget_.setFocus();
    tree_->SelectItem(root_);
    dialog_.Take();
  }

  QPoint Middle(HTREEITEM item) {
    for (QTreeWidgetItemIterator it(&widget_); *it != nullptr; ++it) {
      if ((*it)->text(0).toStdWString() == tree_->GetItemText(item).Str()) {
        return widget_.visualItemRect(*it).center();
      }
    }
    ADD_FAILURE();
    return {};
  }
  void ClickOn(HTREEITEM item) {
    QTest::mouseClick(widget_.viewport(), Qt::LeftButton, {}, Middle(item));
  }

  ListeningDialog dialog_{{{L"SysTreeView32", L"", kControl, kStop, 7, 7, 120, 100}}};
  Bound<CBCGPTreeCtrl> tree_{dialog_};
  QTreeWidget& widget_ = dialog_.At<QTreeWidget>();
  HTREEITEM root_ = nullptr, first_ = nullptr, second_ = nullptr;
};

const Notes kMoved = {{TVN_SELCHANGINGW, kControl}, {TVN_SELCHANGEDW, kControl}};

TEST_F(TreeTest, AsksBeforeEveryWayOfSelecting) {
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"mouse", [this] { ClickOn(first_); }},
      {"key", [this] { QTest::keyClick(&widget_, Qt::Key_Down); }},
      {"key to child", [this] { QTest::keyClick(&widget_, Qt::Key_Right); }},
      {"typing ahead", [this] { QTest::keyClicks(&widget_, QStringLiteral("F")); }},
      {"program", [this] { tree_->SelectItem(first_); }},
  };
  for (const auto& [name, act] : ways) {
    SCOPED_TRACE(name);
    dialog_.onTree = [&](NMTREEVIEW& note) -> LRESULT {
      EXPECT_EQ(tree_->GetSelectedItem(), root_) << "asked before anything moves";
      EXPECT_EQ(note.itemOld.hItem, root_);
      EXPECT_EQ(note.itemOld.lParam, 1);
      EXPECT_EQ(note.itemNew.hItem, first_);
      EXPECT_EQ(note.itemNew.lParam, 11);
      return 1;
    };
    act();
    EXPECT_EQ(dialog_.Take(), (Notes{{TVN_SELCHANGINGW, kControl}}));
    EXPECT_EQ(tree_->GetSelectedItem(), root_);
    EXPECT_EQ(widget_.currentItem()->text(0), QStringLiteral("Root"));
    EXPECT_EQ(widget_.selectedItems(), QList<QTreeWidgetItem*>{widget_.currentItem()});

    dialog_.onTree = {};
    act();
    EXPECT_EQ(dialog_.Take(), kMoved);
    EXPECT_EQ(tree_->GetSelectedItem(), first_);
    EXPECT_EQ(widget_.selectedItems(), QList<QTreeWidgetItem*>{widget_.currentItem()});
    tree_->SelectItem(root_);
    dialog_.Take();
  }
}

TEST_F(TreeTest, EmptiesInsideANotification) {
  dialog_.onTree = [&](NMTREEVIEW& note) -> LRESULT {
    if (note.hdr.code == TVN_SELCHANGINGW) tree_->DeleteAllItems();
    return 0;
  };
  ClickOn(second_);
  EXPECT_EQ(dialog_.Take(), (Notes{{TVN_SELCHANGINGW, kControl}}));
  EXPECT_EQ(tree_->GetRootItem(), nullptr);
  EXPECT_EQ(tree_->GetSelectedItem(), nullptr);
  EXPECT_EQ(tree_->GetItemData(second_), 0U) << "a handle that outlived its row";
  EXPECT_FALSE(tree_->SelectItem(first_));
  EXPECT_EQ(tree_->InsertItem(L"x", 0, 0, root_, TVI_LAST), nullptr);
  const HTREEITEM again = tree_->InsertItem(L"Again", 0, 0, TVI_ROOT, TVI_LAST);
  EXPECT_NE(again, root_);
  EXPECT_EQ(tree_->GetSelectedItem(), nullptr);
  EXPECT_EQ(dialog_.Take(), Notes{});
}

TEST_F(TreeTest, RemovesChildrenWithoutAsking) {
  tree_->SelectItem(second_);
  dialog_.Take();
  tree_->SendMessage(TVM_EXPAND, TVE_COLLAPSE | TVE_COLLAPSERESET, reinterpret_cast<LPARAM>(root_));
  EXPECT_EQ(dialog_.Take(), (Notes{{TVN_SELCHANGEDW, kControl}}));
  EXPECT_EQ(tree_->GetSelectedItem(), root_);
  EXPECT_EQ(tree_->GetChildItem(root_), nullptr);
  EXPECT_EQ(tree_->GetItemText(second_), L"");
}

TEST_F(TreeTest, ExpandsWithTheParentsLeave) {
  const auto expanded = [this] { return widget_.topLevelItem(0)->isExpanded(); };
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"key", [&] { QTest::keyClick(&widget_, expanded() ? Qt::Key_Left : Qt::Key_Right); }},
      {"double click",
       [this] { QTest::mouseDClick(widget_.viewport(), Qt::LeftButton, {}, Middle(root_)); }},
      {"expander",
       [this] {
         const QRect row = widget_.visualItemRect(widget_.topLevelItem(0));
         QTest::mouseClick(widget_.viewport(), Qt::LeftButton, {},
                           QPoint(row.left() - widget_.indentation() / 2, row.center().y()));
       }},
  };
  for (const auto& [name, act] : ways) {
    SCOPED_TRACE(name);
    for (const bool from : {true, false}) {
      dialog_.onTree = [](NMTREEVIEW&) -> LRESULT { return 1; };
      act();
      EXPECT_EQ(expanded(), from);
      dialog_.onTree = {};
      act();
      EXPECT_EQ(expanded(), !from);
      EXPECT_EQ(dialog_.Take(), Notes(2, {TVN_ITEMEXPANDINGW, kControl}));
    }
  }
}

TEST_F(TreeTest, KeepsItsRowHeightAndOrder) {
  EXPECT_EQ(tree_->GetItemHeight(), 23);
  EXPECT_EQ(widget_.visualItemRect(widget_.topLevelItem(0)).height(), 23);
  const HTREEITEM between = tree_->InsertItem(L"Between", 0, 0, root_, first_);
  EXPECT_EQ(tree_->GetNextSiblingItem(first_), between);
  EXPECT_EQ(tree_->GetNextSiblingItem(between), second_);
  EXPECT_EQ(tree_->GetNextSiblingItem(second_), nullptr);
}

class ColourTest : public testing::Test {
 protected:
  ColourTest() {
    button_->EnableOtherButton(L"Other...");
    button_->SetColor(RGB(1, 2, 3));
    Click(dialog_.At());
    palette_ = QApplication::activePopupWidget();
  }

  ListeningDialog dialog_{{{L"Button", L"", kControl}}};
  Bound<CBCGPColorButton> button_{dialog_};
  QPointer<QWidget> palette_;
};

TEST_F(ColourTest, IsChosenFromThePaletteByKeys) {
  ASSERT_NE(palette_, nullptr);
  EXPECT_EQ(dialog_.At().property("controlKind").toString(), QStringLiteral("colour"));
  EXPECT_EQ(dialog_.Take(), Notes{}) << "opening is no choice";
  QTest::keyClick(palette_->focusWidget(), Qt::Key_Right);
  const int expected = palette_->focusWidget()->property("colour").toInt();
  QTest::keyClick(palette_->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(dialog_.Take(), (Notes{{BN_CLICKED, kControl}}));
  EXPECT_EQ(button_->GetColor(), static_cast<COLORREF>(expected));
  EXPECT_NE(expected, 0);
  EXPECT_EQ(dialog_.At().property("colour").toInt(), expected);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(ColourTest, StaysWhenThePaletteIsLeft) {
  QTest::keyClick(palette_->focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(button_->GetColor(), RGB(1, 2, 3));
  EXPECT_EQ(dialog_.Take(), Notes{});
}

TEST_F(ColourTest, CanBeAnyOther) {
  QTimer::singleShot(0, &dialog_.At(), [] {
    auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->currentColor(), QColor(1, 2, 3));
    dialog->setCurrentColor(QColor(40, 50, 60));
    dialog->accept();
  });
  Click(*palette_->findChild<QAbstractButton*>(QStringLiteral("otherColour")));
  EXPECT_EQ(button_->GetColor(), RGB(40, 50, 60));
  EXPECT_EQ(dialog_.Take(), (Notes{{BN_CLICKED, kControl}}));
}

TEST(BcgDialog, GripsItsCornerAndTellsItsSize) {
  ListeningDialog dialog({{L"Button", L"", kControl}});
  QWidget& window = *WidgetOf(dialog.m_hWnd);
  dialog.EnableLayout();
  const QWidget* grip = window.findChild<QSizeGrip*>();
  ASSERT_NE(grip, nullptr);
  EXPECT_NE(dialog.GetStyle() & WS_THICKFRAME, 0U);
  window.resize(window.size() + QSize(30, 20));
  EXPECT_EQ(grip->geometry().bottomRight(), window.rect().bottomRight());
  dialog.sizes.clear();
  dialog.AdjustControlsLayout();
  EXPECT_EQ(dialog.sizes, std::vector<CSize>{CSize(window.width(), window.height())});
}

}  // namespace
