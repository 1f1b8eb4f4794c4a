// The page of the desktop integration.

#include "pages/general/shell_page.h"

#include "environment.h"
#include "page_fixture.h"
#include "platform/registry.h"
#include "support/fake_machine.h"

namespace {

using Lines = std::vector<std::wstring>;
using ShellPage = CConfigEntryGeneralShellDlg;

constexpr int kBoxes[] = {IDC_ASSOCIATE_RESULTS, IDC_FOLDER_MENU, IDC_FILE_MENU, IDC_REPLACE_F3,
                          IDC_HOT_KEY};
constexpr const wchar_t* kKeys[] = {L"AssociateSRF", L"AddToDirCM", L"AddToFileCM", L"ReplaceF3",
                                    L"EnableHotKey"};
constexpr const wchar_t* kBrowserKey =
    L"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Internet Explorer\\Main";

class ShellPages : public PageTest {
 protected:
  ShellPages() { machine->registration = ShellRegistration(); }

  static bool Save(CConfigDialog& page, std::size_t messages = 0) {
    bool saved = false;
    EXPECT_EQ(AnswerMessages([&] { saved = SavePage(page); }).size(), messages);
    return saved;
  }
  static CComboBox& Modes(const CWnd& page) {
    return dynamic_cast<CComboBox&>(*page.GetDlgItem(IDC_INSTANCE_MODE));
  }
  /// The lines of the five flags, of which the bits of `set` are true.
  static Lines FlagLines(unsigned set) {
    Lines lines;
    for (std::size_t i = 0; i < std::size(kKeys); ++i) {
      lines.push_back(std::wstring(L"bool Shell/") + kKeys[i] +
                      ((set >> i & 1U) != 0 ? L" true" : L" false"));
    }
    return lines;
  }

  ScopedMachine machine;
};

TEST_F(ShellPages, EveryFlagOfTheRegistrarIsShownStoredAtOnceAndSaved) {
  bool ShellRegistration::*const flags[] = {
      &ShellRegistration::resultFiles, &ShellRegistration::folderMenu, &ShellRegistration::fileMenu,
      &ShellRegistration::searchKey, &ShellRegistration::hotKey};
  for (std::size_t i = 0; i < std::size(flags); ++i) {
    SCOPED_TRACE(i);
    machine->registration = ShellRegistration();
    (*machine->registration).*flags[i] = true;
    store->reads.clear();
    store->writes.clear();
    ShellPage page;
    Open(page);
    for (std::size_t box = 0; box < std::size(kBoxes); ++box) {
      EXPECT_EQ(Checked(page, kBoxes[box]), box == i) << box;
      EXPECT_TRUE(Enabled(page, kBoxes[box]));
    }
    EXPECT_EQ(store->reads,
              (Lines{L"bool Options/FastContextMenuDisabled false",
                     L"int Options/FastContextMenu 50", L"int Options/SingleInstanceMode 0"}));
    EXPECT_EQ(store->writes, FlagLines(1U << i));

    // What the store says by now does not matter; what the boxes show does.
    Click(page, IDC_HOT_KEY);
    store->values->WriteBool(L"Shell", L"AddToDirCM", true);
    store->writes.clear();
    ASSERT_TRUE(Save(page));
    Lines expected = FlagLines((1U << i) ^ 16U);
    expected.insert(expected.end(), {L"int Options/SingleInstanceMode 0",
                                     L"bool Options/FastContextMenuDisabled false",
                                     L"int Options/FastContextMenu 50"});
    EXPECT_EQ(store->writes, expected);
  }
}

TEST_F(ShellPages, AFailingRegistrarIsLoggedAndLeavesThePageUsable) {
  const std::pair<const wchar_t*, const wchar_t*> kSteps[] = {
      {L"CreateCOMRegistrar", L"Creating COM Registrar"},
      {L"GetShellIntegration", L"Loading current associations"},
      {L"GetHotKeyEnabled", L"Getting hotkey setting"},
      {L"GetFileContextMenu", L"Getting file context menu setting"}};
  machine->registration = ShellRegistration{true, true, true, true, true};
  for (const auto& [operation, task] : kSteps) {
    SCOPED_TRACE(ToUtf8(operation));
    machine->fails = operation;
    store->values->WriteInt(L"Options", L"SingleInstanceMode", 2);
    store->writes.clear();
    TakeLog();
    ShellPage page;
    EXPECT_TRUE(AnswerMessages([&] { Open(page); }).empty());
    const Lines log = TakeLog();
    ASSERT_EQ(log.size(), 1U);
    EXPECT_NE(log[0].find(task), std::wstring::npos) << ToUtf8(log[0]);
    EXPECT_NE(log[0].find(L"Brisquel/ConfigEntryGeneralShellDlg"), std::wstring::npos);
    EXPECT_TRUE(store->writes.empty());
    for (const int box : kBoxes) EXPECT_FALSE(Checked(page, box)) << box;
    EXPECT_EQ(Modes(page).GetCount(), 0);
    EXPECT_TRUE(Enabled(page, IDC_FAST_MENU_LIMIT));
    EXPECT_TRUE(Save(page));
    EXPECT_EQ(store->writes[0], L"bool Shell/AssociateSRF false");
    EXPECT_EQ(store->writes[5], L"int Options/SingleInstanceMode 0");
  }
}

TEST_F(ShellPages, APortableInstallationCannotBeIntegrated) {
  machine->portable = true;
  machine->registration = ShellRegistration{true, true, true, true, true};
  ShellPage page;
  Open(page);
  EXPECT_EQ(store->writes, Lines{L"bool Shell/USBDriveConfig true"});
  for (const int box : kBoxes) {
    EXPECT_FALSE(Checked(page, box)) << box;
    EXPECT_FALSE(Enabled(page, box)) << box;
  }
  EXPECT_EQ(Modes(page).GetCount(), 3);
  store->writes.clear();
  EXPECT_TRUE(Save(page));
  EXPECT_EQ(Lines(store->writes.begin(), store->writes.begin() + 5), FlagLines(0));
}

TEST_F(ShellPages, WithoutStoreTheDefaultsAndTheRegistrarAreShown) {
  provider.config.reset();
  machine->registration->hotKey = true;
  ShellPage page;
  Open(page);
  EXPECT_TRUE(Checked(page, IDC_HOT_KEY));
  EXPECT_TRUE(Checked(page, IDC_FAST_MENU));
  EXPECT_EQ(Text(page, IDC_FAST_MENU_LIMIT), L"50");
  EXPECT_EQ(Modes(page).GetCurSel(), 0);
  EXPECT_TRUE(Save(page));
  EXPECT_TRUE(store->writes.empty());
}

TEST_F(ShellPages, TheInstanceModeIsTheRowWhateverItsText) {
  for (const bool spoken : {true, false}) {
    std::optional<ScopedLanguage> none;
    if (!spoken) none.emplace(nullptr);
    for (const auto& [stored, row] : {std::pair{0, 0}, {1, 1}, {2, 2}, {3, 0}, {5, 0}, {-1, 0}}) {
      store->values->WriteInt(L"Options", L"SingleInstanceMode", stored);
      ShellPage page;
      Open(page);
      EXPECT_EQ(Modes(page).GetCount(), 3);
      EXPECT_EQ(Modes(page).GetCurSel(), row) << stored;
      EXPECT_TRUE(Save(page));
      EXPECT_EQ(store->values->ReadInt(L"Options", L"SingleInstanceMode", -9), row);
    }
    ShellPage page;
    Open(page);
    for (const int row : {2, 1, 0, -1}) {
      Modes(page).SetCurSel(row);
      EXPECT_TRUE(Save(page));
      EXPECT_EQ(store->values->ReadInt(L"Options", L"SingleInstanceMode", -9), std::max(row, 0));
    }
  }
}

TEST_F(ShellPages, TheFastMenuIsStoredTheOtherWayRoundAndItsNumberChecked) {
  store->values->WriteBool(L"Options", L"FastContextMenuDisabled", true);
  ShellPage page;
  Open(page);
  const auto expect = [&](bool on) {
    EXPECT_EQ(Checked(page, IDC_FAST_MENU), on);
    EXPECT_EQ(Enabled(page, IDC_FAST_MENU_LIMIT), on);
    EXPECT_EQ(Enabled(page, IDC_FAST_MENU_LIMIT_LABEL), on);
  };
  expect(false);
  Click(page, IDC_FAST_MENU);
  expect(true);
  EXPECT_TRUE(Save(page));
  EXPECT_FALSE(store->values->ReadBool(L"Options", L"FastContextMenuDisabled", true));
  Click(page, IDC_FAST_MENU);
  expect(false);
  for (const auto& [text, accepted] : {std::pair{L"0", false},
                                       {L"1", true},
                                       {L"999999", true},
                                       {L"1000000", false},
                                       {L"", false}}) {
    store->writes.clear();
    page.SetDlgItemText(IDC_FAST_MENU_LIMIT, text);
    EXPECT_EQ(Save(page, accepted ? 0 : 1), accepted) << ToUtf8(text);
    EXPECT_EQ(store->writes.empty(), !accepted) << ToUtf8(text);
  }
  EXPECT_TRUE(store->values->ReadBool(L"Options", L"FastContextMenuDisabled", false));
}

TEST_F(ShellPages, ReplacingTheKeyIsAskedAboutUnlessTheBrowserExtensionsAreOn) {
  const auto withoutZero = [](const wchar_t* text) {
    std::vector<BYTE> bytes = ToRegistryText(text);
    bytes.resize(bytes.size() - 2);
    return bytes;
  };
  std::vector<BYTE> odd = ToRegistryText(L"yes");
  odd.push_back(0);
  const std::wstring longest(32767 - 3, L'x');
  const struct {
    const char* name;
    std::optional<RegistryValue> value;
    bool asks;
  } rows[] = {
      {"yes", {{REG_SZ, ToRegistryText(L"yes")}}, false},
      {"capitals", {{REG_SZ, ToRegistryText(L"YeS")}}, false},
      {"expandable", {{REG_EXPAND_SZ, ToRegistryText(L"yes")}}, false},
      {"no", {{REG_SZ, ToRegistryText(L"no")}}, true},
      {"shorter", {{REG_SZ, ToRegistryText(L"ye")}}, true},
      {"longer", {{REG_SZ, ToRegistryText(L"yes ")}}, true},
      {"longest", {{REG_SZ, ToRegistryText(L"yes" + longest)}}, true},
      {"too long", {{REG_SZ, ToRegistryText(L"yes" + longest + L"x")}}, true},
      {"empty", {{REG_SZ, ToRegistryText(L"")}}, true},
      {"no bytes", {{REG_SZ, {}}}, true},
      {"binary", {{3, ToRegistryText(L"yes")}}, true},
      {"without zero", {{REG_SZ, withoutZero(L"yes")}}, true},
      {"odd", {{REG_SZ, odd}}, true},
      {"without value", std::nullopt, true},
  };
  ShellPage page;
  Open(page);
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    machine->registry = {{kBrowserKey, {}}};
    if (row.value) machine->registry[kBrowserKey][L"Enable Browser Extensions"] = *row.value;
    ASSERT_FALSE(Checked(page, IDC_REPLACE_F3));
    const auto asked = AnswerMessages([&] { Click(page, IDC_REPLACE_F3); }, QMessageBox::No).size();
    EXPECT_EQ(asked, row.asks ? 1U : 0U);
    EXPECT_EQ(Checked(page, IDC_REPLACE_F3), !row.asks);
    // Clearing the box asks nothing.
    if (!row.asks) {
      EXPECT_TRUE(AnswerMessages([&] { Click(page, IDC_REPLACE_F3); }).empty());
    }
  }
  machine->registry.clear();
  const auto asked = AnswerMessages([&] { Click(page, IDC_REPLACE_F3); }, QMessageBox::Yes);
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].buttons, QMessageBox::Yes | QMessageBox::No);
  EXPECT_TRUE(Checked(page, IDC_REPLACE_F3));
}

}  // namespace
