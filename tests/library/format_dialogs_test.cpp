// The dialogs that choose formats: the order of what they write, failures on the way, no store.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>

#include "environment.h"
#include "history_fixture.h"
#include "hollerin/hollerin.h"
#include "hollerin/interpreter_list.h"
#include "ifc/brisquel.h"
#include "support/fake_machine.h"

namespace {

using Lines = std::vector<std::wstring>;
using Open = BRISQUEL::Status (*)(const BRISQUEL::StoreHandle&);

void Click(UINT dialog, int id) {
  QWidget* widget = WidgetOf(dialog, id);
  ASSERT_NE(widget, nullptr);
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(6, widget->height() / 2));
}

class FormatDialogsTest : public testing::Test {
 protected:
  FormatDialogsTest() {
    machine->filters.emplace();
    machine->languages = {{L"eng", L"English"}, {L"fra", L"French"}};
    const auto list =
        HOLLERIN::MakeInterpreterList({{L"Text", L"t", L"txt", L"", L"textconverter", true},
                                       {L"Zip", L"z", L"zip", L"", L"compositefile", true},
                                       {L"Picture", L"p", L"png", L"", L"ocrformat", true}});
    EXPECT_EQ(HOLLERIN::SaveConfigInterpreterList(store, list, true), S_OK);
    store->writes.clear();
  }

  BRISQUEL::Status Run(UINT dialog, Open open, std::function<void()> act, bool withStore = true) {
    const Person person(dialog, std::move(act));
    BRISQUEL::Status status = -1;
    messages = AnswerMessages([&] { status = open(withStore ? store : nullptr); });
    return status;
  }

  /// What was written, a list of interpreters by its place alone.
  Lines Written() const {
    Lines lines = store->writes;
    for (std::wstring& line : lines) {
      if (line.starts_with(L"text Interpreters/List ")) line = L"list";
    }
    return lines;
  }

  ScopedMachine machine;
  std::shared_ptr<RecordingStore> store = std::make_shared<RecordingStore>();
  std::vector<ShownMessage> messages;
};

struct Case {
  const char* name;
  UINT dialog;
  Open open;
  std::vector<int> clicks;
  Lines written;
};

const Case kCases[] = {
    {"documents",
     IDD_FORMATS_DOCUMENT,
     &BRISQUEL::OpenDocumentSettings,
     {IDC_FORMATS_CLEAR_ALL},
     {L"list", L"int Filters/AutoManage 0", L"bool Options/SearchRawDocData false",
      L"bool Options/UseAllDocExtensionTypes false", L"bool Options/ExtractEmbeddedObjects true"}},
    {"documents without boxes",
     IDD_FORMATS_DOCUMENT,
     &BRISQUEL::OpenDocumentSettings,
     {IDC_DOCUMENTS_ALL, IDC_DOCUMENTS_AUTOMATIC},
     {L"int Filters/AutoManage 2", L"bool Options/SearchRawDocData false",
      L"bool Options/UseAllDocExtensionTypes true", L"bool Options/ExtractEmbeddedObjects true"}},
    {"archives",
     IDD_FORMATS_COMPRESSED,
     &BRISQUEL::OpenArchiveSettings,
     {IDC_FORMATS_CLEAR_ALL},
     {L"list", L"bool Options/UseAllCompressedFileTypes false"}},
    {"archives without boxes",
     IDD_FORMATS_COMPRESSED,
     &BRISQUEL::OpenArchiveSettings,
     {IDC_COMPRESSED_ALL},
     {L"bool Options/UseAllCompressedFileTypes true"}},
    {"text recognition",
     IDD_FORMATS_OCR,
     &BRISQUEL::OpenOCRSettings,
     {IDC_OCR_CHECKED},
     {L"text Options/OCRFileTypes p", L"text Options/OCRLanguage eng",
      L"bool Options/CacheOCRText false", L"bool Options/OCRPDFWithText false",
      L"bool Options/OCRDetectOrientation true"}},
};

TEST_F(FormatDialogsTest, WriteInTheirOrderOnOkAndNothingOnCancel) {
  for (const Case& row : kCases) {
    SCOPED_TRACE(row.name);
    for (const int end : {IDCANCEL, IDOK}) {
      const auto act = [&row, end] {
        for (const int id : row.clicks) Click(row.dialog, id);
        Click(row.dialog, end);
      };
      store->writes.clear();
      EXPECT_EQ(Run(row.dialog, row.open, act), end == IDOK ? 0 : 1);
      EXPECT_EQ(Written(), end == IDOK ? row.written : Lines());
      EXPECT_TRUE(messages.empty());
    }
    store->values->ClearSection(L"Filters");
    store->values->ClearSection(L"Options");
  }
}

TEST_F(FormatDialogsTest, AFailureToSaveIsReportedAndTheDialogStays) {
  const struct {
    UINT dialog;
    Open open;
    const wchar_t *fails, *named;
  } cases[] = {
      {IDD_FORMATS_DOCUMENT, &BRISQUEL::OpenDocumentSettings, L"SaveConfigInterpreterList",
       L"Saving configuration information to file"},
      {IDD_FORMATS_COMPRESSED, &BRISQUEL::OpenArchiveSettings, L"FindByKey",
       L"Finding config entry to update"},
  };
  for (const auto& row : cases) {
    std::wstring before;
    store->SaveToText(before);
    for (const bool retry : {false, true}) {
      const auto act = [&] {
        machine->fails = row.fails;
        Click(row.dialog, IDC_FORMATS_CLEAR_ALL);
        Click(row.dialog, IDOK);
        EXPECT_NE(WidgetOf(row.dialog, IDOK), nullptr) << "still open";
        machine->fails.clear();
        if (retry) Click(row.dialog, IDOK);
      };
      EXPECT_EQ(Run(row.dialog, row.open, act), retry ? 0 : 1);
      ASSERT_EQ(messages.size(), 1U);
      EXPECT_NE(messages[0].text.find(row.named), std::wstring::npos);
      std::wstring after;
      store->SaveToText(after);
      EXPECT_EQ(after == before, !retry);
    }
  }
}

TEST_F(FormatDialogsTest, AStoreThatRaisesIsReported) {
  store->failsReading = true;
  BRISQUEL::Status status = -1;
  for (const Open open : {&BRISQUEL::OpenDocumentSettings, &BRISQUEL::OpenArchiveSettings,
                          &BRISQUEL::OpenOCRSettings}) {
    messages = AnswerMessages([&] { status = open(store); });
    EXPECT_EQ(status, 1);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_NE(messages[0].text.find(L"the store cannot be read"), std::wstring::npos);
  }
}

TEST_F(FormatDialogsTest, AFailureToRefillTheListIsReported) {
  const auto act = [&] {
    machine->fails = L"GetAt";
    Click(IDD_FORMATS_COMPRESSED, IDC_COMPRESSED_ALL);
    machine->fails.clear();
    Click(IDD_FORMATS_COMPRESSED, IDC_FORMATS_CHECKED);
    Click(IDD_FORMATS_COMPRESSED, IDOK);
  };
  EXPECT_EQ(Run(IDD_FORMATS_COMPRESSED, &BRISQUEL::OpenArchiveSettings, act), 0);
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_NE(messages[0].text.find(L"Getting config for entry"), std::wstring::npos);
}

TEST_F(FormatDialogsTest, WithoutAStoreTheDefaultsShow) {
  const struct {
    UINT dialog;
    Open open;
    std::vector<int> checked;
  } cases[] = {
      {IDD_FORMATS_DOCUMENT,
       &BRISQUEL::OpenDocumentSettings,
       {IDC_DOCUMENTS_MANUAL, IDC_FORMATS_CHECKED, IDC_DOCUMENTS_EMBEDDED}},
      {IDD_FORMATS_COMPRESSED, &BRISQUEL::OpenArchiveSettings, {IDC_FORMATS_CHECKED}},
      {IDD_FORMATS_OCR,
       &BRISQUEL::OpenOCRSettings,
       {IDC_OCR_ALL, IDC_OCR_ORIENTATION, IDC_OCR_PDF_WITHOUT_TEXT}},
  };
  for (const auto& row : cases) {
    const auto act = [&row] {
      for (const int id : row.checked) {
        EXPECT_TRUE(static_cast<QAbstractButton*>(WidgetOf(row.dialog, id))->isChecked()) << id;
      }
      const auto* list = static_cast<QAbstractItemView*>(WidgetOf(row.dialog, IDC_FORMATS_LIST));
      EXPECT_GT(list->model()->rowCount(), 5) << "the default list";
      EXPECT_FALSE(list->accessibleName().isEmpty());
      Click(row.dialog, IDOK);
    };
    EXPECT_EQ(Run(row.dialog, row.open, act, false), 0);
    EXPECT_TRUE(messages.empty());
  }
}

TEST_F(FormatDialogsTest, TheLanguageBoxIsNamedByItsLabelAndSaysWhyItIsEmpty) {
  const struct {
    std::vector<OcrLanguage> languages;
    const char* hint;
  } cases[] = {
      {{}, "No language is installed"},
      {{{L"eng", L"English", false}}, "No language is installed"},
      {{{L"fra", L"French"}}, "Select a language"},
  };
  for (const auto& row : cases) {
    machine->languages = row.languages;
    const auto act = [&row] {
      const auto* box = static_cast<QComboBox*>(WidgetOf(IDD_FORMATS_OCR, IDC_OCR_LANGUAGE));
      EXPECT_EQ(box->accessibleName(), "Language of the text");
      EXPECT_EQ(box->currentIndex(), -1);
      EXPECT_EQ(box->placeholderText(), row.hint);
      Click(IDD_FORMATS_OCR, IDCANCEL);
    };
    EXPECT_EQ(Run(IDD_FORMATS_OCR, &BRISQUEL::OpenOCRSettings, act), 1);
  }
}

}  // namespace
