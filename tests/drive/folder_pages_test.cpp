// The pages of history, folders, alerts and e-mail, used as a person would.

#include "drive/session.h"

namespace {

constexpr int kOk = 1, kCancel = 2;
constexpr int kHistory = 7, kFolders = 11, kAlerts = 12, kEmail = 29;
constexpr int kMainTemplate = 5526;

bool Mentions(const Json& message, const char* part) {
  return message["kind"] == "message" &&
         message["text"].get<std::string>().find(part) != std::string::npos;
}

void AnswerOk(Session& session) { session.Do({{"do", "press"}, {"button", "OK"}}); }

std::string TextOf(Session& session, int control) { return session.Get(control)["text"]; }

/// A data folder with things to pick and open: the folders "place", "place/inner" and "other", and
/// "place/a.wav". The placeholder %PLACE% stands for the first, the drive C for the whole.
class FolderPages : public testing::Test {
 protected:
  FolderPages() {
    std::filesystem::create_directories(data_ / "place/inner");
    std::filesystem::create_directory(data_ / "other");
    WriteFile(Sound(), "no sound");
    machine_ = {{"folders", {{"%PLACE%", Place()}}}, {"drives", {{"c", data_.Path()}}}};
  }
  std::string Place() const { return data_ / "place"; }
  std::string Other() const { return data_ / "other"; }
  std::string Sound() const { return data_ / "place/a.wav"; }

  TemporaryFolder data_;
  Json machine_;
};

struct ValueRow {
  int page, control;
  const char* text;  ///< Typed; null to click the control.
  const char *store, *section, *key;
  Json saved;
};

const ValueRow kValues[] = {
    {kHistory, 5016, "999", "config", "Options", "MaxNavigationHistory", 999},
    {kHistory, 5019, "998", "config", "Options", "MaxDropDownHistory", 998},
    {kHistory, 5027, "99", "config", "Options", "MaxMRUFileList", 99},
    {kHistory, 5052, nullptr, "config", "Options", "RememberOptions", 1},
    {kHistory, 5070, nullptr, "config", "Options", "RememberWindowSize", 1},
    {kHistory, 5072, nullptr, "config", "Options", "RememberLastSearch", 1},
    {kHistory, 5266, nullptr, "config", "Options", "RememberSort", 1},
    {kHistory, 5073, nullptr, "config", "Options", "ClearHistoryOnExit", 1},
    {kEmail, 5239, nullptr, "config", "Options", "EmailStripHTML", true},
    {kEmail, 5236, nullptr, "config", "Options", "IncParentMsgName", true},
    {kEmail, 5237, nullptr, "config", "Options", "AddMsgBodyAttach", true},
    {kEmail, 5292, "/mail", "config", "FOLDERS", "ThunderbirdFolder", "/mail"},
    {kAlerts, 5129, nullptr, "config", "Alerts", "PlaySound", 1},
    {kAlerts, 5131, nullptr, "config", "Alerts", "TaskbarNotification", 1},
    {kAlerts, 5133, nullptr, "config", "Alerts", "EveryFile", 1},
    {kAlerts, 5136, "found.wav", "config", "Alerts", "SoundPath", "found.wav"},
    {kAlerts, 5134, nullptr, "config", "Alerts", "EndSearchSound", 1},
    {kAlerts, 5135, nullptr, "config", "Alerts", "EndSearchTaskbarNotification", 1},
    {kAlerts, 5138, " ", "config", "Alerts", "EndSearchSoundPath", " "},
    {kFolders, 5017, "%PLACE%/log", "master", "FOLDERS", "LogFile", "%PLACE%/log"},
    {kFolders, 5020, "%NOBODY%", "master", "FOLDERS", "ConfigFile", "%NOBODY%"},
    {kFolders, 5025, "C:\\a;C:\\b", "master", "FOLDERS", "FavouriteFolder", "C:\\a;C:\\b"},
    {kFolders, 5029, "", "master", "FOLDERS", "TempFolder", ""},
    {kFolders, 5308, " x ", "master", "FOLDERS", "IndexFolder", " x "},
};

/// Changes every value of the pages, each page after the one before; the last one stays shown.
void ChangeEverything(Session& session) {
  session.Open(kHistory);
  for (const ValueRow& row : kValues) {
    ASSERT_EQ(session.Select(row.page), row.page) << session.Top();
    row.text != nullptr ? session.Type(row.control, row.text) : session.Click(row.control);
  }
}

TEST_F(FolderPages, EveryValueIsSavedInItsStoreAndTypeAndShownAgain) {
  Session session(data_, machine_);
  ChangeEverything(session);
  EXPECT_EQ(session.End(kOk), 0);
  Json expected;
  for (const ValueRow& row : kValues) expected[row.store][row.section][row.key] = row.saved;
  for (const char* store : {"config", "master"}) {
    // Compared as text, as true would equal 1.
    EXPECT_EQ(session.Dump(store).dump(), expected[store].dump());
  }

  session.Open(kHistory);
  for (const ValueRow& row : kValues) {
    ASSERT_EQ(session.Select(row.page), row.page);
    const Json control = session.Get(row.control);
    if (row.text != nullptr) {
      EXPECT_EQ(control["text"], row.text) << row.key;
    } else {
      EXPECT_EQ(control["checked"], 1) << row.key;
      session.Click(row.control);
    }
  }
  EXPECT_EQ(session.End(kOk), 0);
  for (const ValueRow& row : kValues) {
    const Json saved = session.Dump(row.store)[row.section][row.key];
    const Json cleared = row.saved.is_boolean() ? Json(false) : Json(0);
    EXPECT_EQ(saved.dump(), (row.text != nullptr ? row.saved : cleared).dump()) << row.key;
  }
}

TEST_F(FolderPages, CancelLeavesTheStoresAsTheyWere) {
  Session session(data_, machine_);
  session.Write("config", "Options", "MaxMRUFileList", 5);
  session.Write("master", "FOLDERS", "LogFile", "/log");
  ChangeEverything(session);
  EXPECT_EQ(session.End(kCancel), 1);
  EXPECT_EQ(session.Dump("config"), Json({{"Options", {{"MaxMRUFileList", 5}}}}));
  EXPECT_EQ(session.Dump("master"), Json({{"FOLDERS", {{"LogFile", "/log"}}}}));
}

TEST_F(FolderPages, HistoryLengthsAreAcceptedWithinTheirRangesOnly) {
  const struct {
    int control;
    const char* text;
    bool accepted;
  } kLengths[] = {{5027, "0", true},   {5027, "99", true},    {5027, "100", false},
                  {5027, "-1", false}, {5019, "0", true},     {5019, "999", true},
                  {5019, "", false},   {5019, "1000", false}, {5016, "0", true},
                  {5016, "999", true}, {5016, "1000", false}, {5016, "many", false}};
  Session session(data_);
  for (const auto& row : kLengths) {
    SCOPED_TRACE(testing::Message() << row.control << " \"" << row.text << '"');
    session.Open(kHistory);
    const Json before = session.Dump("config");
    session.Type(row.control, row.text);
    session.Do({{"do", "ok"}});
    if (!row.accepted) {
      EXPECT_TRUE(Mentions(session.Top(), "integer")) << session.Top();
      AnswerOk(session);
      EXPECT_EQ(session.Get(row.control)["focus"], true);
      EXPECT_EQ(session.Dump("config"), before);
      EXPECT_EQ(session.End(kCancel), 1);
    }
    EXPECT_TRUE(session.Top().is_null());
  }
}

TEST_F(FolderPages, TheHistoryPageOpensTheHistoryDialogs) {
  Session session(data_);
  session.Write("history", "RecentFileName", "0", "*.txt");
  session.Open(kHistory);
  session.Click(5144);
  EXPECT_EQ(session.Top()["template"], 5524);
  session.Do({{"do", "cancel"}});
  EXPECT_EQ(session.Top()["template"], kMainTemplate);
  EXPECT_FALSE(session.Dump("config").contains("ClearHistory"));

  session.Click(5345);
  EXPECT_EQ(session.Top()["template"], 5562);
  EXPECT_EQ(TextOf(session, 5658), "*.txt");
  session.Do({{"do", "cancel"}});
  EXPECT_FALSE(session.Dump("config").contains("ClearHistory"));

  session.Click(5144);
  session.Click(35001);
  EXPECT_EQ(session.Top()["template"], kMainTemplate) << session.Top();
  EXPECT_EQ(session.Dump("config")["ClearHistory"]["Done"].dump(), "true");
  EXPECT_EQ(session.Dump("history"), Json::object());
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(session.Dump("config")["ClearHistory"]["Done"].dump(), "true");
}

struct Row {
  int page, edit, browse, action;
};
constexpr Row kFolderRows[] = {
    {kFolders, 5017, 5032, 5037}, {kFolders, 5020, 5033, 5036}, {kFolders, 5025, 5035, 5038},
    {kFolders, 5029, 5039, 5309}, {kFolders, 5308, 5310, 5311}, {kEmail, 5292, 5290, 5291},
};
constexpr Row kSoundRows[] = {{kAlerts, 5136, 5137, 5143}, {kAlerts, 5138, 5139, 5142}};

TEST_F(FolderPages, FoldersArePickedInTheFormOfTheApplicationFolders) {
  const struct {
    std::string before, start, choice, after;  // No choice: the picker is cancelled.
  } kPicks[] = {
      {"", "", Place(), "%PLACE%"},
      {"%PLACE%/inner", Place() + "/inner/", Other(), Other()},
      {"%PLACE%", Place() + "/", "C:\\place\\inner", "%PLACE%/inner"},
      {"%NOBODY%/x", "", "", "%NOBODY%/x"},
      {"C:\\place", "C:\\place\\", "", "C:\\place"},
  };
  Session session(data_, machine_);
  session.Open(kFolders);
  for (const Row& row : kFolderRows) {
    ASSERT_EQ(session.Select(row.page), row.page);
    for (const auto& pick : kPicks) {
      SCOPED_TRACE(testing::Message() << row.edit << ' ' << pick.before);
      session.Type(row.edit, pick.before);
      session.Click(row.browse);
      EXPECT_EQ(
          session.Top(),
          Json({{"kind", "picker"}, {"mode", "folder"}, {"start", pick.start}, {"filter", ""}}));
      session.Do(pick.choice.empty() ? Json{{"do", "dismiss"}}
                                     : Json{{"do", "choose"}, {"paths", {pick.choice}}});
      EXPECT_EQ(session.Top()["template"], kMainTemplate) << session.Top();
      EXPECT_EQ(TextOf(session, row.edit), pick.after);
    }
  }
  EXPECT_EQ(session.End(kCancel), 1);
}

TEST_F(FolderPages, EveryPathOfARowIsOpened) {
  const struct {
    std::string text;
    Json opened;
    int messages;
  } kOpened[] = {
      {"%PLACE%/inner", {Place() + "/inner"}, 0},
      {Place() + ";" + Other(), {Place(), Other()}, 0},
      {"%PLACE%;%PLACE%/missing;C:\\OTHER;", {Place(), Other()}, 1},
      {"%NOBODY%", Json::array(), 1},
      {"", Json::array(), 1},
  };
  Session session(data_, machine_);
  session.Open(kFolders);
  for (const Row& row : kFolderRows) {
    ASSERT_EQ(session.Select(row.page), row.page);
    for (const auto& open : kOpened) {
      SCOPED_TRACE(testing::Message() << row.action << ' ' << open.text);
      session.Type(row.edit, open.text);
      session.Click(row.action);
      for (int message = 0; message < open.messages; ++message) {
        EXPECT_EQ(session.Top()["title"], "Application Error");
        AnswerOk(session);
      }
      EXPECT_EQ(session.Top()["template"], kMainTemplate) << session.Top();
      EXPECT_EQ(session.Do({{"do", "outside"}})["opened"], open.opened);
      EXPECT_EQ(TextOf(session, row.edit), open.text);
    }
  }
  EXPECT_EQ(session.Do({{"do", "outside"}})["played"], Json::array());
}

TEST_F(FolderPages, APathWithALineBreakIsReportedAndKept) {
  const std::string path = Place() + "/no\nfolder";
  Session session(data_, machine_);
  const Json value = {{"store", "master"}, {"section", "FOLDERS"}, {"key", "LogFile"}};
  Json write = {{"do", "write"}, {"type", "string"}, {"value", path}};
  write.update(value);
  session.Do(write);
  session.Open(kFolders);
  EXPECT_EQ(TextOf(session, kFolderRows[0].edit), path);
  session.Click(kFolderRows[0].action);
  EXPECT_EQ(session.Top()["title"], "Application Error");
  AnswerOk(session);
  EXPECT_EQ(session.Do({{"do", "outside"}})["opened"], Json::array());
  EXPECT_EQ(session.End(kOk), 0);
  Json read = {{"do", "read"}, {"type", "string"}, {"default", ""}};
  read.update(value);
  EXPECT_EQ(session.Do(read)["value"], path);
}

TEST_F(FolderPages, AMissingSoundKeepsThePage) {
  const struct {
    std::vector<int> checks;
    int blank;  ///< An edit with one blank; 0 for none.
    const char* message;
    int focus;
  } kCases[] = {{{5129}, 0, "when a file is found", 5136},
                {{5134}, 0, "when a search ends", 5138},
                {{5129, 5134}, 0, "when a file is found", 5136},
                {{5129, 5134}, 5136, "when a search ends", 5138},
                {{5129}, 5136, nullptr, 0},
                {{}, 0, nullptr, 0}};
  for (const auto& row : kCases) {
    const TemporaryFolder data;
    Session session(data);
    session.Open(kAlerts);
    for (const int check : row.checks) session.Click(check);
    if (row.blank != 0) session.Type(row.blank, " ");
    session.Do({{"do", "ok"}});
    EXPECT_EQ(session.Top().is_null(), row.message == nullptr);
    if (row.message == nullptr) continue;
    EXPECT_TRUE(Mentions(session.Top(), row.message)) << session.Top();
    EXPECT_EQ(session.Top()["buttons"], Json({"OK"}));
    AnswerOk(session);
    EXPECT_EQ(session.Top()["template"], kMainTemplate) << "one message only";
    EXPECT_EQ(session.Get(row.focus)["focus"], true);
    EXPECT_EQ(session.Dump("config"), Json::object());
    session.Do({{"do", "select"}, {"page", kEmail}});
    EXPECT_TRUE(Mentions(session.Top(), row.message)) << session.Top();
    AnswerOk(session);
    EXPECT_EQ(session.Top()["page"]["template"], 5538);
  }
}

TEST_F(FolderPages, SoundsAreTried) {
  const struct {
    const char* sound;
    std::string file;
    const char* message;  ///< Null for none.
    bool played;
  } kTries[] = {{"plays", Sound(), nullptr, true},
                {"plays", "C:\\PLACE\\A.WAV", nullptr, true},
                {"plays", Place() + "/b.wav", "no such sound", false},
                {"plays", "", "no such sound", false},
                {"fails", Sound(), "cannot be played", true}};
  for (const auto& row : kTries) {
    SCOPED_TRACE(row.file);
    const TemporaryFolder data;
    machine_["sound"] = row.sound;
    Session session(data, machine_);
    session.Open(kAlerts);
    for (const Row& sound : kSoundRows) {
      session.Type(sound.edit, row.file);
      session.Click(sound.action);
      if (row.message != nullptr) {
        EXPECT_TRUE(Mentions(session.Top(), row.message)) << session.Top();
        AnswerOk(session);
      }
      EXPECT_EQ(session.Top()["template"], kMainTemplate);
      const Json played = row.played ? Json::array({row.file}) : Json::array();
      EXPECT_EQ(session.Do({{"do", "outside"}})["played"], played);
    }
  }
}

TEST_F(FolderPages, AChosenSoundIsRememberedAtOnce) {
  const struct {
    std::string edit, sounds, start;
  } kProposals[] = {{"", "", ""},
                    {"  ", Other(), Other() + "/Sample1.wav"},
                    {"", Other() + "/", Other() + "/Sample1.wav"},
                    {"", "C:\\other", "C:\\other\\Sample1.wav"},
                    {" " + Sound() + " ", Other(), Sound()}};
  for (const Row& row : kSoundRows) {
    const TemporaryFolder data;
    Session session(data, machine_);
    session.Open(kAlerts);
    for (const auto& proposal : kProposals) {
      SCOPED_TRACE(testing::Message() << row.edit << ' ' << proposal.start);
      session.Write("config", "FOLDERS", "Sounds", proposal.sounds);
      const Json before = session.Dump("config");
      session.Type(row.edit, proposal.edit);
      session.Click(row.browse);
      const Json picker = session.Top();
      EXPECT_EQ(picker["mode"], "open");
      EXPECT_EQ(picker["start"], proposal.start);
      EXPECT_NE(picker["filter"].get<std::string>().find("|*.wav;*.ogg|"), std::string::npos);
      session.Do({{"do", "dismiss"}});
      EXPECT_EQ(session.Top()["template"], kMainTemplate) << "a plain cancel says nothing";
      EXPECT_EQ(TextOf(session, row.edit), proposal.edit);
      EXPECT_EQ(session.Dump("config"), before);

      session.Click(row.browse);
      session.Do({{"do", "choose"}, {"paths", {Sound()}}});
      EXPECT_EQ(TextOf(session, row.edit), Sound()) << session.Top();
      EXPECT_EQ(session.Dump("config"), Json({{"FOLDERS", {{"Sounds", Place()}}}}));
    }
    // The whole dialog's Cancel brings the configuration back, and this with it.
    EXPECT_EQ(session.End(kCancel), 1);
    EXPECT_EQ(session.Dump("config"), Json::object());
  }
}

TEST_F(FolderPages, AProposedSoundThatIsTooLongIsReported) {
  Session session(data_);
  session.Write("config", "FOLDERS", "Sounds", "/" + std::string(5000, 'x'));
  session.Open(kAlerts);
  session.Click(5137);
  EXPECT_TRUE(Mentions(session.Top(), "could not be chosen")) << session.Top();
  AnswerOk(session);
  EXPECT_EQ(TextOf(session, 5136), "");
}

TEST_F(FolderPages, PickersRefuseWhatAPersonCouldNotGiveThem) {
  Session session(data_, machine_);
  session.Open(kFolders);
  const Json choose = {{"do", "choose"}, {"paths", {Place()}}};
  EXPECT_NE(session.Refused(choose).find("5526"), std::string::npos);
  session.Click(5032);
  EXPECT_NE(
      session.Refused({{"do", "click"}, {"control", 5032}, {"template", 5537}}).find("picker"),
      std::string::npos);
  for (const Json& paths : {Json::array(), Json({Place(), Other()}), Json({"Q:\\x"}), Json({1})}) {
    session.Refused({{"do", "choose"}, {"paths", paths}});
    EXPECT_EQ(session.Top()["kind"], "picker") << paths;
  }
  // What does not exist is the picker's own affair.
  session.Do({{"do", "choose"}, {"paths", {data_ / "missing"}}});
  EXPECT_EQ(session.Top()["kind"], "message");
  session.Do({{"do", "dismiss"}});
  session.Do(choose);
  EXPECT_EQ(TextOf(session, 5017), "%PLACE%");
}

TEST_F(FolderPages, RowsShowTheirImagesAndFollowTheWidth) {
  constexpr int kWider = 60;
  const auto expect = [](Session& session, const Row& row, int image) {
    ASSERT_EQ(session.Select(row.page), row.page);
    EXPECT_EQ(session.Get(row.browse)["kind"], "image");
    EXPECT_EQ(session.Get(row.browse)["image"], 4);
    EXPECT_EQ(session.Get(row.action)["image"], image);
    EXPECT_NE(session.Get(row.browse)["tooltip"], nullptr);
    EXPECT_NE(session.Get(row.action)["tooltip"], nullptr);
  };
  Session session(data_);
  const Json client = session.Open(kFolders)["window"]["client"];
  const int width = client[0], height = client[1];
  for (const Row& row : kFolderRows) expect(session, row, 7);
  for (const Row& row : kSoundRows) expect(session, row, 16);
  std::vector<Row> rows(std::begin(kFolderRows), std::end(kFolderRows));
  rows.insert(rows.end(), std::begin(kSoundRows), std::end(kSoundRows));
  for (const Row& row : rows) {
    ASSERT_EQ(session.Select(row.page), row.page);
    const auto rects = [&] {
      return std::vector<Json>{session.Get(row.edit)["rect"], session.Get(row.browse)["rect"],
                               session.Get(row.action)["rect"]};
    };
    std::vector<Json> expected = rects();
    session.Do({{"do", "resize"}, {"width", width + kWider}, {"height", height}});
    expected[0][2] = expected[0][2].get<int>() + kWider;
    for (const int button : {1, 2}) expected[button][0] = expected[button][0].get<int>() + kWider;
    EXPECT_EQ(rects(), expected) << row.edit;
    session.Do({{"do", "resize"}, {"width", width}, {"height", height}});
  }
}

TEST_F(FolderPages, AMachineFileWithADriveThatIsNoLetterIsRefused) {
  for (const char* drive : {"", "CC", "1", "\u00e4"}) {
    WriteFile(data_ / "bad.json", Json({{"drives", {{drive, "/"}}}}).dump());
    const Finished finished = RunHost(data_, {"drive", "--machine", data_ / "bad.json"});
    EXPECT_NE(finished.status, 0);
    EXPECT_NE(finished.errors.find("no letter"), std::string::npos) << finished.errors;
  }
}

}  // namespace
