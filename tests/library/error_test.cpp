#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "environment.h"
#include "fake_language.h"
#include "foundation/catch_chain.h"
#include "foundation/error_text.h"
#include "foundation/globals.h"
#include "foundation/message_helpers.h"
#include "platform/exceptions.h"

namespace {

constexpr HRESULT kDenied = static_cast<HRESULT>(0x80070005U);

TEST(Exception, AFailingStatusRaises) {
  SetLastError(5);
  const std::int32_t line = __LINE__ + 2;
  try {
    ThrowHr(kDenied, L"Applying configuration");
    FAIL() << "nothing was raised";
  } catch (const CCP_Exception& exception) {
    const ErrorRecord& record = exception.Record();
    EXPECT_EQ(record.status, kDenied);
    EXPECT_EQ(record.task, L"Applying configuration");
    EXPECT_EQ(record.systemError, 5U);
    EXPECT_FALSE(record.detail);
    EXPECT_TRUE(record.valid);
    EXPECT_EQ(record.line, line);
  }
  try {
    ThrowHr(E_FAIL, L"Getting config for entry into list", 112);
    FAIL() << "nothing was raised";
  } catch (const CCP_Exception& exception) {
    EXPECT_EQ(exception.Record().line, 112);
  }
}

TEST(Exception, OtherStatusesRaiseNothing) {
  EXPECT_NO_THROW(ThrowHr(S_OK, L"Task"));
  EXPECT_NO_THROW(ThrowHr(S_FALSE, L"Task"));
}

struct DescriptionCase {
  ErrorRecord record;
  const wchar_t* expected;
};

const DescriptionCase kDescriptions[] = {
    {{.status = E_FAIL, .task = L"Saving"}, L"Saving failed\r\n\r\n0x80004005 (0x0)"},
    {{.status = E_FAIL, .task = L"Saving", .line = 0},
     L"Saving failed\r\n\r\n0x80004005 (0x0) - :0"},
    {{.status = kDenied, .task = L"Saving", .systemError = 5, .line = 281},
     L"Saving failed\r\n\r\n0x80070005 (0x5 Input/output error) - :281"},
    {{.status = -1, .task = L"Saving", .systemError = 28},
     L"Saving failed\r\n\r\n0xffffffff (0x1c No space left on device)"},
    {{.status = E_FAIL, .task = L"No room", .detail = true}, L"No room \r\n\r\n0x80004005 (0x0)"},
    {{.status = S_OK, .task = L"No room", .systemError = 5, .line = 7}, L"No room"},
};

TEST(ErrorText, DescribesARecord) {
  for (const DescriptionCase& row : kDescriptions) {
    EXPECT_EQ(DescribeRecord(row.record), row.expected);
  }
}

struct TextCase {
  bool interactive;
  const wchar_t* context;
  const wchar_t* source;
  ErrorRecord record;
  const wchar_t* expected;
};

const ErrorRecord kPlain{.status = E_FAIL, .task = L"Saving", .line = 3};
const ErrorRecord kDetail{.status = E_FAIL, .task = L"The disk is full.", .detail = true};
const std::wstring kEnglishHeading =
    L"An error has occurred. If the problem persists please contact technical support.\r\n\r\n"
    L"Additional information:\r\n\r\n";

const TextCase kFallbackTexts[] = {
    {false, L"", L"core/config_mgr", kPlain,
     L"ERROR: Saving failed\r\n\r\n0x80004005 (0x0) - :3 - core/config_mgr"},
    {false, L"Loading languages", L"C:\\build\\page.cpp", kPlain,
     L"ERROR: Problem running task: Loading languages\r\n\r\nSaving failed\r\n\r\n0x80004005 (0x0) "
     L"- :3 - page.cpp"},
    {false, L"", L"C:", kPlain, L"ERROR: Saving failed\r\n\r\n0x80004005 (0x0) - :3 - "},
    {false, L"", L"abc", kPlain, L"ERROR: Saving failed\r\n\r\n0x80004005 (0x0) - :3 - abc"},
    {true, L"Saving settings", L"source", kDetail,
     L"Problem running task: Saving settings\r\n\r\nThe disk is full."},
    {false, L"", L"source", kDetail, L"The disk is full."},
};

void ExpectTexts(std::span<const TextCase> rows) {
  for (const TextCase& row : rows) {
    EXPECT_EQ(BuildErrorText(row.interactive, row.context, row.source, row.record), row.expected);
  }
}

TEST(ErrorText, WithoutLanguage) {
  const ScopedLanguage none(nullptr);
  ExpectTexts(kFallbackTexts);
  EXPECT_EQ(BuildErrorText(true, L"", L"source", kPlain),
            kEnglishHeading + L"Saving failed\r\n\r\n0x80004005 (0x0) - :3 - source");
}

TEST(ErrorText, InTheLanguage) {
  const auto language = std::make_shared<FakeLanguage>();
  const ScopedLanguage scope(language);
  language->strings = {{539, L"Aufgabe"}, {540, L""}};
  ExpectTexts(std::span(kFallbackTexts).first(1));
  EXPECT_EQ(
      BuildErrorText(true, L"X", L"source", kPlain),
      kEnglishHeading + L"Aufgabe: X\r\n\r\nSaving failed\r\n\r\n0x80004005 (0x0) - :3 - source");
  language->strings = {{540, L"Fehler"}, {541, L"Mehr"}};
  EXPECT_EQ(BuildErrorText(true, L"", L"source", kPlain),
            L"Fehler\r\n\r\nMehr:\r\n\r\nSaving failed\r\n\r\n0x80004005 (0x0) - :3 - source");
}

TEST(ErrorText, ShortensFrom2001Characters) {
  const std::wstring first(1000, L'a'), last(1000, L'z');
  EXPECT_EQ(ShortenForDisplay(first + last), first + last);
  EXPECT_EQ(ShortenForDisplay(first + L"!" + last), first + L"\r\n...\r\n" + last);
}

/// What was handed to the display that the catch chain made last.
struct Report {
  ErrorRecord record;
  std::wstring text, caption;
};
Report lastReport;

class RecordingDisplay : public IDisplayErr {
 public:
  void DisplayError(const ErrorRecord& record, const std::wstring& text,
                    const std::wstring& caption) override {
    lastReport = {record, text, caption};
  }
  bool IsInteractive() const override { return false; }
};

std::shared_ptr<IDisplayErr> MakeRecordingDisplay() { return std::make_shared<RecordingDisplay>(); }

struct CatchCase {
  void (*raise)();
  HRESULT status;
  const wchar_t* caption;
  const wchar_t* text;
};

const CatchCase kCatches[] = {
    {[] { ThrowHr(kDenied, L"Saving", 9); }, kDenied, L"Application Error",
     L"ERROR: Saving failed\r\n\r\n0x80070005 (0x0) - :9 - here"},
    {[] { throw CCP_Exception({.status = S_FALSE, .task = L"Odd"}); }, E_FAIL, L"Application Error",
     L"ERROR: Odd - here"},
    {[] { AfxThrowResourceException(L"Control 7 is missing"); }, E_FAIL,
     L"Application - Framework Error", L"ERROR: Control 7 is missing - here"},
    {[] { throw std::runtime_error("no such value"); }, E_FAIL, L"Application - STL Error",
     L"ERROR: no such value - here"},
    {[] { throw std::bad_alloc(); }, E_OUTOFMEMORY, L"Application - STL Error",
     L"ERROR: std::bad_alloc - here"},
    {[] { throw 42; }, static_cast<HRESULT>(0x80040605U), L"Application - Unexpected Error",
     L"ERROR: Unexpected error failed\r\n\r\n0x80040605 (0x0) - here"},
};

TEST(CatchChain, ReportsByKind) {
  for (const CatchCase& row : kCatches) {
    SetLastError(0);
    lastReport = {};
    EXPECT_EQ(RunGuarded(row.raise, MakeRecordingDisplay, CString(), L"here"), row.status);
    EXPECT_EQ(lastReport.caption, row.caption);
    EXPECT_EQ(lastReport.text, row.text);
    EXPECT_TRUE(lastReport.caption != L"Application - Unexpected Error" ||
                lastReport.record.status == row.status);
  }
}

TEST(CatchChain, ReportsComponentErrorsWithTheirStatus) {
  const auto raise = [] { throw _com_error(kDenied); };
  EXPECT_EQ(RunGuarded(raise, MakeRecordingDisplay, CString(), L"here"), kDenied);
  EXPECT_EQ(lastReport.caption, L"Application - COM Error");
  EXPECT_EQ(lastReport.record.status, kDenied);
  EXPECT_NE(lastReport.text.find(_com_error(kDenied).ErrorMessage()), std::wstring::npos);
}

TEST(CatchChain, IsQuietWithoutAFailure) {
  lastReport = {};
  bool ran = false;
  EXPECT_EQ(RunGuarded([&] { ran = true; }, MakeRecordingDisplay, CString(), L"here"), S_OK);
  EXPECT_TRUE(ran);
  EXPECT_EQ(lastReport.caption, L"");
}

TEST(Display, MessageBoxShowsAndLogs) {
  TakeLog();
  const auto shown = AnswerMessages([] {
    RunGuarded([] { ThrowHr(E_FAIL, L"Applying configuration"); }, MakeMsgBoxDisplay,
               L"Saving settings", L"here");
  });
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].caption, L"Application Error");
  EXPECT_NE(shown[0].text.find(L"Applying configuration failed"), std::wstring::npos);
  EXPECT_NE(shown[0].text.find(L"Saving settings"), std::wstring::npos);
  EXPECT_EQ(TakeLog().size(), 1U);
}

TEST(Display, MessageBoxShortensButLogsAndReturnsAll) {
  TakeLog();
  const std::wstring text = std::wstring(1500, L'a') + std::wstring(1500, L'z');
  std::wstring last;
  const auto shown = AnswerMessages(
      [&] { CDisplayMsgBox(&last).DisplayError({.status = E_FAIL, .task = L"t"}, text, L""); });
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].caption, L"Error");
  EXPECT_LT(shown[0].text.size(), text.size());
  EXPECT_EQ(last, text);
  EXPECT_EQ(TakeLog(), std::vector<std::wstring>{text});
}

TEST(Display, LogDisplayShowsNothing) {
  TakeLog();
  const auto shown = AnswerMessages([] {
    EXPECT_EQ(RunGuarded([] { throw 1; }, MakeLogDisplay, CString(), L"here"), kUnknownFailure);
  });
  EXPECT_TRUE(shown.empty());
  const auto log = TakeLog();
  ASSERT_EQ(log.size(), 1U);
  EXPECT_TRUE(log[0].starts_with(L"ERROR: Unexpected error failed")) << log[0].size();
}

class BrokenLog : public INTERNAL_IFC::ILogMgr {
 public:
  void LogLine(const std::wstring&) override { throw std::runtime_error("no log"); }
  void LogError(const ErrorRecord&, const std::wstring&) override {
    throw std::runtime_error("no log");
  }
};

class GlobalWithBrokenLog : public INTERNAL_IFC::IGlobalMgr {
 public:
  std::shared_ptr<INTERNAL_IFC::ILogMgr> GetLogMgr() override {
    return std::make_shared<BrokenLog>();
  }
};

TEST(Display, ABrokenOrMissingLogKeepsNothingFromTheUser) {
  const auto global = Process().global;
  for (const std::shared_ptr<INTERNAL_IFC::IGlobalMgr>& broken :
       {std::shared_ptr<INTERNAL_IFC::IGlobalMgr>(),
        std::shared_ptr<INTERNAL_IFC::IGlobalMgr>(std::make_shared<GlobalWithBrokenLog>())}) {
    Process().global = broken;
    const auto shown = AnswerMessages([] {
      CDisplayMsgBox().DisplayError({}, L"text", L"caption");
      ShowErrorText(L"text");
      CDisplayToLog().DisplayError({}, L"text", L"caption");
    });
    EXPECT_EQ(shown.size(), 2U);
  }
  Process().global = global;
}

TEST(Messages, CaptionTitleAndButtons) {
  const auto language = std::make_shared<FakeLanguage>();
  const ScopedLanguage scope(language);
  language->strings = {{7, L"Continue?"}, {8, L"Question"}};
  language->appTitle = L"Title";
  language->messageCaption = L"Caption";
  TakeLog();
  int answer = 0;
  auto shown = AnswerMessages([&] { answer = ShowLangMessage(7, MB_YESNO, 8); }, QMessageBox::No);
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(answer, IDNO);
  EXPECT_EQ(shown[0].caption, L"Caption");
  EXPECT_EQ(shown[0].heading, L"Question");
  EXPECT_EQ(shown[0].text, L"Continue?");
  EXPECT_EQ(shown[0].icon, QMessageBox::Warning);
  EXPECT_EQ(shown[0].buttons, QMessageBox::Yes | QMessageBox::No);
  EXPECT_EQ(TakeLog(), std::vector<std::wstring>{L"Continue?"});

  shown = AnswerMessages([] { ShowErrorText(L"Broken"); });
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].heading, L"Title");
  EXPECT_EQ(shown[0].buttons, QMessageBox::Ok);
}

TEST(Messages, WithoutLanguageAndWithALongText) {
  const ScopedLanguage none(nullptr);
  TakeLog();
  const std::wstring text(2001, L'a');
  const auto shown = AnswerMessages([&] {
    ShowMessageText(text, MB_OK);
    ShowLangMessage(7, MB_OK);
  });
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0].caption, L"Application Message");
  EXPECT_EQ(shown[0].heading, L"");
  EXPECT_EQ(shown[1].text, L"<no language>");
  EXPECT_EQ(TakeLog(), (std::vector<std::wstring>{ShortenForDisplay(text), L"<no language>"}));
}

}  // namespace
