// The pages of the main window, of the language, of the internal viewer and of colours, used as a
// person would.

#include <set>

#include "drive/session.h"

namespace {

constexpr int kOk = 1, kCancel = 2;
constexpr int kInterface = 24, kViewer = 25, kLanguage = 26, kColours = 30;
constexpr int kLanguageCombo = 5185, kNote = 5187, kTabSize = 5182;

/// The buttons of the terms in order.
constexpr int kTerms[] = {5277, 5267, 5268, 5269, 5270, 5271, 5272, 5273, 5274, 5275};

void Colour(Session& session, int control, int value) {
  session.Do({{"do", "colour"}, {"control", control}, {"value", value}});
}

void Pick(Session& session, int control, int index) {
  session.Do({{"do", "pick"}, {"control", control}, {"index", index}});
}

Json OpenLanguage(Session& session) {
  return session.Do({{"do", "open"}, {"entry", "OpenLanguageDialog"}})["window"];
}

struct ValueRow {
  int page, control;
  int choice;  ///< Row, colour or digit; -1 to click the control.
  const char *section, *key;
  Json saved;
};

const ValueRow kValues[] = {
    {kColours, 5278, 0x0000FF, "Window Settings", "HighlightColor", 0x0000FF},
    {kColours, 5257, -1, "Window Settings", "HighlightBold", true},
    {kColours, 5258, -1, "Window Settings", "HighlightUnder", true},
    {kColours, 5190, -1, "Window Settings", "HighlightBack", true},
    {kColours, 5281, 0x123456, "TextTab Settings", "HighlightColor", 0x123456},
    {kColours, 5261, -1, "TextTab Settings", "HighlightBold", true},
    {kColours, 5262, -1, "TextTab Settings", "HighlightUnder", true},
    {kColours, 5279, 0xFFFFFF, "TextTab Settings", "OriginalLineColor", 0xFFFFFF},
    {kColours, 5280, 0xABCDEF, "TextTab Settings", "SecondaryLineColor", 0xABCDEF},
    {kColours, 5275, 0x010203, "SearchTerms", "Color9", 0x010203},
    {kInterface, 5173, 3, "UserInterface", "UITheme", 5},
    {kInterface, 5242, 4, "UserInterface", "DefaultTab", 4},
    {kInterface, 5172, -1, "UserInterface", "UITabbed", true},
    {kInterface, 5176, -1, "UserInterface", "UITaskbarPreviews", true},
    {kInterface, 5180, -1, "UserInterface", "ShowCVTabs", true},
    {kLanguage, kLanguageCombo, 0, "Language", "File", "lang-en.xml"},
    {kViewer, kTabSize, 8, "Options", "TabSize", 8},
};

/// Changes every value of the pages; the last page stays shown.
void ChangeEverything(Session& session) {
  session.Open(kColours);
  for (const ValueRow& row : kValues) {
    ASSERT_EQ(session.Select(row.page), row.page) << session.Top();
    const std::string kind = session.Get(row.control)["kind"];
    if (kind == "check") session.Click(row.control);
    if (kind == "combo") Pick(session, row.control, row.choice);
    if (kind == "colour") Colour(session, row.control, row.choice);
    if (kind == "edit") session.Type(row.control, std::to_string(row.choice));
  }
}

TEST(InterfacePages, EveryValueIsSavedInItsTypeAndShownAgain) {
  const TemporaryFolder data;
  Session session(data);
  ChangeEverything(session);
  EXPECT_EQ(session.End(kOk), 0);
  Json expected;
  for (const ValueRow& row : kValues) expected[row.section][row.key] = row.saved;
  // Compared as text, as true would equal 1.
  EXPECT_EQ(session.Dump("config").dump(), expected.dump());

  session.Open(kColours);
  for (const ValueRow& row : kValues) {
    ASSERT_EQ(session.Select(row.page), row.page);
    const Json control = session.Get(row.control);
    const std::string kind = control["kind"];
    const char* field = kind == "check"    ? "checked"
                        : kind == "combo"  ? "index"
                        : kind == "colour" ? "colour"
                                           : "text";
    const Json shown = kind == "check"  ? Json(1)
                       : kind == "edit" ? Json(std::to_string(row.choice))
                                        : Json(row.choice);
    EXPECT_EQ(control[field], shown) << row.key;
  }
  EXPECT_EQ(session.End(kCancel), 1);
}

TEST(InterfacePages, CancelLeavesTheStoreAsItWas) {
  const TemporaryFolder data;
  Session session(data);
  session.Write("config", "SearchTerms", "Color9", 5);
  ChangeEverything(session);
  EXPECT_EQ(session.End(kCancel), 1);
  EXPECT_EQ(session.Dump("config"), Json({{"SearchTerms", {{"Color9", 5}}}}));
}

TEST(InterfacePages, AnEmptyStoreShowsBlackAndATabWidthThatMustBeChanged) {
  const TemporaryFolder data;
  Session session(data);
  session.Open(kColours);
  int buttons = 0;
  const Json reply = session.Do({{"do", "controls"}, {"template", 5558}});
  for (const Json& control : reply["controls"]) {
    EXPECT_EQ(control["enabled"], true) << control;
    if (control["kind"] != "colour") continue;
    EXPECT_EQ(control["colour"], 0) << control;
    ++buttons;
  }
  EXPECT_EQ(buttons, 14);
  ASSERT_EQ(session.Select(kViewer), kViewer);
  EXPECT_EQ(session.Get(kTabSize)["text"], "0");
  session.Do({{"do", "ok"}});
  EXPECT_EQ(session.Top()["kind"], "message");
  session.Do({{"do", "press"}, {"button", "OK"}});
  EXPECT_EQ(session.Get(kTabSize)["focus"], true);
  EXPECT_EQ(session.End(kCancel), 1);
}

TEST(InterfacePages, TermColoursAreSavedAsThePageShowsThem) {
  const TemporaryFolder data;
  Session session(data);
  Json colours = Json::array();
  for (int term = 0; term < 10; ++term) colours.push_back(1000 * term);
  EXPECT_EQ(session.Do({{"do", "terms"}, {"set", colours}})["colours"], colours);
  session.Open(kColours);
  for (int term = 0; term < 10; ++term) {
    EXPECT_EQ(session.Get(kTerms[term])["colour"], 1000 * term);
  }
  Colour(session, kTerms[4], 0x00FF00);
  colours[5] = 77;  // Behind the page's back.
  session.Do({{"do", "terms"}, {"set", colours}});
  EXPECT_EQ(session.End(kOk), 0);
  colours[4] = 0x00FF00;
  colours[5] = 5000;
  EXPECT_EQ(session.Do({{"do", "terms"}})["colours"], colours);

  colours.erase(0);
  EXPECT_NE(session.Refused({{"do", "terms"}, {"set", colours}}).find("10"), std::string::npos);
  session.Refused({{"do", "terms"}, {"set", {"red"}}});
}

TEST(InterfacePages, ColoursAreChosenInColourButtonsOnly) {
  const TemporaryFolder data;
  Session session(data);
  session.Open(kColours);
  for (const auto& [control, value] : {std::pair{5257, 0}, {5278, -1}, {5278, 0x1000000}}) {
    session.Refused({{"do", "colour"}, {"control", control}, {"value", value}});
  }
  for (const int value : {0, 0x0A0B0C, 0x0A0B0C, 0xC0C0C0, 0xF0F0F0}) {
    Colour(session, 5278, value);
    EXPECT_EQ(session.Get(5278)["colour"], value);
  }
  EXPECT_EQ(session.End(kCancel), 1);
}

/// A folder of language files of the test's own, beside the data folder.
class Languages : public testing::Test {
 protected:
  Languages() {
    std::filesystem::create_directory(Folder());
    std::filesystem::copy(std::string(kShippedLanguages) + "/lang-en.xml", Folder());
  }
  std::string Folder() const { return data_ / "lang"; }
  void Add(const std::string& file, const std::string& language) const {
    WriteFile(Folder() + "/" + file, "<translation lang=\"" + language + "\">");
  }
  Session Start(const Json& machine = Json::object()) const {
    return Session(data_, machine, Folder());
  }
  static std::multiset<std::string> Listed(Session& session) {
    return session.Get(kLanguageCombo)["items"];
  }
  static Json Stored(Session& session) {
    const Json dump = session.Dump("config");
    return dump.contains("Language") ? dump["Language"]["File"] : Json();
  }

  TemporaryFolder data_;
};

TEST_F(Languages, ThePageAloneHasNoNoteAndKeepsTheChoice) {
  Add("lang-fr.xml",
      "Fran\xc3\xa7"
      "ais");
  Session session = Start();
  for (const int end : {kCancel, kOk}) {
    const Json window = OpenLanguage(session);
    EXPECT_EQ(window["template"], 5551);
    EXPECT_EQ(window["page"]["template"], 5550);
    EXPECT_EQ(session.Get(kNote)["visible"], false);
    EXPECT_EQ(session.Get(kLanguageCombo)["text"], "English");
    session.Do({{"do", "pick"},
                {"control", kLanguageCombo},
                {"text",
                 "Fran\xc3\xa7"
                 "ais"}});
    EXPECT_EQ(session.End(end), end == kOk ? 0 : 1);
    EXPECT_EQ(Stored(session), end == kOk ? Json("lang-fr.xml") : Json());
  }
  session.Open(kLanguage);
  EXPECT_EQ(session.Get(kNote)["visible"], true);
  EXPECT_EQ(session.Get(kLanguageCombo)["text"],
            "Fran\xc3\xa7"
            "ais");
  EXPECT_EQ(session.End(kCancel), 1);
}

TEST_F(Languages, AreListedByTheFirst200BytesOfTheirFiles) {
  const std::string root = "<translation lang=\"Late\">";
  const std::string quoted = root.substr(0, root.size() - 1);
  for (const auto& [file, size] : {std::pair{"lang-200.xml", 200U}, {"lang-201.xml", 201U}}) {
    WriteFile(Folder() + "/" + file, std::string(size - quoted.size(), ' ') + root);
  }
  Add("LANG_X.XML", "Upper");
  Add("lang-twin.xml", "Upper");
  Add("other.xml", "Other");
  Add("lang-bytes.xml", "\xff");
  WriteFile(Folder() + "/lang-none.xml", "<other/>");
  const std::string sparse = Folder() + "/lang-sparse.xml";
  WriteFile(sparse, std::string(300, ' ') + root);
  std::filesystem::resize_file(sparse, std::uintmax_t{2} << 30);
  Session session = Start();
  session.Write("config", "Language", "File", "lang-200.XML");
  OpenLanguage(session);
  EXPECT_EQ(Listed(session), (std::multiset<std::string>{"English", "Late", "Upper", "Upper"}));
  EXPECT_EQ(session.Get(kLanguageCombo)["text"], "Late");
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(Stored(session), "lang-200.xml");
}

TEST_F(Languages, ATextIsLookedForBehindTheFirstItemFirst) {
  for (const char* file : {"lang-1.xml", "lang-2.xml", "lang-3.xml"}) Add(file, "Same");
  std::filesystem::remove(Folder() + "/lang-en.xml");
  // The order of the rows is that of the file system.
  std::vector<std::string> rows;
  for (const auto& entry : std::filesystem::directory_iterator(Folder())) {
    rows.push_back(entry.path().filename());
  }
  Session session = Start();
  for (int row = 0; row < 3; ++row) {
    OpenLanguage(session);
    Pick(session, kLanguageCombo, row);
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(Stored(session), rows[1]);
  }
}

TEST_F(Languages, AnErrorEndsTheScanAndIsShownOnce) {
  for (int file = 0; file < 2000; ++file) Add("lang-" + std::to_string(file) + ".xml", "L");
  std::filesystem::create_directory(Folder() + "/lang-folder.xml");
  const struct {
    Json machine;
    const char* task;
  } kFaults[] = {{{{"fails", {"GetLangFileLocation"}}}, "Getting lang file location"},
                 {{{"fails", {"OpenRead"}}}, "Opening xml language file"},
                 {{{"fails", {"Read"}}}, "Reading XML header"},
                 {Json::object(), "Opening xml language file"}};
  for (const auto& fault : kFaults) {
    Session session = Start(fault.machine);
    OpenLanguage(session);
    const Json box = session.Top();
    ASSERT_EQ(box["kind"], "message") << fault.task;
    for (const char* part : {"Loading languages", fault.task, "ConfigEntryLocalizationDlg"}) {
      EXPECT_NE(box["text"].get<std::string>().find(part), std::string::npos) << box;
    }
    session.Do({{"do", "press"}, {"button", "OK"}});
    EXPECT_EQ(session.Top()["template"], 5551);
    EXPECT_TRUE(fault.machine.empty() || Listed(session).empty());
    const std::string chosen = session.Get(kLanguageCombo)["text"];
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(Stored(session).is_null(), chosen.empty());
  }
}

TEST_F(Languages, AFolderWithoutLanguagesIsNoErrorButNoFolderIsOne) {
  std::filesystem::remove(Folder() + "/lang-en.xml");
  for (const bool folder : {true, false}) {
    if (!folder) std::filesystem::remove(Folder());
    Session session = Start();
    OpenLanguage(session);
    EXPECT_EQ(session.Top()["kind"], folder ? "dialog" : "message");
    if (!folder) session.Do({{"do", "dismiss"}});
    EXPECT_TRUE(Listed(session).empty());
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(Stored(session), Json());
  }
}

TEST_F(Languages, AStoreThatRaisesIsReportedAndTheDialogStays) {
  Session session = Start({{"throws", {{"store", "config"}, {"call", 2}}}});
  OpenLanguage(session);
  session.Do({{"do", "ok"}});
  EXPECT_EQ(session.Top()["title"], "Application - STL Error");
  session.Do({{"do", "press"}, {"button", "OK"}});
  EXPECT_EQ(session.Top()["template"], 5551);
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(Stored(session), "lang-en.xml");
}

}  // namespace
