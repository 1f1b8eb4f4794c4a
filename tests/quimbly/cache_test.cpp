// The text cache: its database, and its manager.

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "hollerin/application.h"
#include "hollerin/temporary_folder.h"
#include "quimbly/quimbly.h"
#include "quimbly/text_cache.h"
#include "support/fake_machine.h"

namespace {

namespace fs = std::filesystem;
using INTERNAL_IFC::CacheSizeInfo;
using INTERNAL_IFC::IFileCacheMgr;

constexpr int kItems = 100;

struct CountedStatus : INTERNAL_IFC::IRunningStatus {
  bool IsCancelled() override { return ++asked, cancel; }
  int asked = 0;
  bool cancel = false;
};

class Cache : public testing::Test {
 protected:
  Cache() {
    fs::permissions(folder.Path(), fs::perms{0777});
    machine->folders = {{L"%HERE%", folder.Path().wstring()}};
    master->WriteString(L"FOLDERS", L"CacheFolder", L"%HERE%/");
    SetUp(master);
  }
  ~Cache() override { SetUp(nullptr); }

  void SetUp(std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store) {
    HOLLERIN::Application application;
    application.log = log;
    application.master = std::move(store);
    HOLLERIN::SetUpApplication(std::move(application));
  }
  std::shared_ptr<IFileCacheMgr> Manager() {
    std::shared_ptr<IFileCacheMgr> manager;
    EXPECT_EQ(STOVEN::CreateCacheMgr(nullptr, &status, &manager), S_OK);
    return manager;
  }
  /// Texts of 4096 characters for the files 0, 1, ... , half of which are removed again.
  void Fill() {
    TextCache cache;
    ASSERT_TRUE(cache.Open(file)) << ToUtf8(cache.Error());
    std::vector<CachedText> texts;
    for (int n = 0; n < kItems; ++n) {
      texts.push_back({{std::to_wstring(n), n, 7}, std::wstring(4096, L'x')});
    }
    ASSERT_TRUE(cache.Put(texts));
    Database database;
    ASSERT_TRUE(database.Open(file, false));
    ASSERT_TRUE(database.Run("DELETE FROM texts WHERE size % 2 = 1"));
  }
  std::int64_t Ask(const char* query) {
    Database database;
    EXPECT_TRUE(database.Open(file, false));
    return database.Number(query).value_or(-1);
  }

  ScopedMachine machine;
  TemporaryFolder folder;
  std::string file = folder / kCacheFileName;
  std::shared_ptr<HOLLERIN::Store> master = HOLLERIN::CreateStore();
  std::shared_ptr<HOLLERIN::MemoryLog> log = HOLLERIN::CreateMemoryLog(nullptr);
  CountedStatus status;
  std::wstring error;
};

TEST_F(Cache, KeepsOneTextOfEachFileAndCountsThem) {
  const std::wstring path = L"/a\u00E4 \U0001F600'";
  TextCache cache;
  ASSERT_TRUE(cache.Open(file));
  const CachedText texts[] = {{{path, 1, 2}, L"old"},
                              {{L"/b", 1, 2}, std::wstring(L"b\0c", 3)},
                              {{path, 5'000'000'000, -3}, L"new \u4E2D"}};
  ASSERT_TRUE(cache.Put(texts)) << ToUtf8(cache.Error());
  EXPECT_EQ(cache.Find({path, 5'000'000'000, -3}), L"new \u4E2D");
  EXPECT_EQ(cache.Find({L"/b", 1, 2}), std::wstring(L"b\0c", 3));
  for (const FileVersion& other :
       {FileVersion{path, 1, 2}, FileVersion{path, 5'000'000'000, 0}, FileVersion{L"/c", 1, 2}}) {
    EXPECT_EQ(cache.Find(other), std::nullopt);
  }
  EXPECT_EQ(Ask(kCountItems), 2);
  Database database;
  ASSERT_TRUE(database.Open(file, false));
  ASSERT_TRUE(
      database.Run("PRAGMA recursive_triggers = ON; "
                   "REPLACE INTO texts VALUES ('/b', 0, 0, ''); DELETE FROM texts"));
  EXPECT_EQ(Ask(kCountItems), 0);
}

TEST_F(Cache, PutsAllTextsOrNone) {
  TextCache cache;
  ASSERT_TRUE(cache.Open(file));
  Database other;
  ASSERT_TRUE(other.Open(file, false));
  ASSERT_TRUE(
      other.Run("CREATE TRIGGER no BEFORE INSERT ON texts WHEN NEW.path = 'bad' "
                "BEGIN SELECT RAISE(ABORT, 'refused'); END"));
  const CachedText texts[] = {{{L"good", 1, 1}, L"x"}, {{L"bad", 1, 1}, L"x"}};
  EXPECT_FALSE(cache.Put(texts));
  EXPECT_EQ(cache.Error(), L"refused");
  EXPECT_EQ(Ask(kCountItems), 0);
  EXPECT_TRUE(cache.Put(std::span(texts).first(1)));
  EXPECT_EQ(Ask("SELECT count(*) FROM texts"), 1);
}

TEST_F(Cache, ShowsItsFigures) {
  const auto manager = Manager();
  EXPECT_EQ(manager->GetCacheStats()->GetItemCount(), 0U);
  EXPECT_EQ(manager->GetCacheStats()->GetSizeInfo().total, 0);
  EXPECT_FALSE(fs::exists(file)) << "looking makes no database";
  Fill();
  const auto stats = manager->GetCacheStats();
  EXPECT_EQ(stats->GetItemCount(), std::uint64_t{kItems / 2});
  EXPECT_EQ(stats->GetSizeInfo().total, static_cast<std::int64_t>(fs::file_size(file)));
  EXPECT_GT(stats->GetSizeInfo().unused, kItems / 4 * 4096);
  Put(file + "-wal", "12345");
  EXPECT_EQ(manager->GetCacheStats()->GetSizeInfo().total,
            static_cast<std::int64_t>(fs::file_size(file)) + 5);
}

TEST_F(Cache, IsCompacted) {
  const auto manager = Manager();
  EXPECT_EQ(manager->CompactCache(error), S_OK) << "there is nothing to compact";
  EXPECT_FALSE(fs::exists(file));
  Fill();
  const CacheSizeInfo before = manager->GetCacheStats()->GetSizeInfo();
  ASSERT_EQ(manager->CompactCache(error), S_OK) << ToUtf8(error);
  const CacheSizeInfo after = manager->GetCacheStats()->GetSizeInfo();
  EXPECT_EQ(after.unused, 0);
  EXPECT_LE(after.total, before.total - before.unused);
  EXPECT_EQ(manager->GetCacheStats()->GetItemCount(), std::uint64_t{kItems / 2});
  EXPECT_EQ(Ask("SELECT count(*) FROM texts"), kItems / 2);
  EXPECT_EQ(error, L"");
}

TEST_F(Cache, CompactingStopsWhenItIsCancelled) {
  Fill();
  status.cancel = true;
  // Enough rows for the question to be asked.
  Database database;
  ASSERT_TRUE(database.Open(file, false));
  ASSERT_TRUE(
      database.Run("WITH RECURSIVE n(i) AS (SELECT 1000 UNION ALL SELECT i + 1 FROM n "
                   "WHERE i < 9000) INSERT INTO texts SELECT i, i, i, i FROM n"));
  const auto manager = Manager();
  EXPECT_EQ(manager->CompactCache(error), E_FAIL);
  EXPECT_NE(error.find(L"interrupted"), std::wstring::npos) << ToUtf8(error);
  EXPECT_GT(status.asked, 0);
  EXPECT_EQ(Ask("SELECT count(*) FROM texts"), kItems / 2 + 8001);
}

TEST_F(Cache, IsDeletedWithAllItsFiles) {
  const auto manager = Manager();
  EXPECT_EQ(manager->DeleteCache(error), S_OK);
  Put(folder / "other", "kept");
  Fill();
  EXPECT_EQ(manager->DeleteCache(error), S_OK) << ToUtf8(error);
  EXPECT_EQ(folder.Names(), std::set<std::string>{"other"});
  EXPECT_EQ(manager->GetCacheStats()->GetItemCount(), 0U);
  // Left behind by a process that died.
  Put(file + "-journal", "x");
  EXPECT_EQ(manager->DeleteCache(error), S_OK);
  EXPECT_EQ(folder.Names(), std::set<std::string>{"other"});

  Fill();
  {
    Database database;
    ASSERT_TRUE(database.Open(file, false));
    ASSERT_TRUE(database.Run("PRAGMA journal_mode = WAL; DELETE FROM texts"));
    ASSERT_TRUE(fs::exists(file + "-wal"));
    EXPECT_EQ(manager->DeleteCache(error), E_FAIL) << "somebody has it open";
    EXPECT_TRUE(fs::exists(file));
  }
  EXPECT_EQ(manager->DeleteCache(error), S_OK) << ToUtf8(error);
  EXPECT_EQ(folder.Names(), std::set<std::string>{"other"});
}

TEST_F(Cache, WhatCannotBeChangedIsReportedAndStays) {
  const auto spoil = [&](std::size_t at, const std::string& bytes) {
    std::string content = Contents(file);
    content.replace(at, bytes.size(), bytes);
    Put(file, content);
  };
  const struct {
    const char* what;
    std::function<void()> prepare;
    const wchar_t* compact;
    const wchar_t* remove;  ///< Null where deleting is allowed.
  } kCases[] = {
      {"no database", [&] { Put(file, "This is a letter of somebody, and no database at all."); },
       L"not a database", L"not a database"},
      {"another database",
       [&] {
         Database other;
         ASSERT_TRUE(other.Open(file, true));
         ASSERT_TRUE(other.Run("CREATE TABLE letters (text)"));
       },
       L"something else", L"something else"},
      {"protected",
       [&] {
         Fill();
         fs::permissions(file, fs::perms{0444});
       },
       L"readonly", L"readonly"},
      {"a damaged table",
       [&] {
         Fill();
         spoil(4096, std::string(fs::file_size(file) - 4096, '\x5A'));
       },
       L"malformed", nullptr},
      {"a damaged header",
       [&] {
         Fill();
         spoil(0, std::string(100, '\x5A'));
       },
       L"not a database", L"not a database"},
      {"a folder", [&] { fs::create_directory(file); }, L"regular file", L"regular file"},
      {"a pipe", [&] { ASSERT_EQ(mkfifo(file.c_str(), 0600), 0); }, L"regular file",
       L"regular file"},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.what);
    fs::remove_all(file);
    row.prepare();
    const auto manager = Manager();
    const bool isFile = fs::is_regular_file(file);
    const std::string before = isFile ? Contents(file) : "";
    EXPECT_EQ(manager->CompactCache(error), E_FAIL);
    EXPECT_TRUE(error.starts_with(L"Compacting the text cache (")) << ToUtf8(error);
    EXPECT_NE(error.find(row.compact), std::wstring::npos) << ToUtf8(error);
    EXPECT_NE(error.find(L"textcache.sqlite"), std::wstring::npos) << "the file is named";
    EXPECT_EQ(isFile ? Contents(file) : "", before);
    EXPECT_EQ(manager->DeleteCache(error), row.remove != nullptr ? E_FAIL : S_OK) << ToUtf8(error);
    EXPECT_EQ(fs::exists(file), row.remove != nullptr);
    if (row.remove == nullptr) continue;
    EXPECT_NE(error.find(row.remove), std::wstring::npos) << ToUtf8(error);
    EXPECT_EQ(isFile ? Contents(file) : "", before);
    EXPECT_EQ(folder.Names(), std::set<std::string>{kCacheFileName});
  }
}

TEST_F(Cache, ALockedDatabaseStays) {
  Fill();
  const auto manager = Manager();
  Database other;
  ASSERT_TRUE(other.Open(file, false));
  for (const char* lock : {"BEGIN IMMEDIATE", "BEGIN EXCLUSIVE"}) {
    ASSERT_TRUE(other.Run(lock));
    EXPECT_EQ(manager->CompactCache(error), E_FAIL);
    EXPECT_NE(error.find(L"locked"), std::wstring::npos) << ToUtf8(error);
    EXPECT_EQ(manager->DeleteCache(error), E_FAIL);
    EXPECT_NE(error.find(L"Deleting the text cache (database is locked"), std::wstring::npos);
    EXPECT_GT(manager->GetCacheStats()->GetSizeInfo().total, 0);
    ASSERT_TRUE(other.Run("ROLLBACK"));
  }
  const auto lines = log->TakeLines();
  ASSERT_FALSE(lines.empty()) << "figures that cannot be read are reported";
  EXPECT_NE(lines.back().find(L"locked"), std::wstring::npos);
  EXPECT_EQ(Ask("SELECT count(*) FROM texts"), kItems / 2);
}

TEST_F(Cache, AFolderThatMayNotBeChangedKeepsIt) {
  Fill();
  fs::permissions(file, fs::perms{0666});
  fs::permissions(folder.Path(), fs::perms{0555});
  const auto manager = Manager();
  {
    const OrdinaryUser user;
    EXPECT_EQ(manager->DeleteCache(error), E_FAIL);
  }
  EXPECT_NE(error.find(L"denied"), std::wstring::npos) << ToUtf8(error);
  EXPECT_EQ(Ask("SELECT count(*) FROM texts"), kItems / 2);
  fs::permissions(folder.Path(), fs::perms{0777});
}

TEST_F(Cache, AnUnknownFolderHasNoCache) {
  Fill();
  const struct {
    const wchar_t* folder;
    const wchar_t* fails;
  } kCases[] = {{L"%NOBODY%/x", L""},
                {L"Q:\\x", L""},
                {L"", L""},  // The machine knows no %CACHE%.
                {L"%HERE%", L"ExpandPath"},
                {L"%HERE%", L"CreateAppFolderMgr"},
                {L"%HERE%", L"GetGlobalMasterConfiguration"}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(row.folder) + row.fails));
    master->WriteString(L"FOLDERS", L"CacheFolder", row.folder);
    machine->fails = row.fails;
    const auto manager = Manager();
    machine->fails.clear();
    EXPECT_EQ(manager->GetCacheStats()->GetItemCount(), 0U);
    for (const auto operation : {&IFileCacheMgr::CompactCache, &IFileCacheMgr::DeleteCache}) {
      EXPECT_EQ(((*manager).*operation)(error), E_FAIL);
      EXPECT_NE(error.find(L"folder"), std::wstring::npos);
    }
  }
  EXPECT_TRUE(fs::exists(file));
}

TEST_F(Cache, TheUsualFolderIsThatOfTheApplication) {
  fs::create_directory(folder / "quarrow");
  file = folder / "quarrow/textcache.sqlite";
  Fill();
  master->WriteString(L"FOLDERS", L"CacheFolder", L"");
  (*machine->folders)[L"%CACHE%"] = folder.Path().wstring();
  const auto manager = Manager();
  EXPECT_EQ(manager->GetCacheStats()->GetItemCount(), std::uint64_t{kItems / 2});
  // The manager stays with the folder that it was made for.
  master->WriteString(L"FOLDERS", L"CacheFolder", L"%HERE%/elsewhere");
  EXPECT_EQ(manager->DeleteCache(error), S_OK);
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(Cache, TheMachineMayDictate) {
  Fill();
  machine->cache = CacheContents{12, 5'000'000'000};
  const auto manager = Manager();
  EXPECT_EQ(manager->GetCacheStats()->GetItemCount(), 12U);
  EXPECT_EQ(manager->GetCacheStats()->GetSizeInfo().total, 5'000'000'000);
  for (const auto& [name, operation] : {std::pair(L"CompactCache", &IFileCacheMgr::CompactCache),
                                        std::pair(L"DeleteCache", &IFileCacheMgr::DeleteCache)}) {
    machine->fails = name;
    EXPECT_EQ(((*manager).*operation)(error), E_FAIL);
    EXPECT_FALSE(error.empty());
  }
  EXPECT_EQ(manager->GetCacheStats()->GetItemCount(), 12U);
  machine->fails = L"GetCacheStats";
  EXPECT_EQ(manager->GetCacheStats(), nullptr);
  machine->fails.clear();
  EXPECT_EQ(manager->DeleteCache(error), S_OK);
  EXPECT_EQ(manager->GetCacheStats()->GetItemCount(), 0U) << "what was dictated is deleted";
  std::shared_ptr<IFileCacheMgr> none;
  machine->fails = L"CreateCacheMgr";
  EXPECT_EQ(STOVEN::CreateCacheMgr(nullptr, nullptr, &none), E_FAIL);
  EXPECT_EQ(STOVEN::CreateCacheMgr(nullptr, nullptr, nullptr), E_INVALIDARG);
}

}  // namespace
