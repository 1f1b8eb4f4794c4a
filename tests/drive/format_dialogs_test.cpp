// The dialogs that choose formats, used as a person would.

#include <array>
#include <map>

#include "drive/session.h"

namespace {

constexpr int kOk = 1, kCancel = 2, kList = 5078;
constexpr const char *kDocuments = "OpenDocumentSettings", *kArchives = "OpenArchiveSettings",
                     *kOcr = "OpenOCRSettings";

using Names = std::vector<std::string>;

Json Entry(const std::string& key, const std::string& type, bool enabled, bool document = false) {
  return {{"name", key + "!"}, {"key", key},           {"extensions", key},
          {"info", ""},        {"type", type},         {"enabled", enabled},
          {"optionA", true},   {"document", document}, {"optionC", false}};
}

const Json kEntries = {
    Entry("text", "my textinterpreter", true), Entry("conv", "textconverters", false),
    Entry("zip", "compositefile", true),       Entry("book", "compositefile", false, true),
    Entry("seven", "compositefile", false),    Entry("filter", "ifilter", true),
    Entry("caps", "TextConverter", true),      Entry("a", "ocrformat", false),
    Entry("b", "x-ocrformat", true),           Entry("c", "ocrformat", true),
};

Json Language(const char* code, const char* name, bool available = true) {
  return {{"code", code}, {"name", name}, {"available", available}};
}

const Json kFourLanguages = {Language("fra", "French"), Language("eng", "English"),
                             Language("nor", "Norwegian", false), Language("ces", "Czech")};
const Json kMachine = {{"ifilters", Json::array()}, {"ocrLanguages", kFourLanguages}};

Json StoreEntries(Session& session, const Json& entries = kEntries) {
  return session.Do({{"do", "interpreters"}, {"set", entries}})["entries"];
}

void OpenDialog(Session& session, const std::string& entry) {
  session.Do({{"do", "open"}, {"entry", entry}});
}

/// The labels of the rows; "+" and "-" say whether the box is checked, "?" that there is none.
Names Rows(Session& session) {
  Names rows;
  const Json reply = session.Do({{"do", "rows"}, {"control", kList}});
  for (const Json& row : reply["rows"]) {
    const Json& checked = row["checked"];
    const char* box = checked.is_null() ? "?" : checked == true ? "+" : "-";
    rows.push_back(row["text"][0].get<std::string>() + box);
  }
  return rows;
}

void Check(Session& session, int row, bool on) {
  session.Do({{"do", "check"}, {"control", kList}, {"row", row}, {"on", on}});
}

Json Enabled(Session& session) {
  std::map<std::string, bool> enabled;
  const Json reply = session.Do({{"do", "interpreters"}});
  for (const Json& entry : reply["entries"]) {
    enabled[entry["key"]] = entry["enabled"];
  }
  return enabled;
}

bool IsChecked(Session& session, int control) { return session.Get(control)["checked"] == 1; }
bool IsEnabled(Session& session, int control) { return session.Get(control)["enabled"]; }

/// Shows a stored value, null for none, and saves it as it stands.
struct Shown {
  const char *entry, *section, *key;
  Json stored;
  int control;
  bool checked;
  Json saved;
};

const Shown kShown[] = {
    {kDocuments, "Filters", "AutoManage", nullptr, 5104, true, 0},
    {kDocuments, "Filters", "AutoManage", 0, 5104, true, 0},
    {kDocuments, "Filters", "AutoManage", 1, 5043, true, 1},
    {kDocuments, "Filters", "AutoManage", 2, 5046, true, 2},
    {kDocuments, "Filters", "AutoManage", 5, 5046, true, 2},
    {kDocuments, "Filters", "AutoManage", -1, 5046, true, 2},
    {kDocuments, "Options", "SearchRawDocData", nullptr, 5061, false, false},
    {kDocuments, "Options", "SearchRawDocData", true, 5061, true, true},
    {kDocuments, "Options", "UseAllDocExtensionTypes", nullptr, 5056, true, false},
    {kDocuments, "Options", "UseAllDocExtensionTypes", true, 5049, true, true},
    {kDocuments, "Options", "ExtractEmbeddedObjects", nullptr, 5342, true, true},
    {kDocuments, "Options", "ExtractEmbeddedObjects", false, 5342, false, false},
    {kArchives, "Options", "UseAllCompressedFileTypes", nullptr, 5056, true, false},
    {kArchives, "Options", "UseAllCompressedFileTypes", true, 5168, true, true},
    {kOcr, "Options", "CacheOCRText", nullptr, 5343, false, false},
    {kOcr, "Options", "CacheOCRText", true, 5343, true, true},
    {kOcr, "Options", "OCRDetectOrientation", nullptr, 5325, true, true},
    {kOcr, "Options", "OCRDetectOrientation", false, 5325, false, false},
    {kOcr, "Options", "OCRPDFWithText", nullptr, 5298, true, false},
    {kOcr, "Options", "OCRPDFWithText", true, 5298, false, true},
    {kOcr, "Options", "OCRFileTypes", nullptr, 5294, true, ""},
    {kOcr, "Options", "OCRFileTypes", "none", 5295, true, "none"},
};

TEST(FormatDialogs, EveryValueIsShownAndSavedInItsType) {
  const TemporaryFolder data;
  Session session(data, kMachine);
  for (const Shown& row : kShown) {
    SCOPED_TRACE(testing::Message() << row.key << " " << row.stored);
    if (!row.stored.is_null()) session.Write("config", row.section, row.key, row.stored);
    OpenDialog(session, row.entry);
    EXPECT_EQ(IsChecked(session, row.control), row.checked);
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(session.Dump("config")[row.section][row.key].dump(), row.saved.dump());
  }
}

/// A click that changes a value.
struct Change {
  const char* entry;
  std::vector<int> clicks;
  const char *section, *key;
  Json saved;
};

const Change kChanges[] = {
    {kDocuments, {5046}, "Filters", "AutoManage", 2},
    {kDocuments, {5043}, "Filters", "AutoManage", 1},
    {kDocuments, {5043, 5104}, "Filters", "AutoManage", 0},
    {kDocuments, {5061}, "Options", "SearchRawDocData", true},
    {kDocuments, {5049}, "Options", "UseAllDocExtensionTypes", true},
    {kDocuments, {5342}, "Options", "ExtractEmbeddedObjects", false},
    {kArchives, {5168}, "Options", "UseAllCompressedFileTypes", true},
    {kArchives, {5168, 5056}, "Options", "UseAllCompressedFileTypes", false},
    {kOcr, {5343}, "Options", "CacheOCRText", true},
    {kOcr, {5325}, "Options", "OCRDetectOrientation", false},
    {kOcr, {5298}, "Options", "OCRPDFWithText", true},
    {kOcr, {5295}, "Options", "OCRFileTypes", "b*c"},
    {kOcr, {5295, 5294}, "Options", "OCRFileTypes", ""},
};

TEST(FormatDialogs, ChangesAreSavedByOkAndForgottenByCancel) {
  for (const Change& change : kChanges) {
    SCOPED_TRACE(testing::Message() << change.key << change.saved);
    const TemporaryFolder data;
    Session session(data, kMachine);
    StoreEntries(session);
    const Json before = session.Dump("config");
    for (const int end : {kCancel, kOk}) {
      OpenDialog(session, change.entry);
      for (const int control : change.clicks) session.Click(control);
      if (!Rows(session)[0].ends_with("?")) Check(session, 0, false);
      EXPECT_EQ(session.End(end), end == kOk ? 0 : 1);
      if (end == kCancel) {
        EXPECT_EQ(session.Dump("config").dump(), before.dump());
      }
    }
    EXPECT_EQ(session.Dump("config")[change.section][change.key].dump(), change.saved.dump());
  }
}

TEST(FormatDialogs, EachShowsItsPartOfTheListInTheStoredOrder) {
  const TemporaryFolder data;
  Session session(data, kMachine);
  StoreEntries(session);
  const std::pair<const char*, Names> kParts[] = {
      {kDocuments, {"text!+", "conv!-", "book!-", "filter!+"}},
      {kArchives, {"zip!+", "seven!-"}},
      {kOcr, {"a!?", "b!?", "c!?"}},
  };
  for (const auto& [entry, rows] : kParts) {
    OpenDialog(session, entry);
    EXPECT_EQ(Rows(session), rows);
    EXPECT_EQ(session.End(kCancel), 1);
  }
  StoreEntries(session, Json::array({Entry("only", "config", true)}));
  for (const char* entry : {kDocuments, kArchives, kOcr}) {
    OpenDialog(session, entry);
    EXPECT_EQ(Rows(session), Names());
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(Enabled(session), Json({{"only", true}}));
  }
}

TEST(FormatDialogs, DocumentsFollowTheirRadioButtons) {
  const TemporaryFolder data;
  Session session(data, kMachine);
  StoreEntries(session);
  OpenDialog(session, kDocuments);
  const struct {
    int click;
    bool manual, selected;
  } kSteps[] = {{5104, true, true},   {5046, false, false}, {5104, true, true},
                {5043, false, false}, {5104, true, true},   {5049, true, false},
                {5043, false, false}, {5104, true, false},  {5056, true, true}};
  for (const auto& step : kSteps) {
    session.Click(step.click);
    for (const int control : {5061, 5049, 5056}) {
      EXPECT_EQ(IsEnabled(session, control), step.manual) << control;
    }
    for (const int control : {5051, 5053}) {
      EXPECT_EQ(IsEnabled(session, control), step.selected) << control;
    }
    EXPECT_TRUE(IsEnabled(session, 5342));
    EXPECT_EQ(Rows(session)[0], step.selected ? "text!+" : "text!?")
        << "flags of the entries, not the marks made since";
    if (step.selected) Check(session, 0, false);
  }
}

TEST(FormatDialogs, ArchivesFollowTheirRadioButtons) {
  const TemporaryFolder data;
  Session session(data, kMachine);
  StoreEntries(session);
  session.Write("config", "Options", "UseAllCompressedFileTypes", true);
  OpenDialog(session, kArchives);
  for (const bool selected : {false, true, false, true}) {
    if (IsChecked(session, 5056) != selected) session.Click(selected ? 5056 : 5168);
    for (const int control : {5051, 5053}) EXPECT_EQ(IsEnabled(session, control), selected);
    EXPECT_EQ(Rows(session), (selected ? Names{"zip!+", "seven!-"} : Names{"zip!?", "seven!?"}));
    if (selected) Check(session, 1, true);
  }
}

TEST(FormatDialogs, FlagsOfShownRowsAreSavedWhileRowsCanBeChecked) {
  const struct {
    const char* entry;
    int button;  ///< Pressed first: all or none; 0 for neither.
    int last;    ///< The choice made after that; 0 to leave it.
    Json changed;
  } kCases[] = {
      {kDocuments, 5051, 0, {{"text", true}, {"conv", true}, {"book", true}, {"filter", true}}},
      {kDocuments, 5053, 0, {{"text", false}, {"conv", false}, {"book", false}, {"filter", false}}},
      {kDocuments, 5053, 5043, Json::object()},
      {kDocuments, 5053, 5049, Json::object()},
      {kDocuments, 0, 0, Json::object()},
      {kArchives, 5051, 0, {{"zip", true}, {"seven", true}}},
      {kArchives, 5053, 0, {{"zip", false}, {"seven", false}}},
      {kArchives, 5053, 5168, Json::object()},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(testing::Message() << row.entry << row.button << row.last);
    const TemporaryFolder data;
    Session session(data, kMachine);
    StoreEntries(session);
    Json expected = Enabled(session);
    expected.update(row.changed);
    OpenDialog(session, row.entry);
    if (row.button != 0) session.Click(row.button);
    if (row.last != 0) session.Click(row.last);
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(Enabled(session), expected);
    const Json entries = session.Do({{"do", "interpreters"}})["entries"];
    EXPECT_EQ(entries.size(), kEntries.size());
    EXPECT_EQ(entries[0]["optionA"], true) << "all else stays";
  }
}

TEST(FormatDialogs, DocumentsShowTheFiltersThatTheMachineHasNow) {
  const TemporaryFolder data;
  Json machine = kMachine;
  machine["ifilters"] = Json::array({{{"extension", "doc"}, {"name", "Words"}}});
  Session session(data, machine);
  for (const auto& [entry, synced] :
       {std::pair{kArchives, false}, {kDocuments, true}, {kOcr, true}}) {
    StoreEntries(session);
    session.Write("config", "Filters", "RegFileTypes", "");
    OpenDialog(session, entry);
    EXPECT_EQ(Enabled(session).contains("ifilter:Words"), synced) << entry;
    if (entry == kDocuments) {
      EXPECT_EQ(Rows(session).back(), "Words+");
    }
    EXPECT_EQ(session.End(kCancel), 1);
    EXPECT_FALSE(Enabled(session).contains("ifilter:Words")) << "Cancel takes that back, too";
  }
}

TEST(FormatDialogs, TextRecognitionKeepsItsFormatsInThreeForms) {
  const struct {
    const char* stored;
    Names shown;
    std::vector<std::pair<int, bool>> checks;
    const char* saved;
  } kCases[] = {
      {"a*b", {"a!+", "b!+", "c!-"}, {}, "a*b"},
      {"a*b", {"a!+", "b!+", "c!-"}, {{0, false}, {1, false}}, "none"},
      {"a*b", {"a!+", "b!+", "c!-"}, {{2, true}}, "a*b*c"},
      {"c*a", {"a!+", "b!-", "c!+"}, {{1, true}}, "a*b*c"},
      {"none", {"a!-", "b!-", "c!-"}, {}, "none"},
      {"none", {"a!-", "b!-", "c!-"}, {{1, true}}, "b"},
      {"A*gone**zip*", {"a!-", "b!-", "c!-"}, {}, "none"},
      {"", {"a!?", "b!?", "c!?"}, {}, ""},
  };
  const TemporaryFolder data;
  Session session(data, kMachine);
  const Json list = StoreEntries(session);
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.stored);
    session.Write("config", "Options", "OCRFileTypes", row.stored);
    OpenDialog(session, kOcr);
    EXPECT_EQ(IsChecked(session, 5294), *row.stored == 0);
    EXPECT_EQ(Rows(session), row.shown);
    for (const auto& [at, on] : row.checks) Check(session, at, on);
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(session.Dump("config")["Options"]["OCRFileTypes"], row.saved);
    EXPECT_EQ(session.Do({{"do", "interpreters"}})["entries"], list) << "its flags are not saved";
  }
}

TEST(FormatDialogs, ChoosingAllRecognisableFormatsForgetsTheMarksMadeSince) {
  const TemporaryFolder data;
  Session session(data, kMachine);
  StoreEntries(session);
  session.Write("config", "Options", "OCRFileTypes", "a*b");
  OpenDialog(session, kOcr);
  Check(session, 2, true);
  session.Click(5294);
  EXPECT_EQ(Rows(session), (Names{"a!?", "b!?", "c!?"}));
  session.Click(5295);
  EXPECT_EQ(Rows(session), (Names{"a!+", "b!+", "c!-"}));
}

TEST(FormatDialogs, KeysThatTheStoredTextCannotTellApartAreNotRemembered) {
  const TemporaryFolder data;
  Session session(data, kMachine);
  StoreEntries(session, {Entry("a*b", "ocrformat", true), Entry("none", "ocrformat", true),
                         Entry("c", "ocrformat", false)});
  for (const auto& [stored, box] :
       {std::pair{"a*b", "-"}, {"none", "-"}, {"none*c", "+"}, {"c", "-"}}) {
    session.Write("config", "Options", "OCRFileTypes", stored);
    OpenDialog(session, kOcr);
    EXPECT_EQ(Rows(session)[0], "a*b!-") << stored;
    EXPECT_EQ(Rows(session)[1], std::string("none!") + box) << stored;
    EXPECT_EQ(session.End(kCancel), 1);
  }
}

TEST(FormatDialogs, TheLanguageIsOneThatCanBeUsed) {
  const struct {
    Json languages, stored;
    int row;  ///< -1: none is chosen, and nothing is saved.
    Json saved;
  } kCases[] = {
      {kFourLanguages, nullptr, 1, "eng"},
      {kFourLanguages, "fra", 2, "fra"},
      {kFourLanguages, "FRA", 1, "eng"},
      {kFourLanguages, "nor", 1, "eng"},
      {kFourLanguages, "xxx", 1, "eng"},
      {{Language("fra", "French"), Language("eng", "English", false)}, "nor", -1, "nor"},
      {Json::array({Language("fra", "French")}), nullptr, -1, nullptr},
      {Json::array(), "eng", -1, "eng"},
      // Languages of one name are told apart by their codes.
      {{Language("a", "Same"), Language("b", "Same")}, "b", 1, "b"},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(testing::Message() << row.stored << row.languages);
    const TemporaryFolder data;
    Session session(data, {{"ocrLanguages", row.languages}, {"ifilters", Json::array()}});
    if (!row.stored.is_null()) session.Write("config", "Options", "OCRLanguage", row.stored);
    OpenDialog(session, kOcr);
    EXPECT_EQ(session.Get(5228)["index"], row.row);
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(session.Dump("config")["Options"].value("OCRLanguage", Json()), row.saved);
  }
}

TEST(FormatDialogs, AnotherLanguageIsSavedByItsCode) {
  const TemporaryFolder data;
  Session session(data, kMachine);
  OpenDialog(session, kOcr);
  EXPECT_EQ(session.Get(5228)["items"], Json({"Czech", "English", "French"}));
  session.Do({{"do", "pick"}, {"control", 5228}, {"text", "Czech"}});
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(session.Dump("config")["Options"]["OCRLanguage"], "ces");
}

TEST(FormatDialogs, FollowTheirSize) {
  constexpr int kWider = 60, kHigher = 40;
  // Control, and whether it moves right, moves down, gets wider, gets higher.
  using Moves = std::map<int, std::array<int, 4>>;
  const std::pair<const char*, Moves> kDialogs[] = {
      {kDocuments,
       {{kList, {0, 0, 1, 1}},
        {1, {1, 1, 0, 0}},
        {2, {1, 1, 0, 0}},
        {5061, {0, 1, 0, 0}},
        {5341, {0, 1, 0, 0}},
        {5342, {0, 1, 0, 0}}}},
      {kArchives, {{kList, {0, 0, 1, 0}}}},
      {kOcr,
       {{kList, {0, 0, 1, 1}},
        {1, {1, 1, 0, 0}},
        {2, {1, 1, 0, 0}},
        {5298, {0, 1, 0, 0}},
        {5299, {0, 1, 0, 0}},
        {5228, {0, 1, 0, 0}},
        {5325, {0, 1, 0, 0}},
        {5296, {0, 1, 1, 0}}}},
  };
  const TemporaryFolder data;
  Session session(data, kMachine);
  for (const auto& [entry, moves] : kDialogs) {
    OpenDialog(session, entry);
    const Json client = session.Top()["client"];
    const Json before = session.Do({{"do", "controls"}})["controls"];
    session.Do({{"do", "resize"},
                {"width", client[0].get<int>() + kWider},
                {"height", client[1].get<int>() + kHigher}});
    const Json after = session.Do({{"do", "controls"}})["controls"];
    for (std::size_t i = 0; i < before.size(); ++i) {
      const int control = before[i]["control"];
      const auto found = moves.find(control);
      const auto by = found != moves.end() ? found->second : std::array<int, 4>{};
      Json expected = before[i]["rect"];
      for (std::size_t side = 0; side < 4; ++side) {
        expected[side] = expected[side].get<int>() + by[side] * (side % 2 == 0 ? kWider : kHigher);
      }
      EXPECT_EQ(after[i]["rect"], expected) << entry << control;
    }
    EXPECT_EQ(session.End(kCancel), 1);
  }
}

TEST(FormatDialogs, WhatKeepsADialogFromOpeningIsShown) {
  const struct {
    const char *entry, *fails, *named;
  } kCases[] = {
      {kDocuments, "LoadCurrentConfigInterpreterList", "Loading configuration list"},
      {kArchives, "GetAt", "Getting config for entry into list"},
      {kOcr, "LoadOCRLangMap", "Loading ocr lang map"},
      {kOcr, "GetLanguages", "Getting ocr lang list"},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.fails);
    const TemporaryFolder data;
    Json machine = kMachine;
    machine["fails"] = Json::array({row.fails});
    Session session(data, machine);
    OpenDialog(session, row.entry);
    const Json message = session.Top();
    ASSERT_EQ(message["kind"], "message") << message;
    EXPECT_NE(message["text"].get<std::string>().find(row.named), std::string::npos) << message;
    session.Do({{"do", "press"}, {"button", "OK"}});
    EXPECT_TRUE(session.Top().is_null());
    const auto events = session.TakeEvents();
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0]["status"], 1);
    EXPECT_EQ(session.Dump("config"), Json::object());
  }
  // The language stays out of the way when the map cannot tell one; filters when they are unknown.
  for (const char* fails : {"FindLanguage", "ResyncIFilters", "CreateConfigInterpreterListMgr"}) {
    const TemporaryFolder data;
    Json machine = kMachine;
    machine["fails"] = Json::array({fails});
    Session session(data, machine);
    OpenDialog(session, kOcr);
    EXPECT_EQ(session.Get(5228)["index"], fails[0] == 'F' ? -1 : 1);
    EXPECT_EQ(session.End(kOk), 0);
  }
}

}  // namespace
