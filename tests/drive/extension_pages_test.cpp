// The branch of file extensions, used as a person would.

#include <algorithm>

#include "drive/session.h"

namespace {

constexpr int kOk = 1, kCancel = 2;
constexpr int kGroup = 1, kFilters = 15, kUtf8 = 18;
constexpr int kReset = 5079, kList = 5148, kIncludeText = 5189, kPriority = 5225, kRefresh = 5147,
              kExtensions = 5008, kName = 5090, kInfo = 5086;

Json Interpreter(const std::string& name, const std::string& type, const std::string& extensions,
                 bool optionA = false, bool document = false, bool optionC = false) {
  return {{"name", name},
          {"key", "key of " + name},
          {"extensions", extensions},
          {"info", "On " + name},
          {"type", type},
          {"enabled", true},
          {"optionA", optionA},
          {"document", document},
          {"optionC", optionC}};
}

class ExtensionPages : public testing::Test {
 protected:
  Json Entries() { return session_->Do({{"do", "interpreters"}})["entries"]; }
  void SetEntries(const Json& entries) {
    session_->Do({{"do", "interpreters"}, {"set", entries}});
    ASSERT_EQ(Entries(), entries);
  }
  void Start(const Json& machine = {{"ifilters", Json::array()}}) {
    session_ = std::make_unique<Session>(data_, machine);
  }
  void Press(const char* button) { session_->Do({{"do", "press"}, {"button", button}}); }

  /// The titles of the nodes below the group, in order.
  std::vector<std::string> Titles() {
    std::vector<std::string> titles;
    bool inGroup = false;
    for (const Json& node : session_->Nodes()) {
      if (node["level"] == 0) {
        inGroup = node["page"] == kGroup;
      } else if (inGroup) {
        EXPECT_EQ(node["image"], 5);
        titles.push_back(node["title"]);
      }
    }
    return titles;
  }
  void SelectTitle(const std::string& title) {
    for (const Json& node : session_->Nodes()) {
      if (node["title"] != title) continue;
      const Json reply = session_->Do({{"do", "select"}, {"row", node["row"]}});
      ASSERT_EQ(reply["selected"], node["row"]);
      return;
    }
    FAIL() << "no node " << title;
  }
  Json Rows() {
    Json rows = Json::array();
    const Json reply = session_->Do({{"do", "rows"}, {"control", kList}});
    for (const Json& row : reply["rows"]) rows.push_back(row["text"]);
    return rows;
  }

  const Json kEntries = {Interpreter("Converter", "textconverter", "doc, docx", true, true, false),
                         Interpreter("Filter", "ifilter", "pdf"),
                         Interpreter("Settings", "config", "ini"),
                         Interpreter("Default", "textinterpreter defaultinterpreter",
                                     "*.txt, , .log", false, false, true)};
  TemporaryFolder data_;
  std::unique_ptr<Session> session_;
};

TEST_F(ExtensionPages, EveryInterpreterWithExtensionsOfItsOwnHasAPage) {
  Start();
  SetEntries(kEntries);
  EXPECT_EQ(session_->Open(kGroup)["window"]["page"]["template"], 5527);
  EXPECT_EQ(Titles(),
            (std::vector<std::string>{"Document filters", "UTF-8 files", "Default", "Converter"}));
  SelectTitle("Converter");
  EXPECT_EQ(session_->Top()["page"]["template"], 5523);
  EXPECT_EQ(session_->Get(kName)["text"], "Converter");
  EXPECT_EQ(session_->Get(kInfo)["text"], "On Converter");
  EXPECT_EQ(session_->Get(kExtensions)["text"], "doc\ndocx\n");
  EXPECT_EQ(session_->Get(5128)["checked"], 1);
  EXPECT_EQ(session_->Get(5130)["checked"], 1);
  EXPECT_EQ(session_->Get(5132)["checked"], 1);
  SelectTitle("Default");
  EXPECT_EQ(session_->Get(kExtensions)["text"], "*.txt\nlog\n");
  EXPECT_EQ(session_->Get(5132)["checked"], 0);
  EXPECT_EQ(session_->End(kOk), 0);
  Json expected = kEntries;
  expected[0]["extensions"] = "doc,docx";
  expected[3]["extensions"] = "*.txt,log";
  EXPECT_EQ(Entries(), expected);
}

TEST_F(ExtensionPages, EveryValueIsStoredOnOkAndNoneOnCancel) {
  Start();
  SetEntries(kEntries);
  const Json before = session_->Dump("config");
  for (const int end : {kCancel, kOk}) {
    session_->Open(kUtf8);
    session_->Type(kExtensions, ".csv\n\n tsv ");
    session_->Click(5192);
    SelectTitle("Converter");
    session_->Type(kExtensions, ".rtf\nodt.\n");
    for (const int check : {5128, 5130, 5132}) session_->Click(check);
    SelectTitle("Default");
    session_->Type(kExtensions, " \n\n");
    EXPECT_EQ(Entries(), kEntries) << "stored before OK";
    EXPECT_EQ(session_->End(end), end == kOk ? 0 : 1);
    if (end == kCancel) {
      EXPECT_EQ(session_->Dump("config"), before);
    }
  }
  Json expected = kEntries;
  expected[0] = Interpreter("Converter", "textconverter", "rtf,odt", false, false, true);
  expected[3]["extensions"] = "";
  EXPECT_EQ(Entries(), expected);
  const Json fileType = session_->Dump("config")["FileType"];
  EXPECT_EQ(fileType.dump(), Json({{"AutoDetectUTF8", true}, {"UTF8", "csv,tsv"}}).dump());
}

TEST_F(ExtensionPages, OkWithoutAnOpenedPageWritesNothing) {
  Start();
  session_->Open();
  EXPECT_EQ(session_->End(kOk), 0);
  EXPECT_EQ(session_->Dump("config"), Json::object());
}

TEST_F(ExtensionPages, ResettingAsksFirst) {
  Start();
  SetEntries(kEntries);
  session_->Write("config", "Filters", "RegFileTypes", "something");
  session_->Open(kGroup);
  const Json before = session_->Dump("config");
  for (const char* answer : {"No", "Cancel"}) {
    session_->Click(kReset);
    EXPECT_EQ(session_->Top()["buttons"], Json({"Yes", "No", "Cancel"}));
    Press(answer);
    EXPECT_EQ(session_->Dump("config"), before);
    EXPECT_EQ(Titles().size(), 4U);
  }
  EXPECT_EQ(session_->End(kCancel), 1);
}

TEST_F(ExtensionPages, AResetIsStoredAtOnceAndUndoneByCancel) {
  Start({{"ifilters", {{{"extension", "doc"}, {"name", "Doc"}, {"location", "/d"}}}}});
  const Json defaults = Entries();
  SetEntries(kEntries);
  session_->Write("config", "Filters", "RegFileTypes", "something");
  const Json before = session_->Dump("config");
  for (const int end : {kCancel, kOk}) {
    session_->Open(kUtf8);
    session_->Type(kExtensions, "kept");
    SelectTitle("Converter");
    session_->Type(kExtensions, "lost");
    session_->Select(kGroup);
    session_->Click(kReset);
    Press("Yes");
    EXPECT_EQ(session_->Top()["page"]["template"], 5527) << session_->Top();
    EXPECT_EQ(Entries(), defaults);
    EXPECT_NE(session_->Dump("config")["Filters"]["RegFileTypes"], "something");
    const std::vector<std::string> titles = Titles();
    EXPECT_GT(titles.size(), 40U);
    EXPECT_EQ(std::count(titles.begin(), titles.end(), "Converter"), 0);
    EXPECT_EQ(session_->Select(kUtf8), kUtf8);
    EXPECT_EQ(session_->Get(kExtensions)["text"], "kept\n") << "leaving the page stored it";
    SelectTitle(titles.back());
    EXPECT_EQ(session_->Get(kName)["text"], titles.back());
    EXPECT_EQ(session_->End(end), end == kOk ? 0 : 1);
    if (end == kCancel) {
      EXPECT_EQ(session_->Dump("config"), before);
    }
  }
  EXPECT_EQ(Entries(), defaults);
}

TEST_F(ExtensionPages, AFailedResetIsReportedAndKeepsThePage) {
  const struct {
    const char *operation, *task, *line;
  } cases[] = {{"ResyncIFilters", "Resyncing IFilters failed", " - :55 - "},
               {"LoadDefaultList", "Reloading defaults failed", " - :59 - "},
               {"SaveConfigInterpreterList", "Saving defaults as current failed", " - :62 - "}};
  for (const auto& row : cases) {
    Start({{"ifilters", Json::array()}, {"fails", {row.operation}}});
    session_->Open(kGroup);
    const std::vector<std::string> titles = Titles();
    session_->Click(kReset);
    Press("Yes");
    const Json message = session_->Top();
    EXPECT_EQ(message["title"], "Application Error");
    for (const char* part : {row.task, row.line, "Brisquel/ConfigEntryExtensionMainDlg"}) {
      EXPECT_NE(message["text"].get<std::string>().find(part), std::string::npos) << message;
    }
    Press("OK");
    EXPECT_EQ(session_->Top()["page"]["template"], 5527);
    EXPECT_EQ(Titles(), titles);
    EXPECT_EQ(session_->Dump("config")["Filters"]["RegFileTypes"], "");
    EXPECT_EQ(session_->End(kCancel), 1);
    session_.reset();
  }
}

TEST_F(ExtensionPages, AListThatCannotBeReadIsReportedAndTheOtherPagesCanBeUsed) {
  Start({{"ifilters", Json::array()}, {"fails", {"GetAt"}}});
  session_->Do({{"do", "open"}, {"entry", "OpenConfigDialog"}, {"page", 27}});
  EXPECT_NE(session_->Top()["text"].get<std::string>().find("Getting config for entry into list"),
            std::string::npos);
  Press("OK");
  EXPECT_EQ(session_->Top()["page"]["template"], 5553);
  EXPECT_EQ(session_->End(kCancel), 1);
}

TEST_F(ExtensionPages, AListThatCannotBeSavedKeepsTheDialogOpen) {
  Start({{"ifilters", Json::array()}, {"fails", {"SaveConfigInterpreterList"}}});
  session_->Open();
  session_->Do({{"do", "ok"}});
  EXPECT_NE(session_->Top()["text"].get<std::string>().find("Applying configuration failed"),
            std::string::npos);
  Press("OK");
  EXPECT_EQ(session_->End(kCancel), 1);
}

const Json kMachineFilters = {
    {{"extension", "doc"}, {"name", "Doc reader"}, {"location", "/bin/doc"}, {"text", false}},
    {{"extension", "md"}, {"name", "Text reader"}, {"location", "/bin/text"}, {"text", true}},
    {{"extension", "x"}, {"name", ""}, {"location", ""}, {"text", false}}};

TEST_F(ExtensionPages, DocumentFiltersAreListedBehindTheFileTypes) {
  Start({{"ifilters", kMachineFilters}});
  session_->Write("config", "Filters", "FileTypes", ".doc,?xyz");
  session_->Write("config", "Options", "IFilterPriority", 1);
  session_->Open(kFilters);
  EXPECT_EQ(session_->Top()["page"]["template"], 5541) << session_->Top();
  const Json doc = {"doc", "Doc reader", "/bin/doc"}, md = {"md", "Text reader", "/bin/text"},
             x = {"x", "<unknown>", "<not found>"};
  const Json types = {doc, {"xyz", "<unknown>", "<not found>"}};
  const auto expected = [&](std::initializer_list<Json> found) {
    Json rows = types;
    for (const Json& row : found) rows.push_back(row);
    return rows;
  };
  EXPECT_EQ(Rows(), expected({doc, x}));
  const Json list = session_->Do({{"do", "rows"}, {"control", kList}});
  EXPECT_EQ(list["columns"], Json({"Type", "Filter", "Location"}));
  EXPECT_EQ(list["widths"], Json({80, 100, 300}));

  EXPECT_EQ(session_->Get(kPriority)["index"], 1);
  session_->Do({{"do", "pick"}, {"control", kPriority}, {"index", 0}});
  EXPECT_FALSE(session_->Dump("config")["Filters"].contains("IncludeTextFilters"));
  session_->Click(kIncludeText);
  EXPECT_EQ(Rows(), expected({doc, md, x}));
  const Json stored = session_->Dump("config");
  EXPECT_EQ(stored["Filters"]["IncludeTextFilters"].dump(), "true");
  EXPECT_EQ(stored["Options"]["IFilterPriority"].dump(), "0");
  session_->Click(kIncludeText);
  EXPECT_EQ(Rows(), expected({doc, x}));
  session_->Write("config", "Filters", "FileTypes", "");
  session_->Click(kRefresh);
  EXPECT_EQ(Rows(), Json({doc, x}));
  EXPECT_EQ(session_->End(kCancel), 1);
  EXPECT_EQ(session_->Dump("config")["Options"]["IFilterPriority"], 1);
  EXPECT_FALSE(session_->Dump("config")["Filters"].contains("IncludeTextFilters"));
}

TEST_F(ExtensionPages, WhatTheFiltersPageStoresIsNotUndoneByOk) {
  Start({{"ifilters", kMachineFilters}});
  SetEntries(kEntries);
  session_->Open();
  SelectTitle("Converter");
  session_->Type(kExtensions, "rtf");
  session_->Select(kFilters);
  const Json found = Entries();
  ASSERT_NE(found, kEntries);
  EXPECT_EQ(session_->End(kOk), 0);
  Json expected = found;
  expected[0]["extensions"] = "rtf";
  EXPECT_EQ(Entries(), expected);
}

}  // namespace
