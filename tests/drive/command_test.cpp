// The commands without a window, the machine file, and the care for the data folder.

#include "drive/session.h"

namespace {

bool Mentions(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(Commands, ValuesAreSetAndRead) {
  const TemporaryFolder data;
  const struct {
    std::vector<std::string> arguments;
    int status;
    std::string output;
  } kSteps[] = {
      {{"get", "fourth", "S", "k"}, 1, ""},
      {{"set", "fourth", "S", "k", "two words"}, 0, ""},
      {{"get", "fourth", "S", "k"}, 0, "two words\n"},
      {{"set", "fourth", "S", "n", "-5", "--type", "int"}, 0, ""},
      {{"get", "fourth", "S", "n"}, 0, "-5\n"},
      {{"set", "fourth", "S", "n", "six"}, 2, ""},
      {{"set", "fourth", "S", "n", "6"}, 0, ""},
      {{"set", "fourth", "S", "b", "1", "--type", "bool"}, 0, ""},
      {{"set", "fourth", "S", "t", "a\tb\\"}, 0, ""},
      {{"list", "fourth"},
       0,
       "fourth\tS\tb\tbool\ttrue\nfourth\tS\tk\tstring\ttwo words\nfourth\tS\tn\tint\t6\n"
       "fourth\tS\tt\tstring\ta\\tb\\\\\n"},
      {{"get", "fifth", "S", "k"}, 2, ""},
      {{"get", "fourth"}, 2, ""},
      {{"frobnicate"}, 2, ""},
      {{"get", "fourth", "S", "k", "--page", "4"}, 2, ""},
      {{"set", "fourth", "S", "k", "v", "--type", "float"}, 2, ""},
  };
  for (const auto& step : kSteps) {
    const Finished finished = RunHost(data, step.arguments);
    EXPECT_EQ(finished.status, step.status) << step.arguments[0] << finished.errors;
    EXPECT_EQ(finished.output, step.output);
    EXPECT_EQ(finished.errors.empty(), step.status == 0) << finished.errors;
  }
}

TEST(Commands, TheFirstRunLaysTheDefaults) {
  const TemporaryFolder data;
  const Finished list = RunHost(data, {"list", "config"});
  EXPECT_EQ(list.status, 0);
  EXPECT_TRUE(Mentions(list.output, "config\t"));
  EXPECT_TRUE(std::filesystem::exists(data / "config.xml"));
  RunHost(data, {"set", "config", "Options", "Mine", "x"});
  EXPECT_EQ(RunHost(data, {"list", "config"}).output.size(),
            list.output.size() + std::string("config\tOptions\tMine\tstring\tx\n").size());
}

TEST(Commands, AnExportedStoreIsImportedWhole) {
  const TemporaryFolder data;
  const std::string file = data / "exported.xml";
  RunHost(data, {"set", "history", "S", "old", "1"});
  ASSERT_EQ(RunHost(data, {"export", "history", file}).status, 0);
  EXPECT_EQ(RunHost(data, {"export", "history"}).output, ReadFile(file));
  RunHost(data, {"set", "history", "S", "new", "2"});
  EXPECT_EQ(RunHost(data, {"import", "history", file}).status, 0);
  EXPECT_EQ(RunHost(data, {"list", "history"}).output, "history\tS\told\tstring\t1\n");

  WriteFile(file, "<not a store");
  const Finished damaged = RunHost(data, {"import", "history", file});
  EXPECT_EQ(damaged.status, 4);
  EXPECT_TRUE(Mentions(damaged.errors, file));
  EXPECT_EQ(RunHost(data, {"list", "history"}).output, "history\tS\told\tstring\t1\n");
  EXPECT_EQ(RunHost(data, {"export", "history", data / "none/x.xml"}).status, 4);
}

TEST(Commands, ADamagedStoreIsPutAsideAndReported) {
  const TemporaryFolder data;
  WriteFile(data / "config.xml", "<config><broken");
  const Finished finished = RunHost(data, {"list", "config"});
  EXPECT_EQ(finished.status, 0);
  EXPECT_TRUE(Mentions(finished.errors, data / "config.xml"));
  EXPECT_TRUE(Mentions(finished.output, "config\t"));
  EXPECT_TRUE(Mentions(ReadFile(data / "quarrow.log"), "put aside"));
  bool kept = false;
  for (const auto& entry : std::filesystem::directory_iterator(data.Path())) {
    kept = kept || ReadFile(entry.path()) == "<config><broken";
  }
  EXPECT_TRUE(kept);
}

TEST(Commands, ASecondCopyIsToldWhoHasTheFolder) {
  const TemporaryFolder data;
  Session first(data);
  first.Write("config", "S", "k", 1);
  const Finished second = RunHost(data, {"set", "config", "S", "k", "2"});
  EXPECT_EQ(second.status, 3);
  EXPECT_TRUE(Mentions(second.errors, "in use by process")) << second.errors;
  EXPECT_TRUE(Mentions(second.errors, "quarrow-config")) << second.errors;
  EXPECT_EQ(first.Close(), 0);
  EXPECT_EQ(RunHost(data, {"get", "config", "S", "k"}).output, "1\n");
}

TEST(Commands, HelpNamesEveryCommandAndStatus) {
  const TemporaryFolder data;
  const Finished help = RunHost(data, {"list", "--help"});
  EXPECT_EQ(help.status, 0);
  for (const char* part : {"config", "message", "clear-history", "edit-history", "language",
                           "documents", "archives", "ocr", "get", "set", "list", "export", "import",
                           "tour", "drive", "--data", "--machine", "--lang-dir", "Exit status"}) {
    EXPECT_TRUE(Mentions(help.output, part)) << part;
  }
}

std::size_t CountPictures(const std::string& folder) {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    count += ReadFile(entry.path()).substr(1, 3) == "PNG" ? 1 : 0;
  }
  return count;
}

TEST(Commands, WithoutADisplayConfigChangesOneValueAndSaysSo) {
  const TemporaryFolder data;
  const std::string before = RunHost(data, {"list"}).output;
  const Finished finished = RunHost(data, {"config", "--pictures", data / "seen"});
  EXPECT_EQ(finished.status, 0) << finished.errors;
  EXPECT_TRUE(Mentions(finished.output, data / "config.xml"));
  EXPECT_TRUE(Mentions(finished.output, "Options/ShowHitCount: false -> true"));
  EXPECT_GE(CountPictures(data / "seen"), 5U);
  EXPECT_EQ(RunHost(data, {"get", "config", "Options", "ShowHitCount"}).output, "true\n");
  EXPECT_NE(RunHost(data, {"list"}).output, before);
}

TEST(Commands, TheTourChangesNothingAndFollowsTheResolution) {
  const TemporaryFolder data;
  const std::string before = RunHost(data, {"list"}).output;
  for (const char* dpi : {"96", "192"}) {
    const Finished finished = RunHost(data, {"tour", data / dpi, "--dpi", dpi});
    EXPECT_EQ(finished.status, 0) << finished.errors;
    for (const char* name : {"main-27-search", "message", "clear-history", "edit-history",
                             "language", "documents", "archives", "ocr"}) {
      EXPECT_TRUE(std::filesystem::exists(data / dpi + "/" + name + ".png")) << name;
    }
  }
  EXPECT_EQ(CountPictures(data / "96"), CountPictures(data / "192"));
  EXPECT_NE(ReadFile(data / "96/main-27-search.png"), ReadFile(data / "192/main-27-search.png"));
  EXPECT_EQ(RunHost(data, {"list"}).output, before);
}

TEST(Commands, TheLanguageCommandSaysWhenALanguageTakesEffect) {
  const TemporaryFolder data;
  const Finished finished = RunHost(data, {"language", "--pictures", data / "seen"});
  EXPECT_EQ(finished.status, 0) << finished.errors;
  EXPECT_TRUE(Mentions(finished.output, "next start")) << finished.output;
  EXPECT_EQ(CountPictures(data / "seen"), 1U);
}

TEST(MachineFile, WrongFactsAreNamed) {
  const TemporaryFolder data;
  const struct {
    const char* facts;
    const char* named;
  } kFiles[] = {
      {"{", "JSON"},
      {"[]", "object"},
      {R"({"dip":96})", "\"dip\""},
      {R"({"dpi":"96"})", "dpi"},
      {R"({"dpi":96.5})", "dpi"},
      {R"({"processors":0})", "processors"},
      {R"({"portable":1})", "portable"},
      {R"({"language":7})", "language"},
      {R"({"registrar":{"srf":1}})", "srf"},
      {R"({"registrar":{"fails":"never"}})", "fails"},
      {R"({"editors":[{"name":7}]})", "editors: item 0: name"},
      {R"({"ocrLanguages":"works"})", "ocrLanguages"},
      {R"({"cache":{"items":1}})", "bytes"},
      {R"({"defaults":{"history":{}}})", "history"},
      {R"({"defaults":{"config":{"S":{"k":null}}}})", "defaults: config: S: k"},
      {R"({"fails":"Save"})", "fails"},
      {R"({"throws":{"store":"config","call":0}})", "call"},
      {R"({"throws":{"store":"second","call":1}})", "store"},
  };
  for (const auto& row : kFiles) {
    WriteFile(data / "machine.json", row.facts);
    const Finished finished = RunHost(data, {"list", "--machine", data / "machine.json"});
    EXPECT_EQ(finished.status, 2) << row.facts;
    EXPECT_TRUE(Mentions(finished.errors, row.named)) << finished.errors;
  }
  WriteFile(data / "machine.json",
            R"({"processors":8,"registrar":{"srf":true,"fails":"create"},"browserExtensions":null,
                "editors":[{"name":"Alpha","default":true}],"ocrLanguages":"fails","sound":"plays",
                "ifilters":[{"extension":"doc","text":false}],"components":["A.B.1"],
                "folders":{"%DATA%":"/tmp"},"drives":{"C":"/tmp"},"cache":{"items":1,"bytes":2}})");
  EXPECT_EQ(RunHost(data, {"list", "--machine", data / "machine.json"}).status, 0);
  EXPECT_EQ(RunHost(data, {"list", "--machine", data / "none.json"}).status, 2);
}

TEST(MachineFile, AFailingSaveIsReported) {
  const TemporaryFolder data;
  WriteFile(data / "machine.json", R"({"fails":["Save"]})");
  const Finished finished =
      RunHost(data, {"set", "config", "S", "k", "v", "--machine", data / "machine.json"});
  EXPECT_EQ(finished.status, 4);
  EXPECT_TRUE(Mentions(finished.errors, "config.xml"));
}

}  // namespace
