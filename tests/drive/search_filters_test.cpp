// The dialogs of the persistent search filters, used over the drive port.

#include <map>

#include "drive/session.h"

namespace {

constexpr int kOk = 1, kCancel = 2;
constexpr int kListTemplate = 5546, kEditTemplate = 5547;
constexpr int kActive = 5102, kNew = 5007, kList = 5101, kEdit = 35004, kDelete = 35005;
constexpr int kName = 5012, kByName = 5195, kPattern = 5005, kNameType = 5307, kByLocation = 5324,
              kFolders = 5041, kLocationType = 5006, kBrowse = 5030, kSeveral = 5076;

Json Filter(const char* name, const char* value, int kind, int type, bool enabled = true) {
  return {{"name", name}, {"value", value}, {"type", type}, {"kind", kind}, {"enabled", enabled}};
}

class SearchFilterDialogs : public testing::Test {
 protected:
  void Start(const Json& filters, bool active = false) {
    Do({{"do", "filters"}, {"set", filters}});
    Do({{"do", "open"}, {"entry", "OpenSearchFilterList"}, {"active", active}});
  }
  Json Do(const Json& request) { return session_.Do(request); }
  Json Rows() { return Do({{"do", "rows"}, {"control", kList}})["rows"]; }
  void Row(int row, const char* action) {
    Do({{"do", "row"}, {"control", kList}, {"row", row}, {"action", action}});
  }
  void Check(int row, bool on) {
    Do({{"do", "check"}, {"control", kList}, {"row", row}, {"on", on}});
  }
  void Menu(int command) { Do({{"do", "menu"}, {"command", command}}); }
  void Press(const char* button) { Do({{"do", "press"}, {"button", button}}); }
  void Pick(int control, const char* text) {
    Do({{"do", "pick"}, {"control", control}, {"text", text}});
  }
  std::string Text(int control) { return session_.Get(control)["text"]; }
  /// Whether the items of the open menu can be chosen.
  Json Enabled() {
    const Json menu = session_.Top();
    Json enabled = Json::array();
    for (const Json& item : menu["items"]) enabled.push_back(item["enabled"]);
    return enabled;
  }
  int TopTemplate() { return session_.Top().value("template", 0); }
  Json Stored() { return Do({{"do", "filters"}})["entries"]; }

  TemporaryFolder data_;
  Session session_{data_, {{"dpi", 96}}};
};

TEST_F(SearchFilterDialogs, ShowTheFiltersInTheirColumns) {
  Start(Json::array({Filter("docs", "*.txt", 1, 4), Filter("home", "/home;/srv", 0, 1, false),
                     Filter("odd", "?", 7, 3)}));
  EXPECT_EQ(session_.Top()["title"], "Persistent Search Filters");
  const Json list = Do({{"do", "rows"}, {"control", kList}});
  EXPECT_EQ(list["columns"], Json({"Name", "Pattern or folders", "Type"}));
  EXPECT_EQ(list["widths"], Json({300, 200, 200}));
  const auto row = [](Json text, bool checked) {
    return Json({{"text", std::move(text)}, {"checked", checked}, {"selected", false}});
  };
  EXPECT_EQ(list["rows"], Json({row({"docs", "*.txt", "File name"}, true),
                                row({"home", "/home;/srv", "Location"}, false),
                                row({"odd", "?", "File name"}, true)}));
  EXPECT_EQ(session_.End(kCancel), 1);
}

TEST_F(SearchFilterDialogs, EveryValueOfANewFilterIsStored) {
  Start(Json::array());
  EXPECT_EQ(session_.Get(kActive)["checked"], 0);
  session_.Click(kNew);
  EXPECT_EQ(session_.Top()["title"], "Search Filter Definition");
  EXPECT_TRUE(session_.Get(kName)["focus"]);
  EXPECT_EQ(session_.Get(5097)["kind"], "picture");
  EXPECT_EQ(session_.Get(kBrowse)["image"], 4);
  EXPECT_EQ(session_.Get(kSeveral)["image"], 5);
  session_.Type(kName, "sources");
  session_.Type(kPattern, "*.cpp;*.h");
  Pick(kNameType, "Regular expression");
  Do({{"do", "ok"}});
  session_.Click(kNew);
  session_.Type(kName, "places");
  session_.Click(kByLocation);
  session_.Type(kFolders, "/no/such;/folder");
  Pick(kLocationType, "Boolean expression");
  Do({{"do", "ok"}});
  session_.Click(kNew);
  session_.Type(kName, "dropped");
  Do({{"do", "cancel"}});
  session_.Click(kNew);  // Empty texts are a filter, too.
  Do({{"do", "ok"}});
  EXPECT_EQ(Rows().size(), 3U);
  EXPECT_EQ(Stored(), Json::array()) << "nothing is stored before OK";
  EXPECT_EQ(session_.End(kOk), 0);
  EXPECT_EQ(Stored(), Json({Filter("sources", "*.cpp;*.h", 1, 2),
                            Filter("places", "/no/such;/folder", 0, 0), Filter("", "", 1, 4)}));
  EXPECT_EQ(session_.Dump("config")["PersistentFilters"]["Active"], true);
}

TEST_F(SearchFilterDialogs, FiltersAreEditedByDoubleClickAndMenu) {
  Start(Json::array({Filter("one", "*.1", 1, 4), Filter("two", "*.2", 1, 4, false)}));
  Row(-1, "double");
  EXPECT_EQ(TopTemplate(), kListTemplate) << "below the rows is nothing to edit";
  Check(0, false);
  Row(0, "double");
  EXPECT_EQ(TopTemplate(), kEditTemplate);
  session_.Type(kPattern, "*.one");
  Do({{"do", "ok"}});
  EXPECT_EQ(Rows()[0]["text"], Json({"one", "*.one", "File name"}));
  EXPECT_EQ(Rows()[0]["checked"], false) << "what was switched before stays";
  Row(1, "context");
  const Json menu = session_.Top();
  EXPECT_EQ(menu["items"],
            Json({{{"command", kEdit}, {"text", "&Edit..."}, {"enabled", true}},
                  {{"command", kDelete}, {"text", "&Delete..."}, {"enabled", true}}}));
  Menu(kEdit);
  session_.Type(kName, "two and more");
  session_.Click(kByLocation);
  session_.Type(kFolders, "/two");
  Do({{"do", "ok"}});
  EXPECT_EQ(Rows()[1]["text"], Json({"two and more", "/two", "Location"}));
  Row(1, "double");
  session_.Type(kName, "dropped");
  Do({{"do", "cancel"}});
  EXPECT_EQ(Rows()[1]["text"][0], "two and more");
  EXPECT_EQ(session_.End(kOk), 0);
  EXPECT_EQ(Stored(), Json({Filter("one", "*.one", 1, 4, false),
                            Filter("two and more", "/two", 0, 1, false)}));
}

TEST_F(SearchFilterDialogs, TheMenuNeedsARowAndOpensByKey) {
  Start(Json::array({Filter("one", "*", 1, 4)}));
  Row(-1, "context");
  EXPECT_EQ(Enabled(), Json({false, false}));
  Do({{"do", "dismiss"}});
  Row(0, "select");
  Do({{"do", "key"}, {"key", "Menu"}, {"control", kList}});
  ASSERT_EQ(session_.Top()["kind"], "menu");
  EXPECT_EQ(Enabled(), Json({true, true}));
  Menu(kEdit);
  EXPECT_EQ(TopTemplate(), kEditTemplate);
  Do({{"do", "cancel"}});
  EXPECT_EQ(session_.End(kCancel), 1);
}

TEST_F(SearchFilterDialogs, DeletingAsksFirst) {
  Start(Json::array({Filter("one", "*", 1, 4), Filter("tw%so", "*", 1, 4),
                     Filter(std::string(10000, 'x').c_str(), "*", 1, 4)}));
  const auto ask = [this](int row) {
    Row(row, "context");
    Menu(kDelete);
    EXPECT_EQ(session_.Top()["buttons"], Json({"Yes", "No"}));
    return session_.Top()["text"].get<std::string>();
  };
  EXPECT_EQ(ask(1), "Delete the search filter \"tw%so\"?");
  Press("No");
  EXPECT_EQ(Rows().size(), 3U);
  EXPECT_LT(ask(2).size(), 2100U);
  Press("Yes");
  ask(0);
  Press("Yes");
  EXPECT_EQ(Rows().size(), 1U);
  EXPECT_EQ(session_.End(kOk), 0);
  EXPECT_EQ(Stored(), Json::array({Filter("tw%so", "*", 1, 4)}));
}

TEST_F(SearchFilterDialogs, CancelPutsEverythingBack) {
  Start(Json::array({Filter("one", "*", 1, 4), Filter("two", "*", 1, 4)}), true);
  EXPECT_EQ(session_.Get(kActive)["checked"], 1);
  const Json before = session_.Dump("config");
  Check(0, false);
  session_.Click(kActive);
  Row(0, "double");
  session_.Type(kName, "other");
  Do({{"do", "ok"}});
  session_.Click(kNew);
  Do({{"do", "ok"}});
  Row(1, "context");
  Menu(kDelete);
  Press("Yes");
  EXPECT_EQ(session_.End(kCancel), 1);
  EXPECT_EQ(session_.Dump("config"), before);
}

TEST_F(SearchFilterDialogs, FoldersAreBrowsedFor) {
  const std::string locked = data_ / "locked";
  std::filesystem::create_directory(locked);
  std::filesystem::permissions(locked, std::filesystem::perms::none);
  Start(Json::array({Filter("places", locked.c_str(), 0, 2)}));
  Row(0, "double");
  session_.Click(kBrowse);
  EXPECT_EQ(session_.Top()["mode"], "folder");
  EXPECT_EQ(session_.Top()["start"], locked + "/");
  Do({{"do", "dismiss"}});
  EXPECT_EQ(Text(kFolders), locked);
  session_.Type(kName, "renamed");
  session_.Click(kBrowse);
  Do({{"do", "choose"}, {"paths", Json::array({data_.Path().string()})}});
  EXPECT_EQ(Text(kFolders), data_.Path().string());
  EXPECT_EQ(Text(kName), "renamed");
  EXPECT_EQ(Text(kLocationType), "Regular expression");

  session_.Click(kSeveral);
  EXPECT_EQ(session_.Top()["title"], "Folders");
  session_.Type(5591, "/b;c");
  session_.Click(5593);  // Add.
  session_.Click(5598);  // Without its subfolders.
  Do({{"do", "ok"}});
  const std::string several = data_.Path().string() + ";\"/b;c\"-";
  EXPECT_EQ(Text(kFolders), several);
  session_.Click(kSeveral);
  Do({{"do", "cancel"}});
  EXPECT_EQ(Text(kFolders), several);
  // The key for browsing edits several folders as soon as there are several.
  Do({{"do", "key"}, {"key", "Alt+Right"}, {"control", kFolders}});
  EXPECT_EQ(session_.Top()["title"], "Folders");
  Do({{"do", "cancel"}});
  Do({{"do", "ok"}});
  EXPECT_EQ(session_.End(kOk), 0);
  EXPECT_EQ(Stored(), Json::array({Filter("renamed", several.c_str(), 0, 2)}));
  std::filesystem::permissions(locked, std::filesystem::perms::owner_all);
}

TEST_F(SearchFilterDialogs, ControlsFollowTheSizeOfTheirDialogs) {
  Start(Json::array({Filter("one", "*", 1, 4)}));
  const auto grow = [this](const std::vector<std::pair<int, std::vector<int>>>& changes) {
    std::map<int, Json> before;
    for (const auto& [id, change] : changes) before[id] = session_.Get(id)["rect"];
    const Json size = session_.Top()["client"];
    Do({{"do", "resize"},
        {"width", size[0].get<int>() + 100},
        {"height", size[1].get<int>() + 40}});
    for (const auto& [id, change] : changes) {
      const Json after = session_.Get(id)["rect"];
      for (std::size_t side = 0; side < 4; ++side) {
        EXPECT_EQ(after[side].get<int>() - before[id][side].get<int>(), change[side])
            << id << " " << side;
      }
    }
  };
  grow({{kActive, {0, 0, 0, 0}},
        {kNew, {0, 0, 0, 0}},
        {kList, {0, 0, 100, 40}},
        {kOk, {100, 40, 0, 0}},
        {kCancel, {100, 40, 0, 0}}});
  session_.Click(kNew);
  const std::vector<int> kWider = {0, 0, 100, 0}, kAside = {100, 0, 0, 0}, kStays = {0, 0, 0, 0};
  grow({{kName, kWider},
        {kPattern, kWider},
        {kFolders, kWider},
        {kNameType, kAside},
        {kLocationType, kAside},
        {kBrowse, kAside},
        {kSeveral, kAside},
        {kOk, kAside},
        {kCancel, kAside},
        {kByName, kStays},
        {kByLocation, kStays}});
  EXPECT_EQ(session_.Close(), 0);
}

TEST_F(SearchFilterDialogs, OnlyTheirEntryTakesActive) {
  EXPECT_FALSE(
      session_.Refused({{"do", "open"}, {"entry", "OpenCacheSettings"}, {"active", true}}).empty());
  EXPECT_FALSE(
      session_.Refused({{"do", "open"}, {"entry", "OpenSearchFilterList"}, {"active", 1}}).empty());
}

}  // namespace
