// The dialog of the text cache, used as a person uses it.

#include <QLineEdit>

#include "environment.h"
#include "foundation/byte_size.h"
#include "history_fixture.h"
#include "hollerin/temporary_folder.h"
#include "quimbly/text_cache.h"
#include "support/fake_machine.h"

namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::wstring>;

void Click(int id) {
  QWidget* widget = WidgetOf(IDD_CACHE_SETTINGS, id);
  ASSERT_NE(widget, nullptr);
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(6, widget->height() / 2));
}
void Type(int id, const std::wstring& text) {
  auto* edit = static_cast<QLineEdit*>(WidgetOf(IDD_CACHE_SETTINGS, id));
  edit->setFocus();
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  for (const wchar_t character : text) QTest::keyClick(edit, static_cast<char>(character));
}
std::string Text(int id) {
  return WidgetOf(IDD_CACHE_SETTINGS, id)->property("text").toString().toStdString();
}
bool Enabled(int id) { return WidgetOf(IDD_CACHE_SETTINGS, id)->isEnabled(); }

class CacheSettings : public testing::Test {
 protected:
  CacheSettings() {
    for (const char* name : {"old", "new"}) fs::create_directory(folder / name);
    machine->folders = {{L"%HERE%", folder.Path().wstring()}};
    SetStored(L"%HERE%/old");
    SetGlobalMaster(master);
  }
  ~CacheSettings() override { SetGlobalMaster(nullptr); }

  void SetStored(const std::wstring& text) {
    master->WriteString(L"FOLDERS", L"CacheFolder", text);
    EXPECT_GE(master->Save(), 0);
  }
  std::wstring Stored() { return master->ReadString(L"FOLDERS", L"CacheFolder", L"none"); }
  /// What a later run of the application would read.
  std::wstring Saved() {
    HOLLERIN::OpenReport fresh;
    return HOLLERIN::OpenStore(masterFile, fresh)->ReadString(L"FOLDERS", L"CacheFolder", L"none");
  }
  void Fill(const char* name) {
    TextCache cache;
    ASSERT_TRUE(cache.Open((folder / name / kCacheFileName).string()));
    const CachedText text = {{L"/a", 1, 1}, L"x"};
    ASSERT_TRUE(cache.Put(std::span(&text, 1)));
  }
  bool HasCache(const char* name) const { return fs::exists(folder / name / kCacheFileName); }

  BRISQUEL::Status Run(std::function<void()> act,
                       QMessageBox::StandardButton answer = QMessageBox::Ok) {
    const Person person(IDD_CACHE_SETTINGS, std::move(act));
    BRISQUEL::Status status = -1;
    messages = AnswerMessages([&] { status = BRISQUEL::OpenCacheSettings(store); }, answer);
    return status;
  }
  void ExpectMessage(std::size_t number, const wchar_t* part) {
    ASSERT_GT(messages.size(), number);
    EXPECT_NE(messages[number].text.find(part), std::wstring::npos)
        << QString::fromStdWString(messages[number].text).toStdString();
  }

  ScopedMachine machine;
  TemporaryFolder folder;
  std::wstring masterFile = (folder / "master.xml").wstring();
  HOLLERIN::OpenReport opened;
  std::shared_ptr<HOLLERIN::Store> master = HOLLERIN::OpenStore(masterFile, opened);
  std::shared_ptr<RecordingStore> store = std::make_shared<RecordingStore>();
  std::vector<ShownMessage> messages;
};

TEST(ByteSize, HasTheUnitThatTheNumberAsksFor) {
  const std::pair<std::int64_t, const wchar_t*> kSizes[] = {
      {0, L"0.00 KB"},           {1, L"0.00 KB"},
      {1536, L"1.50 KB"},        {0x100000, L"1024.00 KB"},
      {0x100001, L"1.00 MB"},    {0x40000000, L"1024.00 MB"},
      {0x40000001, L"1.00 GB"},  {0xFFFFFFFF, L"4.00 GB"},
      {0x100000000, L"4.00 GB"}, {INT64_MAX, L"8589934592.00 GB"},
      {-1, L"0.00 GB"},          {INT64_MIN, L"0.00 GB"},
  };
  for (const auto& [bytes, text] : kSizes) EXPECT_EQ(ByteSizeText(bytes), text) << bytes;
  EXPECT_EQ(SizeText(12.345, kUnitBytes), L"12.35 bytes");
  EXPECT_EQ(SizeText(1e16, kUnitTerabytes), L"10000000000000000.00 TB");
  EXPECT_EQ(SizeText(1.1e16, kUnitMegabytes), L"99999999999.00 MB");
  EXPECT_EQ(SizeText(1, 0), L"1.00 Unknown");
  EXPECT_EQ(SizeText(1, 6), L"1.00 Unknown");
}

TEST_F(CacheSettings, ReadsAndWritesInTheStatedOrder) {
  store->values->WriteInt(L"Options", L"CacheExpireDays", 30);
  EXPECT_EQ(Run([this] {
              EXPECT_EQ(store->reads,
                        (Lines{L"int Options/MaxTextCacheSize 0", L"int Options/CacheExpireDays 0",
                               L"int Options/CacheExpirePolicy 0"}));
              EXPECT_EQ(Text(IDC_CACHE_FOLDER), "%HERE%/old");
              Click(IDC_CACHE_CLEAR_ON_EXIT);
              Click(IDOK);
            }),
            0);
  EXPECT_EQ(store->writes,
            (Lines{L"int Options/MaxTextCacheSize 52428800", L"int Options/CacheExpireDays 30",
                   L"int Options/CacheExpirePolicy 2"}));
  EXPECT_TRUE(messages.empty());
}

TEST_F(CacheSettings, TheSizeLimitIsShownInKilobytes) {
  const struct {
    int stored;
    const char* shown;
    const wchar_t* typed;  ///< Null: left as it is.
    int written;
  } kLimits[] = {{0, "51200", nullptr, 52428800},
                 {-5, "51200", nullptr, 52428800},
                 {1, "0", L"1", 1024},
                 {2047, "1", nullptr, 1024},
                 {1024, "1", L"51200", 52428800},
                 {52428800, "51200", L"1000000", 1024000000},
                 {INT32_MAX, "2097151", L"1", 1024}};
  store->values->WriteInt(L"Options", L"CacheExpireDays", 1);
  for (const auto& row : kLimits) {
    store->values->WriteInt(L"Options", L"MaxTextCacheSize", row.stored);
    EXPECT_EQ(Run([&] {
                EXPECT_EQ(Text(IDC_MAX_CACHE_SIZE), row.shown);
                if (row.typed != nullptr) Type(IDC_MAX_CACHE_SIZE, row.typed);
                Click(IDOK);
              }),
              0);
    EXPECT_EQ(store->values->ReadInt(L"Options", L"MaxTextCacheSize", -1), row.written);
  }
}

TEST_F(CacheSettings, RefusesNumbersOutsideTheirRange) {
  const struct {
    int id;
    const wchar_t* text;
    const wchar_t* message;  ///< Null where the number is accepted.
  } kNumbers[] = {{IDC_MAX_CACHE_SIZE, L"0", L"between 1 and 1000000"},
                  {IDC_MAX_CACHE_SIZE, L"1000001", L"between 1 and 1000000"},
                  {IDC_MAX_CACHE_SIZE, L"", L"integer"},
                  {IDC_MAX_CACHE_SIZE, L"1000000", nullptr},
                  {IDC_CACHE_EXPIRE_DAYS, L"0", L"between 1 and 999999"},
                  {IDC_CACHE_EXPIRE_DAYS, L"1000000", L"between 1 and 999999"},
                  {IDC_CACHE_EXPIRE_DAYS, L"x", L"integer"},
                  {IDC_CACHE_EXPIRE_DAYS, L"999999", nullptr}};
  for (const auto& row : kNumbers) {
    SCOPED_TRACE(testing::Message()
                 << row.id << " " << testing::PrintToString(std::wstring(row.text)));
    store->writes.clear();
    store->values->WriteInt(L"Options", L"CacheExpireDays", 7);
    store->values->WriteInt(L"Options", L"CacheExpirePolicy", 1);
    EXPECT_EQ(Run([&] {
                Type(row.id, row.text);
                Click(IDOK);
                EXPECT_TRUE(row.message == nullptr || HasFocus(IDD_CACHE_SETTINGS, row.id));
              }),
              row.message != nullptr ? 1 : 0);
    EXPECT_EQ(store->writes.size(), row.message != nullptr ? 0U : 3U);
    if (row.message != nullptr) ExpectMessage(0, row.message);
  }
}

TEST_F(CacheSettings, TheDaysCountWhileTheyAreDisabledToo) {
  EXPECT_EQ(Run([] {
              EXPECT_EQ(Text(IDC_CACHE_EXPIRE_DAYS), "0");
              EXPECT_FALSE(Enabled(IDC_CACHE_EXPIRE_DAYS));
              Click(IDOK);
              Click(IDC_CACHE_EXPIRE);
              EXPECT_TRUE(Enabled(IDC_CACHE_EXPIRE_DAYS));
              Type(IDC_CACHE_EXPIRE_DAYS, L"3");
              for (const int other : {IDC_CACHE_KEEP, IDC_CACHE_CLEAR_ON_EXIT}) {
                Click(other);
                EXPECT_FALSE(Enabled(IDC_CACHE_EXPIRE_DAYS));
              }
              Click(IDOK);
            }),
            0);
  ExpectMessage(0, L"between 1 and 999999");
  EXPECT_EQ(store->values->ReadInt(L"Options", L"CacheExpireDays", 0), 3);
  EXPECT_EQ(store->values->ReadInt(L"Options", L"CacheExpirePolicy", 0), 2);
}

TEST_F(CacheSettings, ShowsTheFiguresAndNamesItsControls) {
  machine->cache = CacheContents{1234567, 0x100001};
  Run([] {
    EXPECT_EQ(Text(IDC_CACHE_ITEMS), "1,234,567");
    EXPECT_EQ(Text(IDC_CACHE_SIZE), "1.00 MB");
    for (const int id :
         {IDC_CACHE_FOLDER_BROWSE, IDC_CACHE_FOLDER_OPEN, IDC_CACHE_FOLDER, IDC_MAX_CACHE_SIZE}) {
      EXPECT_FALSE(WidgetOf(IDD_CACHE_SETTINGS, id)->accessibleName().isEmpty()) << id;
    }
    EXPECT_TRUE(
        WidgetOf(IDD_CACHE_SETTINGS, IDC_CACHE_EXPIRE_DAYS)->accessibleName().contains("days"));
    // What the user has typed stays when the figures change.
    Type(IDC_MAX_CACHE_SIZE, L"77");
    Click(IDC_DELETE_CACHE);
    EXPECT_EQ(Text(IDC_CACHE_ITEMS), "0");
    EXPECT_EQ(Text(IDC_CACHE_SIZE), "0.00 KB");
    EXPECT_EQ(Text(IDC_MAX_CACHE_SIZE), "77");
  });
  EXPECT_TRUE(messages.empty());
}

struct FolderCase {
  const char* what;
  const wchar_t* stored;
  const wchar_t* typed;
  bool asked;
  const wchar_t* after;  ///< Stored and saved after Yes.
  bool deleted;          ///< The cache of the old folder, after Yes.
};

const FolderCase kFolderCases[] = {
    {"the same text", L"%HERE%/old", L"%HERE%/old", false, L"%HERE%/old", false},
    {"the same folder", L"%HERE%/old", L"%HERE%/new/../old", false, L"%HERE%/old", false},
    {"another folder", L"%HERE%/old", L"%HERE%/new", true, L"%HERE%/new", true},
    {"a missing folder", L"%HERE%/old", L"%HERE%/none", true, L"%HERE%/none", true},
    {"no folder", L"%HERE%/old", L"", true, L"", true},
    {"the first folder", L"", L"%HERE%/new", false, L"%HERE%/new", false},
    {"instead of one that is gone", L"%HERE%/gone", L"%HERE%/new", false, L"%HERE%/new", false},
    {"instead of an unknown one", L"%NOBODY%", L"%HERE%/new", false, L"%HERE%/new", false},
};

TEST_F(CacheSettings, AsksBeforeTheFolderChanges) {
  store->values->WriteInt(L"Options", L"CacheExpireDays", 1);
  for (const FolderCase& row : kFolderCases) {
    for (const bool yes : {false, true}) {
      SCOPED_TRACE(testing::Message() << row.what << (yes ? ", yes" : ", no"));
      SetStored(row.stored);
      Fill("old");
      Fill("new");
      store->writes.clear();
      const auto status = Run(
          [&] {
            Type(IDC_CACHE_FOLDER, row.typed);
            Click(IDOK);
          },
          yes         ? QMessageBox::Yes
          : row.asked ? QMessageBox::No
                      : QMessageBox::Ok);
      EXPECT_EQ(messages.size(), row.asked ? 1U : 0U);
      const bool done = yes || !row.asked;
      EXPECT_EQ(status, done ? 0 : 1);
      EXPECT_EQ(Stored(), done ? row.after : row.stored);
      EXPECT_EQ(Saved(), Stored());
      EXPECT_EQ(HasCache("old"), !(row.deleted && yes));
      EXPECT_TRUE(HasCache("new"));
      EXPECT_EQ(store->writes.size(), 3U) << "written before the question";
      for (const ShownMessage& message : messages) {
        EXPECT_EQ(message.buttons, QMessageBox::Yes | QMessageBox::No);
      }
    }
  }
}

TEST_F(CacheSettings, AFailureKeepsTheDialogOpen) {
  const struct {
    const wchar_t* fails;
    const wchar_t* typed;
    std::vector<const wchar_t*> messages;
    const wchar_t* stored;
  } kFailures[] = {
      {L"GetGlobalMasterConfiguration",
       L"%HERE%/new",
       {L"Unable to load master configuration", L"Loading master configuration failed"},
       L"%HERE%/old"},
      {L"ExpandPath", L"%HERE%/new", {L"Making out the cache folder failed"}, L"%HERE%/old"},
      {L"", L"%NOBODY%/x", {L"Making out the cache folder failed"}, L"%HERE%/old"},
      {L"CreateAppFolderMgr", L"/x", {L"Making out the cache folder failed"}, L"%HERE%/old"},
      {L"Save",
       L"%HERE%/new",
       {L"new folder?", L"Saving master configuration failed"},
       L"%HERE%/old"},
      {L"DeleteCache",
       L"%HERE%/new",
       {L"new folder?", L"Deleting the text cache failed"},
       L"%HERE%/new"},
  };
  store->values->WriteInt(L"Options", L"CacheExpireDays", 1);
  for (const auto& row : kFailures) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(row.fails)));
    SetStored(L"%HERE%/old");
    Fill("old");
    machine->fails = row.fails;
    EXPECT_EQ(Run(
                  [&] {
                    Type(IDC_CACHE_FOLDER, row.typed);
                    Click(IDOK);
                    EXPECT_EQ(Text(IDC_CACHE_FOLDER),
                              QString::fromStdWString(row.typed).toStdString());
                  },
                  std::wstring_view(row.messages[0]) == L"new folder?" ? QMessageBox::Yes
                                                                       : QMessageBox::Ok),
              1);
    machine->fails.clear();
    ASSERT_EQ(messages.size(), row.messages.size());
    for (std::size_t n = 0; n < messages.size(); ++n) ExpectMessage(n, row.messages[n]);
    EXPECT_EQ(Stored(), row.stored);
    EXPECT_TRUE(HasCache("old"));
  }
}

TEST_F(CacheSettings, CompactAndDeleteReportWhatFails) {
  const struct {
    const wchar_t* fails;
    int id;
    const wchar_t* description;
    const wchar_t* task;
  } kFailures[] = {
      {L"CompactCache", IDC_COMPACT_CACHE, L"Compacting Cache Database",
       L"Compacting the text cache"},
      {L"DeleteCache", IDC_DELETE_CACHE, L"Deleting Cache Database", L"Deleting the text cache"},
      {L"CreateCacheMgr", IDC_COMPACT_CACHE, L"Compacting Cache Database",
       L"Checking cache available"},
      {L"CreateCacheMgr", IDC_DELETE_CACHE, L"Deleting Cache Database",
       L"Checking cache available"},
  };
  Fill("old");
  for (const auto& row : kFailures) {
    machine->fails = row.fails;
    const bool without = machine->fails == L"CreateCacheMgr";
    EXPECT_EQ(Run([&] {
                EXPECT_EQ(Text(IDC_CACHE_ITEMS), without ? "<items>" : "1");
                EXPECT_EQ(Text(IDC_CACHE_SIZE) == "<size>", without);
                Click(row.id);
              }),
              1);
    ASSERT_EQ(messages.size(), without ? 2U : 1U);
    if (without) ExpectMessage(0, L"Unable to create cache mgr");
    EXPECT_EQ(messages.back().caption, L"Application Error");
    for (const wchar_t* part :
         {row.description, row.task, L"80004005", L"Brisquel/CacheSettings"}) {
      ExpectMessage(messages.size() - 1, part);
    }
  }
  EXPECT_TRUE(HasCache("old"));
}

TEST_F(CacheSettings, WithoutAStoreTheCacheCanBeLookedAfter) {
  store = nullptr;
  Fill("old");
  EXPECT_EQ(Run([] {
              EXPECT_EQ(Text(IDC_CACHE_ITEMS), "1");
              EXPECT_EQ(Text(IDC_CACHE_FOLDER) + Text(IDC_MAX_CACHE_SIZE), "");
              Click(IDC_DELETE_CACHE);
              EXPECT_EQ(Text(IDC_CACHE_ITEMS), "0");
              Click(IDOK);
            }),
            0);
  EXPECT_FALSE(HasCache("old"));
  EXPECT_EQ(Stored(), L"%HERE%/old");
}

TEST_F(CacheSettings, CancelLeavesTheStores) {
  const HOLLERIN::Values before = store->values->GetValues();
  EXPECT_EQ(Run([] {
              Type(IDC_CACHE_FOLDER, L"%HERE%/new");
              Click(IDC_CACHE_EXPIRE);
              Type(IDC_CACHE_EXPIRE_DAYS, L"3");
              Click(IDCANCEL);
            }),
            1);
  EXPECT_EQ(store->values->GetValues(), before);
  EXPECT_EQ(Stored(), L"%HERE%/old");
}

TEST_F(CacheSettings, GrowsWithTheDialog) {
  const struct {
    int id, dx, dy, dw;
  } kMoves[] = {{IDC_CACHE_FOLDER, 0, 0, 60},
                {IDC_CACHE_FOLDER_BROWSE, 60, 0, 0},
                {IDC_CACHE_FOLDER_OPEN, 60, 0, 0},
                {IDC_CACHE_FOLDER_HEADING, 0, 0, 60},
                {IDC_CACHE_SIZE_HEADING, 0, 0, 60},
                {IDC_CACHE_EXPIRY_HEADING, 0, 0, 60},
                {IDC_MAX_CACHE_SIZE, 0, 0, 0},
                {IDOK, 60, 40, 0},
                {IDCANCEL, 60, 40, 0}};
  Run([&] {
    const auto rect = [](int id) { return WidgetOf(IDD_CACHE_SETTINGS, id)->geometry(); };
    std::vector<QRect> expected;
    for (const auto& row : kMoves) {
      expected.push_back(rect(row.id).adjusted(row.dx, row.dy, row.dx + row.dw, row.dy));
    }
    QWidget* window = WidgetOf(IDD_CACHE_SETTINGS, IDOK)->window();
    window->resize(window->width() + 60, window->height() + 40);
    ToolkitApplication::ProcessEvents();
    for (const auto& row : kMoves) EXPECT_EQ(rect(row.id), expected[&row - kMoves]) << row.id;
  });
}

}  // namespace
