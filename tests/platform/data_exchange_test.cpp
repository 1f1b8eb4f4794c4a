#include "platform/data_exchange.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMessageBox>

#include "dialog_script.h"
#include "platform/exceptions.h"

namespace {

enum {
  kText = 100,
  kNumber,
  kSecond,
  kCheck,
  kThreeStates,
  kCombo,
  kSlider,
  kRadio,
  kMissing = 999
};

const std::vector<DialogSource> kDialogs = {
    {500,
     {{L"Edit", L"", kText},
      {L"Edit", L"", kNumber},
      {L"Edit", L"", kSecond},
      {L"Button", L"C", kCheck, kStop | BS_AUTOCHECKBOX},
      {L"Button", L"T", kThreeStates, kStop | BS_AUTO3STATE},
      {L"ComboBox", L"", kCombo, kStop | CBS_DROPDOWNLIST},
      {L"msctls_trackbar32", L"", kSlider},
      {L"Button", L"R0", kRadio, kStop | WS_GROUP | BS_AUTORADIOBUTTON},
      {L"Static", L"between", -1, kPlain},
      {L"Button", L"R1", kRadio + 1, kPlain | BS_AUTORADIOBUTTON},
      {L"Button", L"R2", kRadio + 2, kPlain | BS_AUTORADIOBUTTON},
      {L"Button", L"other", kRadio + 3, kStop | WS_GROUP | BS_AUTORADIOBUTTON}}}};

class DataExchange : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dialog_.Create(500, nullptr));
    dialog_.ShowWindow(SW_SHOW);
  }

  BOOL Exchange(BOOL save, const std::function<void(CDataExchange*)>& exchange) {
    dialog_.exchange = exchange;
    return dialog_.UpdateData(save);
  }
  bool RaisesResourceException(const std::function<void(CDataExchange*)>& exchange) {
    try {
      Exchange(FALSE, exchange);
    } catch (CResourceException* error) {
      error->Delete();
      return true;
    }
    return false;
  }
  QWidget* Widget(int id) { return ControlWidget(dialog_, id); }
  void Type(int id, const QString& text) {
    auto* edit = qobject_cast<QLineEdit*>(Widget(id));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
  }
  /// What message boxes say while `run` runs, each answered with Enter.
  std::vector<std::pair<QString, QString>> Boxes(const std::function<void()>& run) {
    std::vector<std::pair<QString, QString>> boxes;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&boxes] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      boxes.emplace_back(box->windowTitle(), box->text());
      EXPECT_EQ(box->icon(), QMessageBox::Warning);
      box->accept();
    });
    watch.start(0);
    run();
    return boxes;
  }

  TestModule module_{kDialogs, {{57344, L"The title"}}};
  TestDialog dialog_{500};
};

TEST_F(DataExchange, ReadsIntegersThatTheUserTyped) {
  const QString refused = QStringLiteral("Please enter an integer.");
  const struct {
    QString typed;
    std::optional<int> value;
  } rows[] = {
      {"42", 42},
      {"  7", 7},
      {"7  ", 7},
      {"-3", -3},
      {"+3", 3},
      {"007", 7},
      {"2147483647", INT_MAX},
      {"-2147483648", INT_MIN},
      {"2147483648", {}},
      {"-2147483649", {}},
      {"", {}},
      {"   ", {}},
      {"12a", {}},
      {"1 2", {}},
      {"+-3", {}},
      {"-", {}},
      {"0x10", {}},
      {"1.0", {}},
      {"99999999999999999999", {}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.typed.toStdString());
    Type(kNumber, row.typed);
    Widget(kText)->setFocus();
    int value = -99;
    BOOL exchanged = FALSE;
    const auto boxes = Boxes([&] {
      exchanged = Exchange(TRUE, [&](CDataExchange* data) { DDX_Text(data, kNumber, value); });
    });
    EXPECT_EQ(exchanged, row.value.has_value());
    EXPECT_EQ(value, row.value.value_or(-99));
    if (row.value) {
      EXPECT_TRUE(boxes.empty());
      continue;
    }
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].first, QStringLiteral("The title"));
    EXPECT_EQ(boxes[0].second, refused);
    EXPECT_EQ(CWnd::GetFocus()->GetDlgCtrlID(), kNumber);
    EXPECT_EQ(qobject_cast<QLineEdit*>(Widget(kNumber))->selectedText(), row.typed);
  }
}

TEST_F(DataExchange, KeepsIntegersInTheirRange) {
  const struct {
    int value, minimum, maximum;
    const char* text;
  } rows[] = {
      {0, 1, 9, "Please enter an integer between 1 and 9."},
      {1, 1, 9, nullptr},
      {9, 1, 9, nullptr},
      {10, 1, 9, "Please enter an integer between 1 and 9."},
      {-8, -7, -1, "Please enter an integer between -7 and -1."},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    Type(kNumber, QString::number(row.value));
    BOOL exchanged = FALSE;
    int value = 0, beyond = 0;
    const auto boxes = Boxes([&] {
      exchanged = Exchange(TRUE, [&](CDataExchange* data) {
        DDX_Text(data, kNumber, value);
        DDV_MinMaxInt(data, value, row.minimum, row.maximum);
        beyond = 1;
      });
    });
    EXPECT_EQ(exchanged, row.text == nullptr);
    EXPECT_EQ(beyond, exchanged);
    ASSERT_EQ(boxes.size(), row.text != nullptr ? 1U : 0U);
    if (row.text != nullptr) {
      EXPECT_EQ(boxes[0].second, QString::fromLatin1(row.text));
      EXPECT_EQ(CWnd::GetFocus()->GetDlgCtrlID(), kNumber);
    }
    // Values on their way to the control are shown as they are.
    EXPECT_TRUE(Exchange(FALSE, [&](CDataExchange* data) {
      DDV_MinMaxInt(data, row.value, row.minimum, row.maximum);
    }));
  }
}

TEST_F(DataExchange, CarriesTexts) {
  CString text = L"a & b";
  int number = -12;
  const auto both = [&](CDataExchange* data) {
    DDX_Text(data, kText, text);
    DDX_Text(data, kNumber, number);
  };
  EXPECT_TRUE(Exchange(FALSE, both));
  EXPECT_EQ(qobject_cast<QLineEdit*>(Widget(kText))->text(), QStringLiteral("a & b"));
  EXPECT_EQ(qobject_cast<QLineEdit*>(Widget(kNumber))->text(), QStringLiteral("-12"));
  QTest::keyClicks(Widget(kText), QStringLiteral("!"));
  Type(kNumber, QStringLiteral("34"));
  EXPECT_TRUE(Exchange(TRUE, both));
  EXPECT_EQ(text, L"a & b!");
  EXPECT_EQ(number, 34);
}

TEST_F(DataExchange, CarriesChecks) {
  const struct {
    int id, stored, shown;
  } rows[] = {
      {kCheck, 0, 0},       {kCheck, 1, 1},       {kCheck, -1, 0},      {kCheck, 3, 0},
      {kThreeStates, 2, 2}, {kThreeStates, 1, 1}, {kThreeStates, 7, 0},
  };
  for (const auto& row : rows) {
    int value = row.stored;
    EXPECT_TRUE(Exchange(FALSE, [&](CDataExchange* data) { DDX_Check(data, row.id, value); }));
    value = -99;
    EXPECT_TRUE(Exchange(TRUE, [&](CDataExchange* data) { DDX_Check(data, row.id, value); }));
    EXPECT_EQ(value, row.shown) << row.id << " " << row.stored;
  }
  QTest::keyClick(Widget(kCheck), Qt::Key_Space);
  int value = -99;
  EXPECT_TRUE(Exchange(TRUE, [&](CDataExchange* data) { DDX_Check(data, kCheck, value); }));
  EXPECT_EQ(value, 1);
}

TEST_F(DataExchange, CarriesTheChosenRadioButton) {
  int other = 0;
  Exchange(FALSE, [&](CDataExchange* data) { DDX_Radio(data, kRadio + 3, other); });
  for (const int stored : {2, 0, 1, -1, 3, 1}) {
    int value = stored;
    EXPECT_TRUE(Exchange(FALSE, [&](CDataExchange* data) { DDX_Radio(data, kRadio, value); }));
    value = -99;
    EXPECT_TRUE(Exchange(TRUE, [&](CDataExchange* data) { DDX_Radio(data, kRadio, value); }));
    EXPECT_EQ(value, stored <= 2 ? stored : -1) << stored;
  }
  QTest::mouseClick(Widget(kRadio + 2), Qt::LeftButton, {}, QPoint(8, 8));
  int value = -99;
  EXPECT_TRUE(Exchange(TRUE, [&](CDataExchange* data) {
    DDX_Radio(data, kRadio, value);
    DDX_Radio(data, kRadio + 3, other);
  }));
  EXPECT_EQ(value, 2);
  EXPECT_EQ(other, 0) << "the next group keeps its own choice";
}

TEST_F(DataExchange, SelectsRowsOfExactlyThatText) {
  ControlView<CComboBox> combo(dialog_.GetDlgItem(kCombo)->m_hWnd);
  for (const wchar_t* row : {L"alpha", L"Alpha", L"alphabet"}) combo->AddString(row);
  const struct {
    const wchar_t* text;
    int row;
  } rows[] = {{L"Alpha", 1}, {L"alpha", 0}, {L"ALPHA", -1}, {L"alphabet", 2}, {L"alph", -1}};
  for (const auto& row : rows) {
    CString value = row.text;
    EXPECT_TRUE(
        Exchange(FALSE, [&](CDataExchange* data) { DDX_CBStringExact(data, kCombo, value); }));
    EXPECT_EQ(combo->GetCurSel(), row.row) << row.row;
    value = L"?";
    EXPECT_TRUE(
        Exchange(TRUE, [&](CDataExchange* data) { DDX_CBStringExact(data, kCombo, value); }));
    EXPECT_EQ(value, row.row >= 0 ? row.text : L"");
  }
}

TEST_F(DataExchange, CarriesTheNumberOfTheChosenRow) {
  ControlView<CComboBox> combo(dialog_.GetDlgItem(kCombo)->m_hWnd);
  for (const wchar_t* text : {L"same", L"same", L"same"}) combo->AddString(text);
  for (const auto& [value, row] : {std::pair{2, 2}, {0, 0}, {3, -1}, {1, 1}, {-1, -1}}) {
    int carried = value;
    const auto exchange = [&](CDataExchange* data) { DDX_CBIndex(data, kCombo, carried); };
    EXPECT_TRUE(Exchange(FALSE, exchange));
    carried = -99;
    EXPECT_TRUE(Exchange(TRUE, exchange));
    EXPECT_EQ(carried, row) << value;
  }
}

TEST_F(DataExchange, CarriesSliders) {
  ControlView<CSliderCtrl>(dialog_.GetDlgItem(kSlider)->m_hWnd)->SetRange(0, 10);
  int value = 4;
  const auto exchange = [&](CDataExchange* data) { DDX_Slider(data, kSlider, value); };
  EXPECT_TRUE(Exchange(FALSE, exchange));
  QTest::keyClick(Widget(kSlider), Qt::Key_Right);
  EXPECT_TRUE(Exchange(TRUE, exchange));
  EXPECT_EQ(value, 5);
}

TEST_F(DataExchange, AttachesControlsOnce) {
  CEdit edit;
  const auto exchange = [&](CDataExchange* data) { DDX_Control(data, kText, edit); };
  EXPECT_TRUE(Exchange(FALSE, exchange));
  EXPECT_TRUE(Exchange(TRUE, exchange));
  EXPECT_EQ(dialog_.GetDlgItem(kText), &edit);
  CEdit another;
  EXPECT_TRUE(
      RaisesResourceException([&](CDataExchange* data) { DDX_Control(data, kText, another); }));
  dialog_.DestroyWindow();
  EXPECT_EQ(edit.m_hWnd, nullptr);
}

TEST_F(DataExchange, LetsOtherExceptionsPass) {
  EXPECT_TRUE(RaisesResourceException([](CDataExchange* data) { data->PrepareCtrl(kMissing); }));
  EXPECT_THROW(Exchange(TRUE, [](CDataExchange*) { throw 5; }), int);
  EXPECT_FALSE(Exchange(TRUE, [](CDataExchange*) { AfxThrowUserException(); }));
  EXPECT_TRUE(Exchange(TRUE, [](CDataExchange*) {}));
  TestDialog closed(500);
  EXPECT_TRUE(closed.UpdateData(TRUE));
}

TEST_F(DataExchange, DoesNotRunInsideItself) {
  BOOL inner = TRUE;
  int runs = 0;
  EXPECT_TRUE(Exchange(TRUE, [&](CDataExchange*) {
    ++runs;
    inner = dialog_.UpdateData(TRUE);
  }));
  EXPECT_FALSE(inner);
  EXPECT_EQ(runs, 1);
}

}  // namespace
