// The pages of the display, of character processing, of the desktop integration and of threads,
// used as a person would.

#include "drive/session.h"

namespace {

constexpr int kOk = 1, kCancel = 2;
constexpr int kDisplay = 5, kCharacters = 6, kShell = 10, kThreads = 9;

void Pick(Session& session, int control, int index) {
  session.Do({{"do", "pick"}, {"control", control}, {"index", index}});
}

/// A value and how it is changed: by a text, by a row, or (neither) by a click.
struct ValueRow {
  int page, control;
  const char* text;
  int row;
  const char *section, *key;
  Json saved;
};

const ValueRow kValues[] = {
    {kDisplay, 5018, "9999999", -1, "Options", "MaxLineListSize", 9999999},
    {kDisplay, 5075, nullptr, -1, "Options", "LimitDisplayChars", 1},
    {kDisplay, 5021, "10", -1, "Options", "MaxLineDisplayChars", 10},
    {kDisplay, 5010, "99999", -1, "Options", "SurroundLinesBefore", 99999},
    {kDisplay, 5014, "0", -1, "Options", "SurroundLinesAfter", 0},
    {kDisplay, 5230, nullptr, 2, "Options", "RightAlignLocation", 2},
    {kDisplay, 5233, nullptr, 3, "Options", "CVTruncate", 3},
    {kCharacters, 5219, nullptr, -1, "Options", "NormalizeQuotes", 1},
    {kCharacters, 5313, nullptr, -1, "Options", "MatchFullPathFileName", 1},
    {kCharacters, 5069, nullptr, -1, "Options", "IncFilenameContents", 1},
    {kCharacters, 5265, nullptr, -1, "Options", "IncFolderContents", 1},
    {kCharacters, 5059, nullptr, -1, "Options", "EOLUnix", 1},
    {kCharacters, 5062, nullptr, -1, "Options", "EOLMac", 1},
    {kCharacters, 5146, "9999999", -1, "Options", "MaxLineLength", 9999999},
    {kShell, 5082, nullptr, -1, "Shell", "AssociateSRF", true},
    {kShell, 5060, nullptr, -1, "Shell", "AddToDirCM", true},
    {kShell, 5071, nullptr, -1, "Shell", "AddToFileCM", true},
    {kShell, 5066, nullptr, -1, "Shell", "ReplaceF3", true},
    {kShell, 5067, nullptr, -1, "Shell", "EnableHotKey", true},
    {kShell, 5331, nullptr, 2, "Options", "SingleInstanceMode", 2},
    {kShell, 5329, "999999", -1, "Options", "FastContextMenu", 999999},
    {kShell, 5333, nullptr, -1, "Options", "FastContextMenuDisabled", true},
    {kThreads, 5318, nullptr, 3, "Threading", "Speed", 3},
    {kThreads, 5123, "1024", -1, "Threading", "ThreadCount", 1024},
    {kThreads, 5319, nullptr, 3, "IndexThreading", "Speed", 3},
    {kThreads, 5317, "99", -1, "IndexThreading", "ThreadCount", 99},
    {kThreads, 5120, nullptr, 1, "Threading", "Foreground", 1},
    {kThreads, 5121, nullptr, 2, "Threading", "Background", 2},
    {kThreads, 5122, nullptr, 1, "Threading", "Minimized", 1},
    {kThreads, 5351, nullptr, 2, "Threading", "Indexer", 2},
};

/// Changes every value of the pages, each page after the one before.
void ChangeEverything(Session& session) {
  session.Open(kDisplay);
  for (const ValueRow& row : kValues) {
    ASSERT_EQ(session.Select(row.page), row.page) << session.Top();
    if (row.text != nullptr) {
      session.Type(row.control, row.text);
    } else if (row.row >= 0) {
      Pick(session, row.control, row.row);
    } else {
      session.Click(row.control);
    }
  }
}

const Json kMachine = {{"processors", 8}, {"browserExtensions", "yes"}};

TEST(DisplayAndShellPages, EveryValueIsSavedInItsTypeAndShownAgain) {
  const TemporaryFolder data;
  {
    Session session(data, kMachine);
    ChangeEverything(session);
    EXPECT_EQ(session.End(kOk), 0);
    Json expected;
    for (const ValueRow& row : kValues) expected[row.section][row.key] = row.saved;
    // Compared as text, as true would equal 1.
    EXPECT_EQ(session.Dump("config").dump(), expected.dump());
  }
  // What the desktop was told is still known to the next run, and is shown from there.
  Session session(data, kMachine);
  for (const char* key : {"AssociateSRF", "ReplaceF3"}) {
    session.Write("config", "Shell", key, false);
  }
  session.Open(kDisplay);
  for (const ValueRow& row : kValues) {
    ASSERT_EQ(session.Select(row.page), row.page);
    const Json control = session.Get(row.control);
    if (row.text != nullptr) {
      EXPECT_EQ(control["text"], row.text) << row.key;
    } else if (row.row >= 0) {
      EXPECT_EQ(control["index"], row.row) << row.key;
    } else {
      EXPECT_EQ(control["checked"], row.control == 5333 ? 0 : 1) << row.key;
    }
  }
  EXPECT_EQ(session.End(kCancel), 1);
}

TEST(DisplayAndShellPages, CancelTakesBackWhatThePagesWroteAtOnce) {
  const TemporaryFolder data;
  for (const bool portable : {false, true}) {
    Session session(data, {{"portable", portable}, {"registrar", {{"f3", true}}}});
    session.Write("config", "Options", "MaxLineListSize", 7);
    const Json before = session.Dump("config");
    session.Open(kShell);
    const Json shell = session.Dump("config")["Shell"];
    if (portable) {
      EXPECT_EQ(shell, Json({{"USBDriveConfig", true}}));
    } else {
      EXPECT_EQ(shell, Json({{"AssociateSRF", false},
                             {"AddToDirCM", false},
                             {"AddToFileCM", false},
                             {"ReplaceF3", true},
                             {"EnableHotKey", false}}));
    }
    EXPECT_EQ(session.Get(5066)["enabled"], !portable);
    EXPECT_EQ(session.Get(5066)["checked"], portable ? 0 : 1);
    EXPECT_EQ(session.End(kCancel), 1);
    EXPECT_EQ(session.Dump("config"), before);
  }
  EXPECT_FALSE(std::filesystem::exists(data / "shell.xml"));
}

TEST(DisplayAndShellPages, EveryStepOfTheRegistrarMayFail) {
  for (const char* step : {"create", "associations", "hotkey", "file"}) {
    SCOPED_TRACE(step);
    const TemporaryFolder data;
    Session session(data, {{"registrar", {{"srf", true}, {"fails", step}}}});
    session.Do({{"do", "log"}});
    session.Open(kShell);
    EXPECT_EQ(session.Top()["kind"], "dialog");
    EXPECT_EQ(session.Do({{"do", "log"}})["lines"].size(), 1U);
    EXPECT_EQ(session.Get(5082)["checked"], 0);
    EXPECT_EQ(session.Get(5331)["items"], Json::array());
    EXPECT_EQ(session.Get(5329)["enabled"], true);
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(session.Dump("config")["Shell"]["AssociateSRF"].dump(), "false");
    EXPECT_EQ(session.Dump("config")["Options"]["SingleInstanceMode"], 0);
  }
}

TEST(DisplayAndShellPages, AStoreThatThrowsWhileTheShellIsShownIsLoggedOnly) {
  // The page reads two values before it writes the flags; the snapshot and the reading of the
  // interpreter list come before all of them.
  int logged = 0;
  for (int call = 1; call <= 14; ++call) {
    const TemporaryFolder data;
    Session session(
        data, {{"registrar", Json::object()}, {"throws", {{"store", "config"}, {"call", call}}}});
    session.Open();
    if (session.Top().is_null()) continue;
    session.Do({{"do", "log"}});
    session.Do({{"do", "select"}, {"page", kShell}});
    if (session.Top()["kind"] == "message") {
      session.Do({{"do", "press"}, {"button", "OK"}});
      EXPECT_EQ(session.End(kCancel), 1);
      continue;
    }
    const Json lines = session.Do({{"do", "log"}})["lines"];
    EXPECT_LE(lines.size(), 1U) << lines;
    logged += static_cast<int>(lines.size());
    EXPECT_EQ(session.Get(5329)["enabled"], true);
    EXPECT_EQ(session.End(kCancel), 1);
  }
  // Five writes and one read.
  EXPECT_EQ(logged, 6);
}

TEST(DisplayAndShellPages, ReplacingTheKeyIsAskedAbout) {
  for (const Json& text : {Json("YES"), Json("no"), Json(nullptr)}) {
    const TemporaryFolder data;
    Session session(data, {{"browserExtensions", text}});
    session.Open(kShell);
    for (const char* answer : {"No", "Yes"}) {
      session.Click(5066);
      const bool asks = session.Top()["kind"] == "message";
      EXPECT_EQ(asks, text != "YES") << text;
      if (!asks) break;
      EXPECT_EQ(session.Top()["buttons"], Json({"Yes", "No"}));
      session.Do({{"do", "press"}, {"button", answer}});
      EXPECT_EQ(session.Get(5066)["checked"], answer == std::string("Yes") ? 1 : 0);
    }
    EXPECT_EQ(session.Get(5066)["checked"], 1);
    session.Click(5066);
    EXPECT_EQ(session.Top()["kind"], "dialog") << "asked when the box was cleared";
  }
}

TEST(DisplayAndShellPages, SpeedsShowTheThreadsOfThisMachine) {
  const TemporaryFolder data;
  Session session(data, {{"processors", 8}});
  session.Open(kThreads);
  EXPECT_EQ(session.Get(5319)["index"], 0);
  const char* const counts[] = {"8", "4", "1", "1"};
  for (const auto& [speed, count, unit] :
       {std::tuple{5318, 5123, 5153}, std::tuple{5319, 5317, 5346}}) {
    for (const int row : {3, 2, 1, 0}) {
      Pick(session, speed, row);
      EXPECT_EQ(session.Get(count)["text"], row == 3 ? "8" : counts[row]) << row;
      EXPECT_EQ(session.Get(count)["enabled"], row == 3);
      EXPECT_EQ(session.Get(unit)["enabled"], row == 3);
    }
  }
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(session.Dump("config")["Threading"]["ThreadCount"], 8);
}

TEST(DisplayAndShellPages, BoundControlsWidenWithTheCharacterPage) {
  constexpr int kWider = 90;
  const TemporaryFolder data;
  Session session(data);
  const Json client = session.Open(kCharacters)["window"]["client"];
  std::vector<std::pair<int, int>> before;
  for (const int id : {5069, 5265, 5313, 5110, 5118, 5315, 5219, 5059, 5062, 5077, 5146}) {
    before.emplace_back(id, session.Get(id)["rect"][2]);
  }
  session.Do({{"do", "resize"},
              {"width", client[0].get<int>() + kWider},
              {"height", client[1].get<int>()}});
  std::size_t place = 0;
  for (const auto& [id, width] : before) {
    EXPECT_EQ(session.Get(id)["rect"][2], width + (place++ < 6 ? kWider : 0)) << id;
  }
}

struct TemplateRow {
  int page, id;
  std::vector<int> controls;
};

TEST(DisplayAndShellPages, ControlsStandInTheirOrder) {
  const TemplateRow kTemplates[] = {
      {kDisplay,
       5530,
       {5115, -1, 5018, 5075, 5021, 5111, -1, 5010, -1, 5014, 5116, -1, 5230, -1, 5233}},
      {kCharacters, 5532, {5219, 5315, 5313, 5118, 5069, 5265, 5110, 5059, 5062, 5077, 5146}},
      {kShell, 5536, {5082, 5060, 5071, 5066, 5067, 5159, 5331, 5330, 5333, 5340, 5329}},
      {kThreads,
       5535,
       {5125, 5318, 5123, 5153, 5316, 5319, 5317, 5346, 5124, 5285, 5120, 5286, 5121, 5349, 5122,
        5350, 5351}}};
  const TemporaryFolder data;
  Session session(data);
  for (const TemplateRow& row : kTemplates) {
    session.Open(row.page);
    std::vector<int> numbers;
    const Json reply = session.Do({{"do", "controls"}, {"template", row.id}});
    for (const Json& control : reply["controls"]) numbers.push_back(control["control"]);
    EXPECT_EQ(numbers, row.controls);
    EXPECT_EQ(session.End(kCancel), 1);
  }
}

}  // namespace
