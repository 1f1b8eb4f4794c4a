#include "hollerin/app_folder_mgr.h"

#include "hollerin/user_folders.h"
#include "platform/text.h"
#include "support/fake_machine.h"
#include "temporary_folder.h"

namespace {

using HOLLERIN::IAppFolderMgr;

std::shared_ptr<IAppFolderMgr> Manager() {
  std::shared_ptr<IAppFolderMgr> manager;
  EXPECT_EQ(HOLLERIN::CreateAppFolderMgr(&manager), S_OK);
  return manager;
}

struct Row {
  std::wstring text, path;
};

class AppFolders : public testing::Test {
 protected:
  AppFolders() {
    machine_->folders = {{L"%HOME%", L"/home/user"},
                         {L"%DATA%", L"/home/user/data"},
                         {L"%DATA_OLD%", L"/srv/old/"},
                         {L"%WIN%", LR"(C:\Users\Me)"},
                         {L"%ROOT%", L"/"},
                         {L"%EMPTY%", L""}};
  }
  ScopedMachine machine_;
};

TEST_F(AppFolders, PlaceholdersAreExpanded) {
  const Row rows[] = {
      {L"", L""},
      {L"%DATA%", L"/home/user/data"},
      {L"%DATA%/x.log", L"/home/user/data/x.log"},
      {L"%DATA_OLD%/x", L"/srv/old/x"},
      {L"%DATA_OLD%x", L"/srv/old/x"},
      {L"%ROOT%/x", L"/x"},
      {LR"(%WIN%\x)", LR"(C:\Users\Me\x)"},
      {L"%DATA%;%HOME%/b", L"/home/user/data;/home/user/b"},
      {L"/100%/50%DATA%", L"/100%/50/home/user/data"},
      {L"/a%b%c/%%/%", L"/a%b%c/%%/%"},
      {L"/plain", L"/plain"},
  };
  for (const auto& row : rows) {
    std::wstring path = L"as before";
    EXPECT_EQ(Manager()->ExpandPath(row.text, path), S_OK) << ToUtf8(row.text);
    EXPECT_EQ(path, row.path) << ToUtf8(row.text);
  }
}

TEST_F(AppFolders, UnknownPlaceholdersFail) {
  for (const wchar_t* text : {L"%NOWHERE%", L"%DATA%/%NOWHERE%/x", L"%EMPTY%/x", L"%A1_%"}) {
    std::wstring path = L"as before";
    EXPECT_EQ(Manager()->ExpandPath(text, path), E_FAIL) << ToUtf8(text);
    EXPECT_EQ(path, L"as before");
  }
}

TEST_F(AppFolders, TheLongestFolderOfWholeNamesIsCollapsed) {
  const std::wstring kMixed = LR"(c:\users/ME\x)";
  const std::wstring kSettled = LR"(C:\Users\Me\x)";
  const Row rows[] = {
      {L"/home/user/data/x", L"%DATA%/x"},
      {L"/home/user/data", L"%DATA%"},
      {L"/home/user/data/", L"%DATA%/"},
      {L"/home/user/database", L"%HOME%/database"},
      {L"/home/user2", L"/home/user2"},
      {L"/home/User/x", L"/home/User/x"},
      {L"/srv/old/x", L"%DATA_OLD%/x"},
      {kMixed, LR"(%WIN%\x)"},
      {LR"(C:\Users\Meter)", LR"(C:\Users\Meter)"},
      {L"/", L"/"},
      {L"", L""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Manager()->CollapsePath(row.text), row.path) << ToUtf8(row.text);
    std::wstring back;
    ASSERT_EQ(Manager()->ExpandPath(row.path, back), S_OK);
    EXPECT_EQ(back, row.text == kMixed ? kSettled : row.text);
  }
}

TEST_F(AppFolders, TheMachineCanFail) {
  const auto manager = Manager();
  std::wstring path;
  machine_->fails = L"ExpandPath";
  EXPECT_EQ(manager->ExpandPath(L"/x", path), E_FAIL);
  machine_->fails = L"CollapsePath";
  EXPECT_EQ(manager->CollapsePath(L"/home/user"), L"/home/user");
  machine_->fails = L"CreateAppFolderMgr";
  std::shared_ptr<IAppFolderMgr> none;
  EXPECT_EQ(HOLLERIN::CreateAppFolderMgr(&none), E_FAIL);
  EXPECT_EQ(none, nullptr);
  machine_->fails.clear();
  EXPECT_EQ(HOLLERIN::CreateAppFolderMgr(nullptr), E_INVALIDARG);
}

/// Gives the process an environment with a home of its own for as long as it lives.
class UserFolders : public testing::Test {
 protected:
  UserFolders() {
    for (const char* name : kNames) {
      const char* value = std::getenv(name);
      if (value != nullptr) before_[name] = value;
      unsetenv(name);
    }
    setenv("HOME", home_.Path().c_str(), 1);
    std::filesystem::create_directory(home_ / ".config");
  }
  ~UserFolders() override {
    for (const char* name : kNames) {
      const auto value = before_.find(name);
      if (value == before_.end()) {
        unsetenv(name);
      } else {
        setenv(name, value->second.c_str(), 1);
      }
    }
  }
  std::wstring Home(const char* rest) const { return FromUtf8(home_.Path().string() + rest); }

  static constexpr const char* kNames[] = {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                                           "XDG_CACHE_HOME", "TMPDIR"};
  std::map<std::string, std::string> before_;
  TemporaryFolder home_;
};

TEST_F(UserFolders, ComeFromTheUsualPlaces) {
  const std::map<std::wstring, std::wstring> usual = {{L"%CONFIG%", Home("/.config")},
                                                      {L"%DATA%", Home("/.local/share")},
                                                      {L"%CACHE%", Home("/.cache")},
                                                      {L"%TEMP%", L"/tmp"},
                                                      {L"%DOCUMENTS%", Home("/Documents")}};
  EXPECT_EQ(HOLLERIN::UserFolders(), usual);
  setenv("XDG_DATA_HOME", "relative/does/not/count", 1);
  EXPECT_EQ(HOLLERIN::UserFolders(), usual);
  std::wstring path;
  EXPECT_EQ(Manager()->ExpandPath(L"%CONFIG%/a", path), S_OK);
  EXPECT_EQ(path, Home("/.config/a"));
}

TEST_F(UserFolders, ComeFromTheEnvironment) {
  setenv("XDG_DATA_HOME", "/d//", 1);
  setenv("XDG_CACHE_HOME", "/c", 1);
  setenv("TMPDIR", "/t/", 1);
  const auto folders = HOLLERIN::UserFolders();
  EXPECT_EQ(folders.at(L"%DATA%"), L"/d");
  EXPECT_EQ(folders.at(L"%CACHE%"), L"/c");
  EXPECT_EQ(folders.at(L"%TEMP%"), L"/t");
}

TEST_F(UserFolders, DocumentsComeFromTheUsersList) {
  const struct {
    const char* list;
    std::wstring folder;
  } rows[] = {
      {"# comment\nXDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n", Home("/Dokumente")},
      {"  XDG_DOCUMENTS_DIR=\"/srv/\\\"q\\\" \\$x/\"", L"/srv/\"q\" $x"},
      {"XDG_DOCUMENTS_DIR=\"$HOME/\"", Home("")},
      {"XDG_DOCUMENTS_DIR=\"/a\"\nXDG_DOCUMENTS_DIR=\"/b\"\n", L"/b"},
      {"XDG_DOCUMENTS_DIR=\"relative\"\n", Home("/Documents")},
      {"XDG_DOCUMENTS_DIR=\"/unclosed\n", Home("/Documents")},
      {"XDG_DOCUMENTS_DIR\nXDG_DOCUMENTS_DIRS=\"/a\"\n\xFF\n", Home("/Documents")},
  };
  for (const auto& row : rows) {
    Put(home_ / ".config/user-dirs.dirs", row.list);
    EXPECT_EQ(HOLLERIN::UserFolders().at(L"%DOCUMENTS%"), row.folder) << row.list;
  }
}

}  // namespace
