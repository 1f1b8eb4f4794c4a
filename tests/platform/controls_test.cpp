// The controls with little to them: buttons, edits, sliders, statics, colour buttons.

#include "platform/controls.h"

#include <gtest/gtest.h>

#include <QColorDialog>
#include <QLabel>
#include <QSizeGrip>
#include <QWheelEvent>

#include "listening_dialog.h"

namespace {

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
