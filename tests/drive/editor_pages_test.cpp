// The pages of the editors and of the settings for special needs, used as a person would.

#include "drive/session.h"
#include "support/scoped_variable.h"

namespace {

constexpr int kOk = 1, kCancel = 2;
constexpr int kDefaultEditor = 2, kExternalEditor = 3, kTransform = 14, kJunctions = 16,
              kFileLists = 17;
constexpr int kMainTemplate = 5526;
constexpr int kRadioExternal = 5044, kEditorList = 5229, kEditorHeading = 5234;
constexpr int kPath = 5009, kBrowse = 5030, kParameters = 5013, kKnown = 5080;
constexpr int kComponent = 5086;

bool Mentions(const Json& message, const char* part) {
  return message["kind"] == "message" &&
         message["text"].get<std::string>().find(part) != std::string::npos;
}

void AnswerOk(Session& session) { session.Do({{"do", "press"}, {"button", "OK"}}); }

std::string TextOf(Session& session, int control) { return session.Get(control)["text"]; }

void Pick(Session& session, int control, const std::string& text) {
  session.Do({{"do", "pick"}, {"control", control}, {"text", text}});
}

const Json kThreeEditors = {
    {"editors", {{{"name", "Gamma"}}, {{"name", "Alpha"}, {"default", true}}, {{"name", "Beta"}}}}};

struct Change {
  int page, control;
  const char* text;  ///< Typed; null to click the control.
  const char *section, *key;
  Json saved;
};

const Change kChanges[] = {
    {kDefaultEditor, 5042, nullptr, "Editor", "UseExternalAsDefault", 4},
    {kExternalEditor, kPath, " C:\\e.exe ", "Editor", "ExternalPath", " C:\\e.exe "},
    {kExternalEditor, kParameters, "-x $(Y)", "Editor", "ExternalParms", "-x $(Y)"},
    {kFileLists, 5005, nullptr, "Options", "AllowFileNameFileList", 1},
    {kFileLists, 5149, nullptr, "Options", "AllowContainingFileList", 1},
    {kJunctions, 5145, nullptr, "Options", "SearchJunctionPoints", 1},
    {kJunctions, 5054, nullptr, "Options", "ExcludeSystemHiddenJunctionPoints", 1},
    {kJunctions, 5320, nullptr, "Options", "ResolveShortCutFiles", true},
    {kJunctions, 5322, nullptr, "Options", "ResolveShortCutFolders", true},
    {kTransform, kComponent, "Acme.X.1", "CustomTransform", "MSXMLProgId", "Acme.X.1"},
};

TEST(EditorPages, EveryValueIsSavedInItsTypeAndCancelLeavesTheStoreAlone) {
  const Json machine = {{"editors", Json::array()}, {"components", {"Acme.X.1"}}};
  for (const int end : {kCancel, kOk}) {
    const TemporaryFolder data;
    Session session(data, machine);
    session.Open(kDefaultEditor);
    Json expected;
    for (const Change& change : kChanges) {
      ASSERT_EQ(session.Select(change.page), change.page) << session.Top();
      change.text != nullptr ? session.Type(change.control, change.text)
                             : session.Click(change.control);
      expected[change.section][change.key] = change.saved;
    }
    EXPECT_EQ(session.End(end), end == kOk ? 0 : 1);
    if (end == kCancel) expected = Json::object();
    EXPECT_EQ(session.Dump("config").dump(), expected.dump());
    if (end == kCancel) continue;
    session.Open(kDefaultEditor);
    for (const Change& change : kChanges) {
      ASSERT_EQ(session.Select(change.page), change.page);
      const Json control = session.Get(change.control);
      const Json shown = change.text != nullptr ? control["text"] : control["checked"];
      EXPECT_EQ(shown, change.text != nullptr ? Json(change.text) : Json(1)) << change.key;
    }
  }
}

TEST(EditorPages, TheDefaultEditorIsChosenAmongThoseThatAreKnown) {
  const TemporaryFolder data;
  Session session(data, kThreeEditors);
  session.Open(kDefaultEditor);
  EXPECT_EQ(session.Get(5047)["checked"], 1);
  const Json list = session.Get(kEditorList);
  EXPECT_EQ(list["items"], Json({"Alpha", "Beta", "Gamma"}));
  EXPECT_EQ(list["index"], 0);
  EXPECT_EQ(session.End(kOk), 0);
  // The machine's own default needs no remembering.
  EXPECT_EQ(session.Dump("config"), Json({{"Editor", {{"UseExternalAsDefault", 3}}}}));

  session.Open(kDefaultEditor);
  session.Click(kRadioExternal);
  Pick(session, kEditorList, "Gamma");
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(session.Dump("config"),
            Json({{"Editor", {{"UseExternalAsDefault", 2}, {"DefaultExternal", "Gamma"}}}}));
  session.Open(kDefaultEditor);
  EXPECT_EQ(session.Get(kRadioExternal)["checked"], 1);
  EXPECT_EQ(session.Get(kEditorList)["index"], 2);
  Pick(session, kEditorList, "Beta");
  EXPECT_EQ(session.End(kCancel), 1);
  EXPECT_EQ(session.Dump("config")["Editor"]["DefaultExternal"], "Gamma");
}

TEST(EditorPages, WithoutEditorsTheirControlsCannotBeUsed) {
  const struct {
    Json editors;
    Json fails;
    bool enabled;
  } kCases[] = {{Json::array(), Json::array(), false},
                {kThreeEditors["editors"], {"GetEditors"}, true}};
  for (const auto& row : kCases) {
    const TemporaryFolder data;
    Session session(data, {{"editors", row.editors}, {"fails", row.fails}});
    session.Open(kDefaultEditor);
    for (const int control : {kRadioExternal, kEditorList, kEditorHeading})
      EXPECT_EQ(session.Get(control)["enabled"], row.enabled) << control;
    EXPECT_EQ(session.Get(kEditorList)["items"], Json::array());
    if (!row.enabled) session.Refused({{"do", "click"}, {"control", kRadioExternal}});
    session.Click(5081);
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(session.Dump("config"), Json({{"Editor", {{"UseExternalAsDefault", 1}}}}));
  }
}

TEST(EditorPages, EditorsOfTheDesktopAreFound) {
  const TemporaryFolder data;
  std::filesystem::create_directories(data.Path() / "share/applications");
  WriteFile(data / "edit", "#!/bin/sh\n");
  std::filesystem::permissions(data.Path() / "edit", std::filesystem::perms::owner_all);
  WriteFile(
      data / "share/applications/my.desktop",
      "[Desktop Entry]\nType=Application\nName=My Editor\nCategories=TextEditor;\nExec=edit\n");
  const ScopedVariable home("XDG_DATA_HOME", data / "share"), system("XDG_DATA_DIRS", data / "no"),
      path("PATH", data.Path());
  Session session(data);
  session.Open(kDefaultEditor);
  EXPECT_EQ(session.Get(kEditorList)["items"], Json({"My Editor"}));
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(session.Dump("config")["Editor"]["DefaultExternal"], "my.desktop");
}

TEST(EditorPages, AKnownEditorFillsInItsParameters) {
  const struct {
    const char *name, *parameters;
  } kEditors[] = {
      {"ConTEXT", R"~("$(FILEPATH)" /g1:$(LINENUM))~"},
      {"EditPlus", R"~("$(FILEPATH)" -cursor $(LINENUM))~"},
      {"NoteTab Pro/Lite", R"~("$(FILEPATH)" /j=$(LINENUM))~"},
      {"NotePad++", R"~("$(FILEPATH)" -n$(LINENUM))~"},
      {"PSPad", R"~("$(FILEPATH)" /$(LINENUM))~"},
      {"Sublime Text", R"~("$(FILEPATH):$(LINENUM)")~"},
      {"TextPad", R"~("$(FILEPATH)"($(LINENUM)))~"},
      {"UltraEdit-32", R"~("$(FILEPATH) /$(LINENUM)")~"},
      {"VIM", R"~(--remote-silent-tab +$(LINENUM) "$(FILEPATH)")~"},
      {"Visual Studio Code", R"~(-g "$(FILEPATH)":$(LINENUM))~"},
  };
  const TemporaryFolder data;
  Session session(data);
  session.Open(kExternalEditor);
  EXPECT_EQ(session.Get(kKnown)["index"], -1);
  session.Type(kPath, "/usr/bin/own");
  Json names = Json::array();
  for (const auto& editor : kEditors) {
    names.push_back(editor.name);
    Pick(session, kKnown, editor.name);
    EXPECT_EQ(TextOf(session, kParameters), editor.parameters);
  }
  EXPECT_EQ(session.Get(kKnown)["items"], names);
  EXPECT_EQ(TextOf(session, kPath), "/usr/bin/own");
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(session.Dump("config")["Editor"]["ExternalParms"], kEditors[9].parameters);
  session.Open(kExternalEditor);
  EXPECT_EQ(session.Get(kKnown)["index"], 9);
}

TEST(EditorPages, AProgramThatIsBrowsedForIsKnownByPartOfItsName) {
  const struct {
    const char* file;
    int row;  ///< -1 when it is not known.
  } kPrograms[] = {{"Notepad++.exe", 3}, {"own", -1},       {"GVIM.EXE", 8},  {"notepad.exe", -1},
                   {"code-subl", 5},     {"barcode.sh", 9}, {"my context", 0}};
  const TemporaryFolder data;
  std::filesystem::create_directory(data.Path() / "vim");
  for (const auto& program : kPrograms) WriteFile(data / (std::string("vim/") + program.file), "x");
  Session session(data);
  session.Open(kExternalEditor);
  session.Type(kParameters, "own");
  std::string parameters = "own", shown;
  int index = -1;
  for (const auto& program : kPrograms) {
    SCOPED_TRACE(program.file);
    session.Click(kBrowse);
    const Json picker = session.Top();
    EXPECT_EQ(picker["mode"], "open");
    EXPECT_EQ(picker["start"], shown);
    EXPECT_NE(picker["filter"].get<std::string>().find("|*.*|"), std::string::npos);
    session.Do({{"do", "dismiss"}});
    EXPECT_EQ(session.Top()["template"], kMainTemplate) << "a plain cancel says nothing";
    EXPECT_EQ(TextOf(session, kPath), shown);

    session.Click(kBrowse);
    shown = data / (std::string("vim/") + program.file);
    session.Do({{"do", "choose"}, {"paths", {shown}}});
    EXPECT_EQ(TextOf(session, kPath), shown);
    if (program.row >= 0) {
      index = program.row;
      EXPECT_NE(TextOf(session, kParameters), parameters);
      parameters = TextOf(session, kParameters);
    }
    EXPECT_EQ(session.Get(kKnown)["index"], index);
    EXPECT_EQ(TextOf(session, kParameters), parameters);
  }
}

TEST(EditorPages, APathThatIsTooLongForThePickerIsReported) {
  const TemporaryFolder data;
  Session session(data);
  session.Write("config", "Editor", "ExternalPath", "/" + std::string(5000, 'x'));
  session.Open(kExternalEditor);
  session.Click(kBrowse);
  EXPECT_TRUE(Mentions(session.Top(), "could not be chosen")) << session.Top();
  AnswerOk(session);
  EXPECT_EQ(TextOf(session, kPath).size(), 5001U);
}

TEST(EditorPages, TheExternalEditorFollowsTheWidth) {
  constexpr int kWider = 60;
  const TemporaryFolder data;
  Session session(data);
  const Json client = session.Open(kExternalEditor)["window"]["client"];
  const auto rects = [&session] {
    std::vector<Json> all;
    for (const int control : {kBrowse, kPath, kParameters, kKnown})
      all.push_back(session.Get(control)["rect"]);
    return all;
  };
  std::vector<Json> expected = rects();
  expected[0][0] = expected[0][0].get<int>() + kWider;
  for (const int stretched : {1, 2, 3})
    expected[stretched][2] = expected[stretched][2].get<int>() + kWider;
  const int width = client[0];
  session.Do({{"do", "resize"}, {"width", width + kWider}, {"height", client[1]}});
  EXPECT_EQ(rects(), expected);
}

TEST(EditorPages, HiddenJunctionsFollowTheirSwitch) {
  const TemporaryFolder data;
  Session session(data);
  session.Open(kJunctions);
  EXPECT_EQ(session.Get(5054)["enabled"], false);
  session.Click(5145);
  session.Click(5054);
  session.Click(5145);
  EXPECT_EQ(session.Get(5054)["enabled"], false);
  EXPECT_EQ(session.End(kOk), 0);
  const Json options = session.Dump("config")["Options"];
  EXPECT_EQ(options["SearchJunctionPoints"], 0);
  EXPECT_EQ(options["ExcludeSystemHiddenJunctionPoints"], 1);
}

TEST(EditorPages, AComponentThatCannotBeMadeKeepsThePageButIsWritten) {
  const struct {
    std::string name;
    Json fails;
  } kCases[] = {{"Acme.X.2", Json::array()},
                {"../Acme.X.1", Json::array()},
                {"/tmp/Acme.X.1", Json::array()},
                {"Acme.X.1", {"CoCreateInstance"}},
                {std::string(10000, 'x'), Json::array()}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.name.substr(0, 30));
    const TemporaryFolder data;
    Session session(data, {{"components", {"Acme.X.1"}}, {"fails", row.fails}});
    session.Write("config", "CustomTransform", "MSXMLProgId", row.name);
    session.Write("config", "Options", "AllowFileNameFileList", 7);
    session.Open(kFileLists);
    EXPECT_EQ(session.Get(5005)["checked"], 1);
    EXPECT_EQ(session.Get(5002)["enabled"], false);
    EXPECT_EQ(session.Get(5002)["checked"], 1);
    session.Select(kTransform);
    EXPECT_EQ(TextOf(session, kComponent), row.name);
    session.Do({{"do", "select"}, {"page", kFileLists}});
    EXPECT_TRUE(Mentions(session.Top(), "no component of that name")) << session.Top();
    EXPECT_EQ(session.Top()["buttons"], Json({"OK"}));
    AnswerOk(session);
    EXPECT_EQ(session.Top()["page"]["template"], 5539);
    EXPECT_EQ(session.Get(kComponent)["focus"], true);
    session.Do({{"do", "ok"}});
    EXPECT_TRUE(Mentions(session.Top(), "no component of that name")) << session.Top();
    AnswerOk(session);
    session.Type(kComponent, "Other.1");
    session.Do({{"do", "ok"}});
    AnswerOk(session);
    EXPECT_EQ(session.Dump("config")["CustomTransform"]["MSXMLProgId"], "Other.1");
    EXPECT_EQ(session.End(kCancel), 1);
    EXPECT_EQ(session.Dump("config")["CustomTransform"]["MSXMLProgId"], row.name);
    EXPECT_EQ(session.Dump("config")["Options"]["AllowFileNameFileList"], 7);
  }
}

TEST(EditorPages, ARegisteredComponentIsAccepted) {
  const TemporaryFolder data;
  const ScopedVariable home("XDG_DATA_HOME", data.Path());
  const std::filesystem::path folder = data.Path() / "quarrow/components";
  std::filesystem::create_directories(folder);
  std::filesystem::copy(COMPONENT, folder / "transform.so");
  WriteFile(folder / "Acme.Transform.1.component",
            "[Component]\nClass={12345678-9abc-def0-0102-030405060708}\nLibrary=transform.so\n");
  Session session(data);
  session.Open(kTransform);
  session.Type(kComponent, "Acme.Transform.1");
  EXPECT_EQ(session.End(kOk), 0);
  EXPECT_EQ(session.Dump("config")["CustomTransform"]["MSXMLProgId"], "Acme.Transform.1");
  session.Close();
  std::filesystem::copy(NO_COMPONENT, folder / "transform.so",
                        std::filesystem::copy_options::overwrite_existing);
  Session again(data);
  again.Open(kTransform);
  again.Type(kComponent, "Acme.Transform.1");
  again.Do({{"do", "ok"}});
  EXPECT_TRUE(Mentions(again.Top(), "no component of that name")) << again.Top();
}

}  // namespace
