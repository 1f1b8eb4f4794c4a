// The main dialog, used as a person would.

#include "drive/session.h"

namespace {

constexpr int kOk = 1, kCancel = 2, kRestoreDefaults = 5000, kFrame = 5084, kTree = 5085,
              kCaption = 5109;
constexpr int kMainTemplate = 5526;

// The limits of pages as they must be for the pages to be left.
void WriteGoodLimits(Session& session) {
  session.Write("config", "MemMgr", "UseMemMgr", true);
  for (const char* key : {"MaxSearchMem", "ReduceLines", "ReduceChars"}) {
    session.Write("config", "MemMgr", key, 100);
  }
  for (const char* key : {"MaxLineListSize", "MaxLineLength"}) {
    session.Write("config", "Options", key, 100);
  }
}

Json SelectedNode(Session& session) {
  const Json nodes = session.Nodes();
  for (const Json& node : nodes) {
    if (node["selected"] == true) return node;
  }
  return nullptr;
}

TEST(MainDialog, OpensWithTheWantedPage) {
  const TemporaryFolder data;
  Session session(data);
  const struct {
    int page;
    int shown;  // Template of the page; 0 for none.
  } kPages[] = {{27, 5553}, {28, 5556}, {4, 5533}, {1234, 0}};
  for (const auto& row : kPages) {
    const Json window = session.Open(row.page)["window"];
    EXPECT_EQ(window["template"], kMainTemplate);
    EXPECT_EQ(window.contains("page"), row.shown != 0) << row.page;
    if (row.shown != 0) {
      EXPECT_EQ(window["page"]["template"], row.shown);
      EXPECT_EQ(SelectedNode(session)["page"], row.page);
      EXPECT_EQ(session.Get(kCaption)["text"], SelectedNode(session)["title"]);
    }
    EXPECT_EQ(session.End(kCancel), 1);
  }
}

TEST(MainDialog, EveryPageOfTheTreeCanBeShown) {
  const TemporaryFolder data;
  Session session(data, {{"processors", 4}});
  WriteGoodLimits(session);
  session.Write("config", "Options", "MaxNearDistance", 5);
  session.Write("config", "Options", "RegExMaxLines", 5);
  session.Write("config", "Options", "TabSize", 4);
  session.Open();
  const Json nodes = session.Nodes();
  ASSERT_GE(nodes.size(), 5U);
  for (const Json& node : nodes) {
    const Json reply = session.Do({{"do", "select"}, {"row", node["row"]}});
    EXPECT_EQ(reply["selected"], node["row"]) << node << session.Top();
    EXPECT_EQ(session.Get(kCaption)["text"], node["title"]);
    EXPECT_TRUE(session.Top().contains("page")) << node;
  }
  EXPECT_EQ(session.End(kCancel), 1);
}

TEST(MainDialog, AValueOutsideItsChoicesIsShownAndSavedAsTheFirst) {
  const TemporaryFolder data;
  Session session(data);
  for (const int stored : {3, -1}) {
    session.Write("config", "Options", "OnePhaseSearch", stored);
    session.Open(27);
    EXPECT_EQ(session.Get(5105)["checked"], 1);
    EXPECT_EQ(session.Get(5106)["checked"], 0);
    EXPECT_EQ(session.Get(5282)["checked"], 0);
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(session.Dump("config")["Options"]["OnePhaseSearch"], 0);
  }
}

TEST(MainDialog, ChoicesAreSavedInTheirTypes) {
  const TemporaryFolder data;
  Session session(data);
  session.Open(27);
  EXPECT_EQ(session.Get(5300)["enabled"], false);
  EXPECT_NE(session.Refused({{"do", "pick"}, {"control", 5300}, {"index", 2}}).find("disabled"),
            std::string::npos);
  session.Click(5282);
  session.Click(5300);
  EXPECT_EQ(session.Get(5300)["dropped"], true);
  EXPECT_NE(session.Refused({{"do", "click"}, {"control", 5096}}).find("dropped"),
            std::string::npos);
  session.Do({{"do", "key"}, {"key", "Escape"}});
  EXPECT_EQ(session.Get(5300)["dropped"], false);
  EXPECT_NE(session.Refused({{"do", "pick"}, {"control", 5300}, {"index", 5}}).find("5 rows"),
            std::string::npos);
  const Json items = session.Get(5300)["items"];
  session.Do({{"do", "pick"}, {"control", 5300}, {"text", items[4]}});
  EXPECT_EQ(session.Get(5300)["index"], 4);
  session.Do({{"do", "pick"}, {"control", 5300}, {"index", 2}});
  EXPECT_EQ(session.Get(5300)["text"], items[2]);
  EXPECT_EQ(session.Get(5300)["focus"], true);
  session.Click(5096);
  session.Click(5264);
  EXPECT_EQ(session.Dump("config"), Json::object());
  EXPECT_EQ(session.End(kOk), 0);
  const Json options = session.Dump("config")["Options"];
  EXPECT_EQ(options["OnePhaseSearch"], 2);
  EXPECT_EQ(options["DeferredSortCol"], 2);
  EXPECT_EQ(options["ShowHitCount"], true);
  EXPECT_EQ(options["SearchAsYouType"], 1);
}

TEST(MainDialog, AnInvalidValueKeepsDialogAndPage) {
  const TemporaryFolder data;
  Session session(data);
  WriteGoodLimits(session);
  session.Open(28);
  session.Type(5088, "9");
  const Json before = session.Dump("config");
  const auto refuse = [&](const Json& request) {
    session.Do(request);
    const Json message = session.Top();
    ASSERT_EQ(message["kind"], "message") << request;
    EXPECT_NE(message["text"].get<std::string>().find("10"), std::string::npos);
    EXPECT_NE(
        session.Refused({{"do", "click"}, {"control", 5088}, {"template", 5556}}).find("covered"),
        std::string::npos);
    session.Do({{"do", "press"}, {"button", "OK"}});
    EXPECT_EQ(session.Top()["page"]["template"], 5556);
    EXPECT_EQ(SelectedNode(session)["page"], 28);
    EXPECT_EQ(session.Get(5088)["focus"], true);
    EXPECT_EQ(session.Dump("config"), before);
    EXPECT_TRUE(session.TakeEvents().empty());
  };
  refuse({{"do", "ok"}});
  refuse({{"do", "select"}, {"page", 27}});
  refuse({{"do", "select"}, {"row", 0}});
  for (const char* text : {"", "x", "1000000"}) {
    session.Type(5088, text);
    session.Do({{"do", "ok"}});
    ASSERT_EQ(session.Top()["kind"], "message") << text;
    session.Do({{"do", "press"}, {"button", "OK"}});
  }
  session.Type(5088, "10");
  EXPECT_EQ(session.Select(27), 27);
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(session.Dump("config")["MemMgr"]["ReduceChars"], 10);
}

TEST(MainDialog, CancelPutsTheStoreBackExactly) {
  const TemporaryFolder data;
  Session session(data);
  WriteGoodLimits(session);
  session.Write("config", "Options", "OnePhaseSearch", 1);
  session.Write("config", "Options", "ShowHitCount", true);
  session.Write("config", "Texts", "kept", "a \"text\"\n<with> everything & \u00e9");
  session.Write("master", "S", "stays", 1);
  const Json before = session.Dump("config");
  session.Open(27);
  session.Click(5282);
  session.Click(5096);
  EXPECT_EQ(session.Select(28), 28);
  session.Write("config", "Texts", "kept", "changed");
  session.Write("config", "Texts", "added", "new");
  session.Write("config", "Flags", "added", false);
  session.Write("master", "S", "stays", 2);
  EXPECT_EQ(session.Dump("config")["Options"]["OnePhaseSearch"], 2);
  EXPECT_EQ(session.End(kCancel), 1);
  EXPECT_EQ(session.Dump("config"), before);
  EXPECT_EQ(session.Dump("master")["S"]["stays"], 2);
}

const Json kDefaults = {
    {"defaults",
     {{"config", {{"Options", {{"OnePhaseSearch", 2}, {"ShowHitCount", true}}}}},
      {"master", {{"S", {{"origin", "shipped"}}}}}}}};

void Fill(Session& session) {
  for (const char* store : {"config", "master", "history", "fourth"}) {
    session.Write(store, "S", "origin", "user");
  }
}

TEST(RestoreDefaults, AnythingButYesChangesNothing) {
  const TemporaryFolder data;
  Session session(data, kDefaults);
  Fill(session);
  session.Open(27);
  const Json tree = session.Do({{"do", "tree"}});
  for (const char* answer : {"No", "Cancel", ""}) {
    session.Click(kRestoreDefaults);
    EXPECT_EQ(session.Top()["buttons"], Json({"Yes", "No", "Cancel"}));
    session.Do(*answer != 0 ? Json{{"do", "press"}, {"button", answer}} : Json{{"do", "dismiss"}});
    EXPECT_EQ(session.Do({{"do", "tree"}}), tree) << answer;
    for (const char* store : {"config", "master", "history", "fourth"}) {
      EXPECT_EQ(session.Dump(store), Json({{"S", {{"origin", "user"}}}})) << store << answer;
    }
  }
  EXPECT_EQ(session.End(kCancel), 1);
}

TEST(RestoreDefaults, YesReplacesTheStores) {
  for (const int end : {kOk, kCancel}) {
    const TemporaryFolder data;
    WriteFile(data / "none.xml", "");
    Session session(data, kDefaults);
    Fill(session);
    session.Open(27);
    session.Click(5106);
    session.Click(kRestoreDefaults);
    session.Do({{"do", "press"}, {"button", "Yes"}});
    EXPECT_EQ(session.Top()["template"], kMainTemplate) << session.Top();
    EXPECT_EQ(SelectedNode(session)["row"], 0);
    EXPECT_EQ(session.Dump("config"), kDefaults["defaults"]["config"]);
    EXPECT_EQ(session.Select(27), 27);
    EXPECT_EQ(session.Get(5282)["checked"], 1);
    EXPECT_EQ(session.End(end), end == kOk ? 0 : 1);
    const Json user = {{"S", {{"origin", "user"}}}};
    if (end == kOk) {
      EXPECT_EQ(session.Dump("config")["Options"]["OnePhaseSearch"], 2);
      EXPECT_FALSE(session.Dump("config").contains("S"));
    } else {
      EXPECT_EQ(session.Dump("config"), user);
    }
    EXPECT_EQ(session.Dump("master"), kDefaults["defaults"]["master"]);
    EXPECT_EQ(session.Dump("fourth"), Json::object());
    EXPECT_EQ(session.Dump("history"), user);
    EXPECT_EQ(session.Close(), 0);
    EXPECT_EQ(RunHost(data, {"get", "master", "S", "origin"}).output, "shipped\n");
  }
}

TEST(RestoreDefaults, AnOverlayFileIsLaidOverTheMaster) {
  const TemporaryFolder data;
  {
    Session session(data);
    session.Write("master", "S", "overlaid", true);
    EXPECT_EQ(session.Close(), 0);
  }
  std::filesystem::rename(data / "master.xml", data / "master.revert.xml");
  Session session(data, kDefaults);
  session.Open();
  session.Click(kRestoreDefaults);
  session.Do({{"do", "press"}, {"button", "Yes"}});
  EXPECT_EQ(session.Dump("master"), Json({{"S", {{"origin", "shipped"}, {"overlaid", true}}}}));
}

TEST(RestoreDefaults, AFailureIsShownAndTheDialogStays) {
  for (const char* operation : {"LoadMainDefaultConfiguration", "CreateConfigInterpreterListMgr",
                                "CreateDefaultMasterConfiguration"}) {
    const TemporaryFolder data;
    Json machine = kDefaults;
    machine["fails"] = {operation};
    Session session(data, machine);
    Fill(session);
    session.Open();
    session.Do({{"do", "log"}});
    session.Click(kRestoreDefaults);
    session.Do({{"do", "press"}, {"button", "Yes"}});
    EXPECT_EQ(session.Top()["title"], "Application Error") << operation;
    session.Do({{"do", "press"}, {"button", "OK"}});
    EXPECT_FALSE(session.Do({{"do", "log"}})["lines"].empty());
    EXPECT_EQ(session.Top()["template"], kMainTemplate);
    EXPECT_EQ(session.Do({{"do", "tree"}})["nodes"], Json::array()) << operation;
    EXPECT_EQ(session.Dump("master")["S"]["origin"], "user");
    EXPECT_EQ(session.End(kCancel), 1);
    EXPECT_EQ(session.Dump("config"), Json({{"S", {{"origin", "user"}}}}));
  }
}

Json RectOf(Session& session, int control) {
  return session.Do({{"do", "get"}, {"control", control}, {"template", kMainTemplate}})["rect"];
}

TEST(MainDialog, GrowingMovesEveryBoundControlAsItsConstraintSays) {
  constexpr int kWider = 100, kHigher = 40;
  const struct {
    int control;
    int x, y, cx, cy;  // 1 where the control follows the growth.
  } kBound[] = {{kTree, 0, 0, 0, 1},    {kFrame, 0, 0, 1, 1},
                {kCaption, 0, 0, 1, 0}, {kRestoreDefaults, 0, 1, 0, 0},
                {kOk, 1, 1, 0, 0},      {kCancel, 1, 1, 0, 0}};
  for (const int dpi : {96, 192}) {
    const TemporaryFolder data;
    Session session(data, {{"dpi", dpi}});
    const Json client = session.Open(27)["window"]["client"];
    const Json page = session.Top()["page"]["rect"];
    std::vector<Json> before;
    for (const auto& row : kBound) before.push_back(RectOf(session, row.control));

    const int width = client[0], height = client[1];
    Json resize = {{"do", "resize"}, {"width", width + kWider}, {"height", height + kHigher}};
    EXPECT_EQ(session.Do(resize)["client"], Json({width + kWider, height + kHigher}));
    for (std::size_t i = 0; i < std::size(kBound); ++i) {
      const auto& row = kBound[i];
      const Json& old = before[i];
      EXPECT_EQ(RectOf(session, row.control),
                Json({old[0].get<int>() + row.x * kWider, old[1].get<int>() + row.y * kHigher,
                      old[2].get<int>() + row.cx * kWider, old[3].get<int>() + row.cy * kHigher}))
          << row.control << " at " << dpi;
    }
    EXPECT_EQ(session.Top()["page"]["rect"], RectOf(session, kFrame));

    resize.update({{"width", width}, {"height", height}});
    EXPECT_EQ(session.Do(resize)["client"], client);
    for (std::size_t i = 0; i < std::size(kBound); ++i) {
      EXPECT_EQ(RectOf(session, kBound[i].control), before[i]) << kBound[i].control;
    }
    EXPECT_EQ(session.Top()["page"]["rect"], page);

    resize.update({{"width", 1}, {"height", 1}});
    const Json least = session.Do(resize)["client"];
    EXPECT_GT(least[0], 1);
    EXPECT_GT(least[1], 1);
  }
}

TEST(MainDialog, TreeImagesFollowTheResolution) {
  const struct {
    int dpi, size;
  } kSizes[] = {{96, 16},  {143, 16}, {144, 24}, {191, 24},
                {192, 32}, {280, 32}, {281, 48}, {288, 48}};
  for (const auto& row : kSizes) {
    const TemporaryFolder data;
    Session session(data, {{"dpi", row.dpi}});
    session.Open();
    const Json tree = session.Do({{"do", "tree"}});
    EXPECT_EQ(tree["imageSize"], row.size) << row.dpi;
    EXPECT_GE(tree["rowHeight"], row.size) << row.dpi;
    for (const Json& node : tree["nodes"]) {
      EXPECT_EQ(node["image"] == 5, node["level"] != 0) << node;
    }
  }
}

TEST(MainDialog, WithoutALanguageEveryTextSaysSo) {
  const std::string kNone = "<no language>";
  const TemporaryFolder data;
  Session session(data, {{"language", nullptr}});
  session.Open(27);
  const Json nodes = session.Nodes();
  for (const Json& node : nodes) {
    // The pages of interpreters bear names that no language has.
    if (node["page"] == -1) continue;
    EXPECT_EQ(node["title"], kNone);
  }
  EXPECT_EQ(session.Get(kCaption)["text"], kNone);
  EXPECT_EQ(session.Get(5300)["items"], Json({kNone, kNone, kNone, kNone, kNone}));
  EXPECT_EQ(session.Get(5105)["text"], "{2}");
  session.Click(kRestoreDefaults);
  EXPECT_EQ(session.Top()["text"], kNone);
  session.Do({{"do", "dismiss"}});
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(session.Dump("config")["Options"]["DeferredSortCol"], -1);
}

TEST(MainDialog, ControlsAreDescribedInTemplateOrder) {
  const TemporaryFolder data;
  Session session(data);
  session.Open(27);
  std::vector<int> numbers;
  const Json reply = session.Do({{"do", "controls"}, {"template", 5553}});
  for (const Json& control : reply["controls"]) {
    EXPECT_EQ(control["template"], 5553);
    numbers.push_back(control["control"]);
  }
  EXPECT_EQ(numbers,
            (std::vector<int>{5208, 5105, 5106, 5282, 5300, 5344, 5096, 5263, 5264, 5347}));
  EXPECT_EQ(session.Do({{"do", "get"}, {"template", 5553}, {"nth", 1}})["control"], 5105);
  EXPECT_EQ(session.Get(5208)["kind"], "separator");
  EXPECT_NE(session.Refused({{"do", "get"}, {"control", 5107}}).find("5106"), std::string::npos);
  EXPECT_NE(session.Refused({{"do", "click"}, {"control", kFrame}}).find("hidden"),
            std::string::npos);
}

TEST(MainDialog, KeysWorkAsWithAPerson) {
  const TemporaryFolder data;
  Session session(data);
  session.Open(27);
  session.Do({{"do", "key"}, {"key", "Space"}, {"control", 5096}});
  EXPECT_EQ(session.Get(5096)["checked"], 1);
  session.Do({{"do", "key"}, {"key", "Tab"}});
  EXPECT_EQ(session.Get(5264)["focus"], true);
  EXPECT_NE(session.Refused({{"do", "key"}, {"key", "Ctrl+Banana"}}).find("Banana"),
            std::string::npos);
  session.Do({{"do", "key"}, {"key", "Escape"}});
  const std::vector<Json> events = session.TakeEvents();
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0]["status"], 1);
}

// The store fails in its n-th read or write, for every n of one visit to two pages.
TEST(MainDialog, AStoreThatThrowsIsReportedAndTheDialogStays) {
  int reported = 0;
  for (int call = 1;; ++call) {
    ASSERT_LT(call, 200);
    const TemporaryFolder data;
    Session session(data, {{"throws", {{"store", "config"}, {"call", call}}}});
    WriteGoodLimits(session);
    session.Open(27);
    if (const std::vector<Json> events = session.TakeEvents(); !events.empty()) {
      // Before the dialog has its own boundary the exception is the caller's.
      EXPECT_LE(call, 6);
      EXPECT_TRUE(events[0].contains("error")) << events[0];
      EXPECT_TRUE(session.Top().is_null());
      continue;
    }
    bool shown = false;
    const auto close = [&](bool applying = false) {
      const Json top = session.Top();
      if (top["kind"] != "message") return;
      // The exception of a page that is not shown reaches the dialog as a failed status.
      const bool failedStatus = applying && top["title"] == "Application Error";
      EXPECT_TRUE(failedStatus || top["title"] == "Application - STL Error") << call << top;
      EXPECT_FALSE(shown) << "a second message at " << call;
      shown = true;
      session.Do({{"do", "press"}, {"button", "OK"}});
      EXPECT_EQ(session.Top()["template"], kMainTemplate) << call;
      EXPECT_TRUE(session.TakeEvents().empty());
    };
    close();
    session.Do({{"do", "select"}, {"page", 28}});
    close();
    session.Do({{"do", "select"}, {"page", 28}});
    session.Do({{"do", "ok"}});
    if (session.Top().is_null()) {
      EXPECT_EQ(session.TakeEvents().at(0)["status"], 0);
    } else {
      close(true);
      EXPECT_EQ(session.End(kOk), 0) << call;
    }
    // What the extensions need when the tree is built is told to the log alone.
    const Json lines = session.Do({{"do", "log"}})["lines"];
    if (!shown && lines.empty()) break;
    if (shown) ++reported;
  }
  // Six values on each page are read and written at least once.
  EXPECT_GE(reported, 24);
}

}  // namespace
