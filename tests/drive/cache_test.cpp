// The dialog of the text cache and the list of search filters, used over the drive port.

#include "drive/session.h"
#include "quimbly/text_cache.h"

namespace {

constexpr int kOk = 1, kCancel = 2;
constexpr int kTemplate = 5552;
constexpr int kFolder = 5214, kBrowse = 5212, kOpen = 5213, kItems = 5215, kSize = 5216;
constexpr int kCompact = 5209, kDelete = 5206, kLimit = 5026, kDays = 5023, kByAge = 5200;

class CacheDialog : public testing::Test {
 protected:
  CacheDialog() {
    for (const char* name : {"old", "new"}) std::filesystem::create_directory(data_ / name);
    TextCache cache;
    EXPECT_TRUE(cache.Open(Database("old")));
    constexpr int kTexts = 2000;
    std::vector<CachedText> texts;
    texts.reserve(kTexts);
    for (int n = 0; n < kTexts; ++n) {
      texts.push_back({{std::to_wstring(n), n, n}, std::wstring(2000, L'x')});
    }
    EXPECT_TRUE(cache.Put(texts));
    machine_ = {{"folders", {{"%DATA%", data_.Path()}}}};
  }
  std::string Database(const char* folder) const {
    return data_ / (std::string(folder) + "/" + kCacheFileName);
  }
  static Json Open(Session& session) {
    session.Write("config", "Options", "CacheExpireDays", 30);
    session.Write("master", "FOLDERS", "CacheFolder", "%DATA%/old");
    return session.Do({{"do", "open"}, {"entry", "OpenCacheSettings"}})["window"];
  }
  static std::string Text(Session& session, int control) { return session.Get(control)["text"]; }
  static void Press(Session& session, const char* button) {
    session.Do({{"do", "press"}, {"button", button}});
  }

  TemporaryFolder data_;
  Json machine_;
};

TEST_F(CacheDialog, ShowsCompactsAndDeletesTheDatabase) {
  Session session(data_, machine_);
  const Json window = Open(session);
  EXPECT_EQ(window["template"], kTemplate);
  EXPECT_EQ(window["title"], "Cache Settings");
  EXPECT_EQ(Text(session, kItems), "2,000");
  const std::string before = Text(session, kSize);
  EXPECT_NE(before.find(" MB"), std::string::npos) << before;
  ::Database other;
  ASSERT_TRUE(other.Open(Database("old"), false));
  ASSERT_TRUE(other.Run("DELETE FROM texts WHERE size >= 100; BEGIN EXCLUSIVE"));
  session.Click(kCompact);
  EXPECT_EQ(session.Top()["title"], "Application Error");
  EXPECT_NE(session.Top()["text"].get<std::string>().find("database is locked"), std::string::npos);
  Press(session, "OK");
  ASSERT_TRUE(other.Run("ROLLBACK"));
  session.Click(kCompact);
  EXPECT_EQ(Text(session, kItems), "100");
  EXPECT_NE(Text(session, kSize).find(" KB"), std::string::npos);
  EXPECT_EQ(other.Number("SELECT count(*) FROM texts"), 100);
  session.Click(kDelete);
  EXPECT_EQ(Text(session, kItems), "0");
  EXPECT_EQ(Text(session, kSize), "0.00 KB");
  EXPECT_FALSE(std::filesystem::exists(Database("old")));
  EXPECT_EQ(session.End(kCancel), 1);
}

TEST_F(CacheDialog, EveryValueIsStored) {
  Session session(data_, machine_);
  Open(session);
  session.Type(kLimit, "100");
  session.Click(kByAge);
  session.Type(kDays, "14");
  session.Type(kFolder, "%DATA%/new");
  session.Do({{"do", "ok"}});
  EXPECT_EQ(session.Top()["buttons"], Json({"Yes", "No"}));
  Press(session, "No");
  EXPECT_EQ(session.Top()["template"], kTemplate);
  EXPECT_EQ(session.Dump("master"), Json({{"FOLDERS", {{"CacheFolder", "%DATA%/old"}}}}));
  session.Do({{"do", "ok"}});
  Press(session, "Yes");
  const auto events = session.TakeEvents();
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0]["entry"], "OpenCacheSettings");
  EXPECT_EQ(events[0]["status"], 0);
  EXPECT_EQ(
      session.Dump("config").dump(),
      Json({{"Options",
             {{"MaxTextCacheSize", 102400}, {"CacheExpireDays", 14}, {"CacheExpirePolicy", 1}}}})
          .dump());
  EXPECT_EQ(session.Dump("master"), Json({{"FOLDERS", {{"CacheFolder", "%DATA%/new"}}}}));
  EXPECT_FALSE(std::filesystem::exists(Database("old")));
  EXPECT_EQ(session.Close(), 0);
  EXPECT_NE(ReadFile(data_ / "master.xml").find("%DATA%/new"), std::string::npos);
}

TEST_F(CacheDialog, CancelPutsTheConfigurationBack) {
  Session session(data_, machine_);
  Open(session);
  session.Type(kLimit, "100");
  session.Type(kFolder, "%DATA%/new");
  session.Do({{"do", "ok"}});
  Press(session, "No");
  EXPECT_EQ(session.Dump("config")["Options"]["MaxTextCacheSize"], 102400);
  EXPECT_EQ(session.End(kCancel), 1);
  EXPECT_EQ(session.Dump("config"), Json({{"Options", {{"CacheExpireDays", 30}}}}));
  EXPECT_TRUE(std::filesystem::exists(Database("old")));
}

TEST_F(CacheDialog, TheFolderIsPickedAndOpened) {
  Session session(data_, machine_);
  Open(session);
  EXPECT_EQ(session.Get(kBrowse)["image"], 4);
  EXPECT_EQ(session.Get(kOpen)["image"], 7);
  session.Click(kBrowse);
  EXPECT_EQ(session.Top()["start"], data_ / "old/");
  session.Do({{"do", "dismiss"}});
  EXPECT_EQ(Text(session, kFolder), "%DATA%/old");
  session.Click(kBrowse);
  session.Do({{"do", "choose"}, {"paths", {data_ / "new"}}});
  EXPECT_EQ(Text(session, kFolder), "%DATA%/new");
  session.Click(kOpen);
  EXPECT_EQ(session.Do({{"do", "outside"}})["opened"], Json({data_ / "new"}));
  session.Type(kFolder, "%NOBODY%");
  session.Click(kBrowse);
  EXPECT_EQ(session.Top()["start"], "");
  session.Do({{"do", "dismiss"}});
  session.Click(kOpen);
  EXPECT_EQ(session.Top()["title"], "Application Error");
  Press(session, "OK");
  EXPECT_EQ(session.End(kCancel), 1);
}

TEST_F(CacheDialog, TheMachineFileDictatesTheFigures) {
  const struct {
    Json cache;
    const char *items, *size;
  } kFacts[] = {{{{"items", 12}, {"bytes", 1048577}}, "12", "1.00 MB"},
                {{{"items", 5000000000}, {"bytes", 1099511627776}}, "5,000,000,000", "1024.00 GB"},
                {"fails", "<items>", "<size>"}};
  for (const auto& row : kFacts) {
    const TemporaryFolder data;
    Session session(data, {{"cache", row.cache}});
    session.Do({{"do", "open"}, {"entry", "OpenCacheSettings"}});
    if (row.cache == "fails") {
      EXPECT_EQ(session.Top()["text"], "Unable to create cache mgr");
      Press(session, "OK");
    }
    EXPECT_EQ(Text(session, kItems), row.items);
    EXPECT_EQ(Text(session, kSize), row.size);
    EXPECT_EQ(session.End(kCancel), 1);
  }
}

TEST(Filters, AreSetAndRead) {
  const TemporaryFolder data;
  const Json filters = {
      {{"name", "Caf\u00e9 \n\t\u0001"},
       {"value", "*.txt"},
       {"type", 4},
       {"kind", 1},
       {"enabled", true}},
      {{"name", ""}, {"value", "/a;\"/b\"-"}, {"type", 3}, {"kind", 0}, {"enabled", false}},
      {{"name", std::string(10000, 'x')},
       {"value", "\"\\"},
       {"type", -1},
       {"kind", 7},
       {"enabled", true}}};
  {
    Session session(data);
    EXPECT_EQ(session.Do({{"do", "filters"}})["entries"], Json::array());
    EXPECT_EQ(session.Do({{"do", "filters"}, {"set", filters}})["entries"], filters);
    for (const Json& bad : {Json(1), Json({1}), Json({{{"name", 1}}}), Json({{{"nam", "x"}}}),
                            Json({{{"kind", 4294967296}}})}) {
      EXPECT_FALSE(session.Refused({{"do", "filters"}, {"set", bad}}).empty());
    }
  }
  Session session(data);
  EXPECT_EQ(session.Do({{"do", "filters"}})["entries"], filters);
  const Json blank = session.Do({{"do", "filters"}, {"set", {Json::object()}}})["entries"];
  EXPECT_EQ(blank,
            Json({{{"name", ""}, {"value", ""}, {"type", 4}, {"kind", 1}, {"enabled", true}}}));
  session.Write("config", "PersistentFilters", "List", "damaged");
  EXPECT_NE(session.Refused({{"do", "filters"}}).find("damaged"), std::string::npos);
  EXPECT_EQ(session.Dump("config"), Json({{"PersistentFilters", {{"List", "damaged"}}}}));
}

}  // namespace
