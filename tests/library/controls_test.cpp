// The controls of the dialogs, driven by keys and clicks.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QBuffer>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "controls/config_color_button.h"
#include "controls/reg_loaded_combo.h"
#include "controls/semi_button.h"
#include "controls/separator.h"
#include "environment.h"
#include "fake_language.h"
#include "foundation/exception.h"
#include "platform/application.h"
#include "platform/dialog_script.h"

namespace {

constexpr UINT kTemplate = 500;
constexpr int kControl = 7;
constexpr int kOther = 8;
constexpr DWORD kEditable = kStop | CBS_DROPDOWN;
using Codes = std::vector<int>;

/// A dialog with one control under test and an edit beside it.
template <class Control>
class Host : public CBCGPDialog {
 public:
  Host(const wchar_t* className, DWORD style, const wchar_t* text = L"")
      : CBCGPDialog(kTemplate),
        module_({{kTemplate, {{className, text, kControl, style}, {L"Edit", L"", kOther}}}}) {
    EXPECT_TRUE(Create(kTemplate, nullptr));
    EXPECT_TRUE(control.SubclassDlgItem(kControl, this));
    ShowWindow(SW_SHOW);
    WidgetOf(m_hWnd)->activateWindow();
    ToolkitApplication::ProcessEvents();
    Widget().setFocus();
  }

  Control control;
  Codes codes;
  BOOL enterTaken = FALSE;

  Codes Take() { return std::exchange(codes, {}); }
  template <class Kind = QWidget>
  Kind& Widget(int id = kControl) {
    return *static_cast<Kind*>(ControlWidget(*this, id));
  }
  QWidget& List() { return *Widget<QComboBox>().view(); }
  void Drop() {
    QTest::keyClick(&Widget(), Qt::Key_F4);
    EXPECT_TRUE(control.GetDroppedState());
    Take();
  }
  std::wstring TextOfControl() {
    CString text;
    control.GetWindowText(text);
    return text.Str();
  }

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_COMMAND || LOWORD(wParam) != kControl) {
      return CBCGPDialog::WindowProc(message, wParam, lParam);
    }
    codes.push_back(HIWORD(wParam));
    return HIWORD(wParam) == kComboEnterNotification ? enterTaken : 0;
  }

 private:
  TestModule module_;
};

template <class Combo>
struct ComboHost : Host<Combo> {
  explicit ComboHost(DWORD style = kStop | CBS_DROPDOWNLIST) : Host<Combo>(L"ComboBox", style) {}
};

TEST(CustomCombo, IndentsAndDisablesRows) {
  const struct {
    const wchar_t* text;
    bool allowed;
    const wchar_t* shown;
    int indent;
    bool disabled;
  } rows[] = {
      {L"\t\tAlpha", true, L"Alpha", 50, false},
      {L"!Beta", true, L"Beta", 0, true},
      {L"!Beta", false, L"!Beta", 0, false},
      {L"\tGa!m\tma", true, L"Gamma", 50, true},
      {L"", true, L"", 0, false},
  };
  ComboHost<CCustomComboBox> host;
  int expected = 0;
  for (const auto& row : rows) {
    SCOPED_TRACE(expected);
    host.control.AllowDisabledRows(row.allowed);
    const int index = host.control.AddItem(row.text);
    EXPECT_EQ(index, expected++);
    CString shown;
    host.control.GetLBText(index, shown);
    EXPECT_EQ(shown, row.shown);
    EXPECT_EQ(host.control.GetItemIndent(index), row.indent);
    EXPECT_EQ(host.control.IsRowDisabled(index), row.disabled);
    const QVariant colour = host.Widget<QComboBox>().itemData(index, Qt::ForegroundRole);
    EXPECT_EQ(colour.isValid(), row.disabled);
    const COLORREF grey = GetSysColor(COLOR_GRAYTEXT);
    if (row.disabled) {
      EXPECT_EQ(colour.value<QBrush>().color(),
                QColor(GetRValue(grey), GetGValue(grey), GetBValue(grey)));
    }
  }
}

TEST(CustomCombo, RemembersDisabledRowsWhenRowsMove) {
  ComboHost<CCustomComboBox> host(kStop | CBS_DROPDOWNLIST | CBS_SORT);
  host.control.AllowDisabledRows(true);
  for (const wchar_t* text : {L"!m", L"z", L"a"}) host.control.AddItem(text);
  EXPECT_TRUE(host.control.IsRowDisabled(1));
  EXPECT_FALSE(host.control.IsRowDisabled(0));
  host.control.DeleteString(0);
  EXPECT_TRUE(host.control.IsRowDisabled(0));
  host.control.ResetContent();
  host.control.AddItem(L"new");
  EXPECT_FALSE(host.control.IsRowDisabled(0));
}

TEST(CustomCombo, PutsThePreviousSelectionBack) {
  ComboHost<CCustomComboBox> host;
  host.control.AllowDisabledRows(true);
  for (const wchar_t* text : {L"Alpha", L"!Beta", L"Gamma"}) host.control.AddItem(text);
  for (const int before : {0, 2}) {
    SCOPED_TRACE(before);
    host.control.SetCurSel(before);
    QTest::keyClick(&host.Widget(), before == 0 ? Qt::Key_Down : Qt::Key_Up);
    EXPECT_EQ(host.control.GetCurSel(), before);
    EXPECT_EQ(host.Take(), Codes{});
    host.Drop();
    QTest::keyClick(&host.List(), before == 0 ? Qt::Key_Down : Qt::Key_Up);
    EXPECT_EQ(host.control.GetCurSel(), 1) << "highlighted";
    QTest::keyClick(&host.List(), Qt::Key_Return);
    EXPECT_EQ(host.control.GetCurSel(), before);
    EXPECT_EQ(host.Take(), (Codes{CBN_SELENDOK, CBN_CLOSEUP}));
  }
}

TEST(CustomCombo, TellsHowTheListWasClosed) {
  const struct {
    Qt::Key key;
    Codes codes;
    int row;
  } rows[] = {
      {Qt::Key_Return, {CBN_SELENDOK, CBN_CLOSEUP, CBN_SELCHANGE}, 1},
      {Qt::Key_Escape, {CBN_SELENDCANCEL, CBN_CLOSEUP}, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.key);
    ComboHost<CCustomComboBox> host;
    for (const wchar_t* text : {L"Alpha", L"Beta"}) host.control.AddItem(text);
    host.control.SetCurSel(0);
    host.Drop();
    QTest::keyClick(&host.List(), Qt::Key_Down);
    QTest::keyClick(&host.List(), row.key);
    EXPECT_EQ(host.Take(), row.codes);
    EXPECT_FALSE(host.control.GetDroppedState());
    EXPECT_EQ(host.control.GetCurSel(), row.row);
    EXPECT_TRUE(IsWindow(host.m_hWnd)) << "the dialog did not see the key";
  }
}

class AutoSelection : public testing::Test {
 protected:
  AutoSelection() {
    host_.control.AllowDisabledRows(true);
    for (const wchar_t* text : {L"first", L"Typed", L"!gone"}) host_.control.AddItem(text);
    QTest::keyClicks(&host_.Widget(), QStringLiteral("typing"));
    host_.control.SetEditSel(1, 3);
    host_.Take();
  }
  void ExpectTyped() {
    EXPECT_EQ(host_.TextOfControl(), L"typing");
    EXPECT_EQ(host_.control.GetEditSel(), static_cast<DWORD>(MAKELPARAM(1, 3)));
    EXPECT_EQ(host_.control.GetCurSel(), -1);
    EXPECT_FALSE(host_.control.GetDroppedState());
  }
  void Highlight(int row) {
    host_.Drop();
    for (int step = 0; step <= row; ++step) QTest::keyClick(&host_.List(), Qt::Key_Down);
    EXPECT_EQ(host_.control.GetCurSel(), row);
  }

  ComboHost<CAutoSelectionCombo> host_{kEditable};
};

TEST_F(AutoSelection, EscapePutsTheTypedTextBack) {
  Highlight(0);
  QTest::keyClick(&host_.List(), Qt::Key_Escape);
  ExpectTyped();
  EXPECT_EQ(host_.Take(), Codes{CBN_CLOSEUP});
}

TEST_F(AutoSelection, EnterChoosesTheHighlightedRow) {
  Highlight(1);
  QTest::keyClick(&host_.List(), Qt::Key_Return);
  EXPECT_EQ(host_.TextOfControl(), L"Typed");
  EXPECT_EQ(host_.control.GetCurSel(), 1);
  EXPECT_EQ(host_.Take(), (Codes{CBN_CLOSEUP, CBN_SELCHANGE}));
}

TEST_F(AutoSelection, EnterWithoutARowTellsTheParentOfEnter) {
  host_.Drop();
  EXPECT_EQ(host_.control.GetCurSel(), -1);
  QTest::keyClick(&host_.List(), Qt::Key_Return);
  ExpectTyped();
  EXPECT_EQ(host_.Take(), (Codes{CBN_CLOSEUP, kComboEnterNotification}));
}

TEST_F(AutoSelection, NeverChoosesADisabledRow) {
  Highlight(2);
  QTest::keyClick(&host_.List(), Qt::Key_Return);
  ExpectTyped();
}

TEST_F(AutoSelection, EnterInAClosedComboIsTheParentsToTake) {
  MSG enter{host_.control.m_hWnd, WM_KEYDOWN, VK_RETURN, 0};
  for (const BOOL taken : {TRUE, FALSE}) {
    host_.enterTaken = taken;
    EXPECT_EQ(host_.control.PreTranslateMessage(&enter), taken);
    EXPECT_EQ(host_.Take(), Codes{kComboEnterNotification});
  }
  MSG escape{host_.control.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0};
  EXPECT_FALSE(host_.control.PreTranslateMessage(&escape));
  EXPECT_EQ(host_.Take(), Codes{});
}

TEST_F(AutoSelection, LosingTheFocusSelectsTheRowOfItsText) {
  const std::pair<const wchar_t*, bool> texts[] = {{L"typed", true}, {L"type", false}};
  for (const auto& [text, found] : texts) {
    SCOPED_TRACE(found);
    host_.Widget().setFocus();
    host_.control.SetWindowText(text);
    host_.control.SetEditSel(2, 4);
    host_.Drop();
    host_.Widget(kOther).setFocus();
    EXPECT_FALSE(host_.control.GetDroppedState());
    EXPECT_EQ(host_.TextOfControl(), text) << "as it was typed";
    EXPECT_EQ(host_.control.GetEditSel(), static_cast<DWORD>(MAKELPARAM(2, 4)));
    EXPECT_EQ(host_.Widget<QComboBox>().currentIndex() == 1, found);
    host_.control.SetCurSel(-1);
  }
}

TEST_F(AutoSelection, KeepsTheEditSelectionReversedWhenResized) {
  QWidget& widget = host_.Widget();
  widget.resize(widget.width() + 20, widget.height());
  EXPECT_EQ(host_.control.GetEditSel(), static_cast<DWORD>(MAKELPARAM(1, 3)));
  EXPECT_EQ(host_.Widget<QComboBox>().lineEdit()->cursorPosition(), 1);
}

class Provider : public INTERNAL_IFC::ILoadComboReg {
 public:
  std::vector<bool> calls;
  HRESULT status = S_OK;
  std::vector<CString> items;

  HRESULT Exchange(CComboBox* combo, bool aboutToDrop) override {
    calls.push_back(aboutToDrop);
    if (!aboutToDrop || status < 0) return status;
    combo->ResetContent();
    for (const CString& item : items) combo->AddString(item);
    return status;
  }
  HRESULT SelectList(const CString&, std::int32_t) override { return E_NOTIMPL; }
  HRESULT GetItems(std::vector<CString>&) override { return E_NOTIMPL; }
  HRESULT SetItems(const std::vector<CString>&) override { return E_NOTIMPL; }
};

TEST(RegLoadedCombo, IsFilledWhenItDrops) {
  ComboHost<CRegLoadedCombo> host(kEditable);
  const auto provider = std::make_shared<Provider>();
  const CString longest(std::wstring(80, L'm'));
  provider->items = {L"short", longest};
  host.control.LoadFromProvider(provider);
  EXPECT_EQ(provider->calls, std::vector<bool>{false});
  EXPECT_EQ(host.control.GetCount(), 0);
  QTest::keyClicks(&host.Widget(), QStringLiteral("typed"));
  host.Drop();
  EXPECT_EQ(provider->calls, (std::vector<bool>{false, true}));
  EXPECT_EQ(host.control.GetCount(), 2);
  EXPECT_EQ(host.control.GetText(), L"typed");
  EXPECT_EQ(host.control.GetDroppedWidth(), host.control.GetTextWidth(longest) +
                                                host.control.GetTextWidth(L"WWW") +
                                                GetSystemMetrics(SM_CXVSCROLL));
  EXPECT_GE(host.List().window()->width(), host.control.GetDroppedWidth());
}

TEST(RegLoadedCombo, DropsUnchangedWithoutProvider) {
  ComboHost<CRegLoadedCombo> host(kEditable);
  host.control.LoadFromProvider(nullptr);
  host.control.AddString(L"kept");
  const int width = host.control.GetDroppedWidth();
  host.Drop();
  EXPECT_EQ(host.control.GetCount(), 1);
  EXPECT_EQ(host.control.GetDroppedWidth(), width);
}

TEST(RegLoadedCombo, ReportsAProviderThatFails) {
  ComboHost<CRegLoadedCombo> host(kEditable);
  const auto provider = std::make_shared<Provider>();
  host.control.LoadFromProvider(provider);
  host.control.AddString(L"kept");
  provider->status = E_FAIL;
  const auto shown = AnswerMessages([&] { QTest::keyClick(&host.Widget(), Qt::Key_F4); });
  EXPECT_EQ(shown.size(), 1U);
  EXPECT_EQ(host.control.GetCount(), 1);
  host.control.ShowDropDown(FALSE);
  EXPECT_THROW(host.control.LoadFromProvider(provider), CCP_Exception);
}

QImage Grab(QWidget& widget) { return widget.grab().toImage(); }

TEST(SemiButton, IsFlatAndShowsChecksAsPushed) {
  Host<CSemiButton> host(L"Button", kStop | BS_PUSHBUTTON, L"Browse");
  QWidget& widget = host.Widget();
  host.Widget(kOther).setFocus();
  const QImage idle = Grab(widget);
  EXPECT_EQ(idle.pixel(0, idle.height() / 2), idle.pixel(2, idle.height() / 2)) << "no border";
  host.control.SetCheck(BST_CHECKED);
  const QImage checked = Grab(widget);
  host.control.SetCheck(BST_UNCHECKED);
  host.Widget<QPushButton>().setDown(true);
  EXPECT_EQ(Grab(widget), checked);
  EXPECT_NE(checked, idle);
}

TEST(SemiButton, FitsItsImageWithoutMargin) {
  QImage strip(40, 20, QImage::Format_ARGB32);
  strip.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  ASSERT_TRUE(strip.save(&buffer, "PNG"));
  CBCGPPngImage image;
  ASSERT_TRUE(image.LoadFromMemory(std::as_bytes(std::span(bytes.constData(), bytes.size()))));
  CImageList images;
  images.Create(20, 20, ILC_COLOR32, 0, 4);
  images.Add(image);

  Host<CSemiButton> host(L"Button", kStop | BS_PUSHBUTTON, L"Browse");
  host.control.SetButtonImage(images, 1);
  EXPECT_EQ(host.control.SizeToContent(TRUE), CSize(20, 20));
  EXPECT_NE(host.Widget().width(), 20) << "only calculated";
  host.control.SizeToContent();
  EXPECT_EQ(host.Widget().size(), QSize(20, 20));
  EXPECT_EQ(host.Widget().property("controlKind").toString(), QStringLiteral("image"));
  EXPECT_EQ(host.Widget().property("imageIndex").toInt(), 1);
  EXPECT_EQ(host.TextOfControl(), L"Browse") << "the text stays for those who cannot see";
  EXPECT_EQ(Grab(host.Widget()).pixelColor(10, 10), QColor(Qt::red));
}

TEST(ConfigColorButton, ShowsItsColourAndNamesOthers) {
  const auto language = std::make_shared<FakeLanguage>();
  language->strings[758] = L"Any other";
  const ScopedLanguage scoped(language);
  Host<CConfigColorButton> host(L"Button", kStop | BS_PUSHBUTTON);
  EXPECT_EQ(host.control.OtherCaption(), L"Any other");
  for (const COLORREF colour : {RGB(10, 200, 30), RGB(250, 0, 120)}) {
    host.control.SetColor(colour);
    const QColor expected(GetRValue(colour), GetGValue(colour), GetBValue(colour));
    const QImage image = Grab(host.Widget());
    const QRect face = image.rect().adjusted(2, 2, -2, -2);
    EXPECT_EQ(image.pixelColor(face.topLeft()), expected);
    EXPECT_EQ(image.pixelColor(face.bottomRight()), expected);
    EXPECT_NE(image.pixelColor(face.topLeft() - QPoint(1, 0)), expected);
    EXPECT_NE(image.pixelColor(face.bottomRight() + QPoint(0, 1)), expected);
  }
}

TEST(ConfigColorButton, NamesOthersWithoutALanguage) {
  const ScopedLanguage none(nullptr);
  Host<CConfigColorButton> host(L"Button", kStop | BS_PUSHBUTTON);
  EXPECT_EQ(host.control.OtherCaption(), L"<no language>");
}

TEST(Separator, RulesFromItsTextToTheRightEdge) {
  Host<CSeparator> host(L"Static", kPlain, L"Head");
  QWidget& widget = host.Widget();
  EXPECT_EQ(widget.property("controlKind").toString(), QStringLiteral("separator"));
  const QImage image = Grab(widget);
  const QColor ground = image.pixelColor(image.width() - 1, 0);
  const int middle = image.height() / 2;
  const auto ruled = [&](const QImage& shown, int x) {
    return shown.pixelColor(x, middle) != ground && shown.pixelColor(x, middle - 2) == ground &&
           shown.pixelColor(x, middle + 2) == ground;
  };
  EXPECT_TRUE(ruled(image, image.width() - 1));
  const int end = widget.fontMetrics().horizontalAdvance(QStringLiteral("Head")) + 20;
  ASSERT_LT(end, image.width());
  for (int x = end; x < image.width(); ++x) EXPECT_TRUE(ruled(image, x)) << x;
  EXPECT_FALSE(ruled(image, 0));

  host.control.EnableWindow(FALSE);
  EXPECT_NE(Grab(widget), image) << "greyed";
  host.control.SetWindowText(L"");
  EXPECT_TRUE(ruled(Grab(widget), 0)) << "without a text the rule is whole";
}

}  // namespace
