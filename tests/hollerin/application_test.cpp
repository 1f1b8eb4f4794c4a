#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <regex>

#include "hollerin/application.h"
#include "hollerin/hollerin.h"
#include "hollerin/store_xml.h"
#include "hollerin/temporary_folder.h"
#include "platform/machine.h"

namespace {

using namespace HOLLERIN;

struct TestMachine : Machine {
  bool portable = false;
  std::optional<std::optional<std::wstring>> language;
  std::wstring fails;
  bool Portable() const override { return portable; }
  std::optional<std::optional<std::wstring>> LanguageFile() const override { return language; }
  bool Fails(std::wstring_view operation) const override { return operation == fails; }
};

class ApplicationTest : public testing::Test {
 protected:
  ApplicationTest() {
    SetMachine(machine_);
    const char* const head = "<translation><application title=\"";
    Put(folder_ / "lang-en.xml", std::string(head) + "English\"/></translation>");
    Put(folder_ / "lang-de.xml", std::string(head) + "Deutsch\"/></translation>");
    Put(folder_ / "lang-bad.xml", head);
    application_.appFolder = L"/app/";
    application_.langFolder = folder_.Path().wstring() + L"/";
  }
  ~ApplicationTest() override {
    SetUpApplication({});
    SetMachine(nullptr);
  }

  /// The title in the language that the set-up chose; "(none)" without one.
  std::wstring Title() {
    std::shared_ptr<RES::ILanguageMgr> language;
    EXPECT_NE(GetGlobalMgr(&language), nullptr);
    return language == nullptr ? L"(none)" : language->GetAppTitle();
  }

  TemporaryFolder folder_;
  std::shared_ptr<TestMachine> machine_ = std::make_shared<TestMachine>();
  Application application_;
};

TEST_F(ApplicationTest, ChoosesTheLanguage) {
  using Dictated = std::optional<std::optional<std::wstring>>;
  struct Row {
    const wchar_t* file;
    Dictated dictated;
    const wchar_t* title;
    bool fine;
  };
  const Row rows[] = {
      {L"lang-de.xml", {}, L"Deutsch", true},
      {L"lang-none.xml", {}, L"English", false},
      {L"lang-bad.xml", {}, L"English", false},
      {L"lang-en.xml", Dictated(L"lang-de.xml"), L"Deutsch", true},
      {L"lang-en.xml", Dictated(std::optional<std::wstring>()), L"(none)", true},
  };
  for (const Row& row : rows) {
    application_.langFile = row.file;
    machine_->language = row.dictated;
    EXPECT_EQ(SetUpApplication(application_).empty(), row.fine);
    EXPECT_EQ(Title(), row.title);
  }
  std::filesystem::remove(folder_ / "lang-en.xml");
  machine_->language.reset();
  application_.langFile = L"lang-en.xml";
  EXPECT_NE(SetUpApplication(application_).find(L"lang-en.xml"), std::wstring::npos);
  EXPECT_EQ(Title(), L"(none)");
}

TEST_F(ApplicationTest, HandsOutWhatItWasSetUpWith) {
  application_.master = CreateStore();
  application_.log = CreateMemoryLog(nullptr);
  machine_->portable = true;
  SetUpApplication(application_);
  std::wstring folder;
  EXPECT_EQ(GetAppPath(&folder), S_OK);
  EXPECT_EQ(folder, L"/app/");
  EXPECT_EQ(GetLangFileLocation(&folder), S_OK);
  EXPECT_EQ(folder, application_.langFolder);
  StoreHandle store;
  EXPECT_EQ(GetGlobalMasterConfiguration(&store), S_OK);
  EXPECT_EQ(store, application_.master);
  EXPECT_EQ(GetGlobalMgr(nullptr)->GetLogMgr(), application_.log);
  EXPECT_EQ(IsPortableInstall(), 1);
  SetUpApplication({});
  store.reset();
  EXPECT_EQ(GetGlobalMasterConfiguration(&store), E_FAIL);
  EXPECT_EQ(store, nullptr);
}

TEST_F(ApplicationTest, ShipsDefaults) {
  SetUpApplication(application_);
  StoreHandle store;
  ASSERT_EQ(LoadMainDefaultConfiguration(&store), S_OK);
  EXPECT_EQ(store->ReadInt(L"Options", L"MaxNearDistance", 0), 10);
  EXPECT_EQ(store->ReadInt(L"MemMgr", L"MaxSearchMem", 0), 500);
  EXPECT_TRUE(store->ReadBool(L"MemMgr", L"UseMemMgr", false));
  store->Clear();
  StoreHandle second;
  ASSERT_EQ(LoadMainDefaultConfiguration(&second), S_OK);
  EXPECT_EQ(second->ReadInt(L"Options", L"MaxNearDistance", 0), 10) << "the defaults were shared";

  ASSERT_EQ(CreateDefaultMasterConfiguration(&store, true), S_OK);
  EXPECT_EQ(store->ReadString(L"FOLDERS", L"CacheFolder", L"?"), L"/app/cache/");
  EXPECT_EQ(store->ReadString(L"FOLDERS", L"IndexFolder", L"?"), L"/app/index/");
  ASSERT_EQ(CreateDefaultMasterConfiguration(&store, false), S_OK);
  EXPECT_EQ(store->ReadString(L"FOLDERS", L"CacheFolder", L"?"), L"");
  EXPECT_EQ(store->ReadString(L"FOLDERS", L"IndexFolder", L"?"), L"%CACHE%");

  application_.defaultConfig = Values{{L"a", {{L"b", true}}}};
  application_.defaultMaster = Values{{L"c", {{L"d", false}}}};
  SetUpApplication(application_);
  ASSERT_EQ(LoadMainDefaultConfiguration(&store), S_OK);
  EXPECT_EQ(dynamic_cast<Store&>(*store).GetValues(), *application_.defaultConfig);
  ASSERT_EQ(CreateDefaultMasterConfiguration(&store, true), S_OK);
  EXPECT_EQ(dynamic_cast<Store&>(*store).GetValues(), *application_.defaultMaster);
}

TEST_F(ApplicationTest, EveryFunctionFailsWhenTheMachineSaysSo) {
  application_.master = CreateStore();
  SetUpApplication(application_);
  StoreHandle store;
  std::wstring folder;
  std::shared_ptr<INTERNAL_IFC::IConfigInterpreterListMgr> manager, working;
  ASSERT_EQ(CreateConfigInterpreterListMgr(&working), S_OK);
  Put(folder_ / "over.xml", FormatStoreXml({}));
  OpenReport report;
  const auto own = OpenStore((folder_ / "own.xml").wstring(), report);
  ASSERT_NE(own, nullptr);
  const std::pair<const wchar_t*, std::function<HRESULT()>> calls[] = {
      {L"CreateBlankConfigDataMgr", [&] { return CreateBlankConfigDataMgr(&store); }},
      {L"LoadMainDefaultConfiguration", [&] { return LoadMainDefaultConfiguration(&store); }},
      {L"CreateDefaultMasterConfiguration",
       [&] { return CreateDefaultMasterConfiguration(&store, false); }},
      {L"GetGlobalMasterConfiguration", [&] { return GetGlobalMasterConfiguration(&store); }},
      {L"GetAppPath", [&] { return GetAppPath(&folder); }},
      {L"GetLangFileLocation", [&] { return GetLangFileLocation(&folder); }},
      {L"CreateConfigInterpreterListMgr", [&] { return CreateConfigInterpreterListMgr(&manager); }},
      {L"ResyncIFilters", [&] { return working->ResyncIFilters(own, false); }},
      {L"Save", [&] { return own->Save(); }},
      {L"LoadFile", [&] { return own->LoadFile(application_.langFolder, L"over.xml"); }},
  };
  for (const auto& [name, call] : calls) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(name)));
    machine_->fails = name;
    EXPECT_EQ(call(), E_FAIL);
    machine_->fails = L"another";
    EXPECT_EQ(call(), S_OK);
  }
}

TEST(Logs, AFileLogHoldsOneLineForEachEntry) {
  const TemporaryFolder folder;
  const auto log = CreateFileLog((folder / "app.log").wstring());
  log->LogLine(L"plain \u00E4");
  log->LogLine(L"two\r\n2024-01-01T00:00:00.000Z forged\u2028\x1B");
  INTERNAL_IFC::ErrorRecord record;
  record.status = E_FAIL;
  record.task = L"Saving";
  record.systemError = 2;
  record.line = 45;
  log->LogError(record, L"ERROR: text");
  log->LogError(record, L"");
  const std::string stamp = R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z )";
  const std::string facts = R"(\[status 0x80004005, system error 2, line 45\] )";
  EXPECT_TRUE(std::regex_match(
      Contents(folder / "app.log"),
      std::regex(stamp + "plain \xC3\xA4\n" + stamp +
                 R"(two\\r\\n2024-01-01T00:00:00\.000Z forged\\u\{2028\}\\u\{1B\})" + "\n" + stamp +
                 facts + "ERROR: text\n" + stamp + facts + "Saving\n")))
      << Contents(folder / "app.log");
}

TEST(Logs, AnUnwritableFileLogIsReportedOnce) {
  const auto log = CreateFileLog(L"/dev/null/app.log");
  testing::internal::CaptureStderr();
  log->LogLine(L"a");
  log->LogLine(L"b");
  const std::string output = testing::internal::GetCapturedStderr();
  EXPECT_NE(output.find("/dev/null/app.log"), output.npos);
  EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), 1);
}

TEST(Logs, AMemoryLogKeepsLinesAndPassesThemOn) {
  const auto last = CreateMemoryLog(nullptr);
  const auto first = CreateMemoryLog(last);
  first->LogLine(L"a\nb");
  first->LogError({}, L"error");
  const std::vector<std::wstring> expected = {L"a\nb", L"error"};
  EXPECT_EQ(first->TakeLines(), expected);
  EXPECT_EQ(last->TakeLines(), expected);
  EXPECT_TRUE(first->TakeLines().empty());
}

}  // namespace
