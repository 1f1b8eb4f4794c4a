#include "controls/path.h"

#include <gtest/gtest.h>

#include "../hollerin/temporary_folder.h"
#include "controls/browse_for_folder.h"
#include "controls/execute_item.h"
#include "controls/join_strings.h"
#include "controls/same_folder.h"
#include "environment.h"
#include "foundation/exception.h"
#include "platform/path_map.h"
#include "platform/text.h"
#include "support/fake_machine.h"
#include "support/picker_driver.h"

namespace {

namespace fs = std::filesystem;

struct TextRow {
  std::wstring path, expected;
};

/// A folder that is drive C, with a few names in it.
class Paths : public testing::Test {
 protected:
  Paths() {
    fs::create_directories(folder_ / "c/Data/Sub");
    fs::create_directories(folder_ / "c/data2");
    fs::create_directories(folder_ / "c/\u00c4rger");
    fs::create_directory(folder_ / "outside");
    fs::create_directory_symlink(folder_ / "c/Data", folder_ / "link");
    fs::create_symlink("nowhere", folder_ / "dangling");
    Put(folder_ / "c/Data/file.txt", "text");
    machine_->drives = {{L'C', Wide("c/")}, {L'R', L"/"}};
  }
  /// The name of something in the folder.
  std::wstring Wide(const char* name) const { return FromUtf8((folder_ / name).string()); }

  TemporaryFolder folder_;
  ScopedMachine machine_;
};

TEST(PathTexts, RootsEndInASeparator) {
  const TextRow rows[] = {
      {LR"(C:\dir\x)", LR"(C:\)"},
      {LR"(C:\)", LR"(C:\)"},
      {LR"(C:)", LR"(C:\)"},
      {LR"(\\server\share\dir)", LR"(\\server\share\)"},
      {LR"(\\server\share)", LR"(\\server\share\)"},
      {LR"(\\server)", LR"(\\server\)"},
      {LR"(\\?\UNC\server\share\x)", LR"(\\?\UNC\server\share\)"},
      {LR"(\\?\UNC\server)", LR"(\\?\UNC\server\)"},
      {LR"(\\?\C:\x)", LR"(\\?\C:\)"},
      {LR"(\\?\C:)", LR"(\\?\C:\)"},
      {LR"(dir\sub\x)", LR"(dir\)"},
      {LR"(C:/dir)", LR"(C:/dir\)"},
      {LR"(\)", LR"(\)"},
      {L"/home/user", L"/"},
      {L"/", L"/"},
      {L"/od\\d/x", L"/"},
      {L"relative/x", L""},
      {L"", L""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(GetPathRoot(row.path), row.expected) << ToUtf8(row.path);
  }
}

TEST(PathTexts, LongPathPrefixesAreStripped) {
  const TextRow rows[] = {
      {LR"(\\?\UNC\srv\sh\x)", LR"(\\srv\sh\x)"},
      {LR"(\\?\D:\x)", LR"(D:\x)"},
      {LR"(\\?\UNC)", LR"(UNC)"},
      {LR"(\\srv\sh)", LR"(\\srv\sh)"},
      {LR"(C:\\?\x)", LR"(C:\\?\x)"},
      {L"/a\\\\?\\b", L"/a\\\\?\\b"},
      {L"", L""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(StripLongPathPrefix(row.path), row.expected) << ToUtf8(row.path);
  }
}

TEST(PathTexts, SeparatorsFollowTheStyle) {
  const TextRow rows[] = {
      {LR"(C:\dir)", LR"(C:\dir\)"}, {LR"(C:\)", LR"(C:\)"},
      {L"/tmp", L"/tmp/"},           {L"/", L"/"},
      {L"/a\\", L"/a\\/"},           {L"", L""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(WithSeparator(row.path), row.expected) << ToUtf8(row.path);
  }
}

TEST(PathTexts, PathsAreSplitAtTheirLastSeparator) {
  const struct {
    std::wstring path, folder, name;
  } rows[] = {
      {LR"(C:\dir\a.wav)", LR"(C:\dir)", L"a.wav"},
      {LR"(C:\a.wav)", LR"(C:\)", L"a.wav"},
      {LR"(\\s\h\a.wav)", LR"(\\s\h\)", L"a.wav"},
      {L"/dir/a.wav", L"/dir", L"a.wav"},
      {L"/a.wav", L"/", L"a.wav"},
      {L"/dir/", L"/dir", L""},
      {L"a.wav", L"", L"a.wav"},
      {L"", L"", L""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(SplitPath(row.path), std::pair(row.folder, row.name)) << ToUtf8(row.path);
  }
}

TEST(JoinStrings, QuotesWhatHoldsTheSeparator) {
  const struct {
    std::vector<std::wstring> texts;
    const wchar_t* separator;
    bool quote;
    const wchar_t* expected;
  } rows[] = {
      {{}, L";", true, L""},
      {{L"a"}, L";", true, L"a"},
      {{L"a;b"}, L";", true, LR"("a;b")"},
      {{L"a", L"b;c", L"d"}, L";", true, LR"(a;"b;c";d)"},
      {{L"a", L"b;c", L"d"}, L";", false, L"a;b;c;d"},
      {{L"", L""}, L", ", true, L", "},
      {{L"a, b", L"c,d"}, L", ", true, LR"("a, b", c,d)"},
      {{L"a", L"b"}, L"", true, L"ab"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(JoinStrings(row.texts, row.separator, row.quote), row.expected);
  }
}

TEST_F(Paths, WindowsPathsLieOnTheDrives) {
  const TextRow rows[] = {
      {LR"(C:\)", Wide("c")},
      {LR"(c:)", Wide("c")},
      {LR"(C:\Data\Sub)", Wide("c/Data/Sub")},
      {LR"(c:/DATA//sub\)", Wide("c/Data/Sub")},
      {LR"(\\?\C:\dATA)", Wide("c/Data")},
      {L"C:\\\u00e4RGER", Wide("c/\u00c4rger")},
      {LR"(C:\DATA\New\Data)", Wide("c/Data/New/Data")},
      {LR"(C:\missing\..\DATA\.\file.TXT)", Wide("c/Data/file.txt")},
      {LR"(C:\..\..\outside)", Wide("c/outside")},
      {LR"(R:\)", L"/"},
      {LR"(R:\tmp)", L"/tmp"},
      {LR"(D:\Data)", L""},
      {LR"(\\server\share)", L""},
      {LR"(\\?\UNC\server\share)", L""},
      {LR"(dir\x)", L""},
      {L"", L""},
      {std::wstring(L"/a\0b", 4), L""},
      {L"/a/../B\\c/", L"/a/../B\\c/"},
      {L"relative", L"relative"},
  };
  for (const auto& row : rows) EXPECT_EQ(NativePath(row.path), row.expected) << ToUtf8(row.path);
  fs::create_directory(folder_ / "c/DATA");
  fs::create_directory(folder_ / "c/data");
  EXPECT_EQ(NativePath(LR"(C:\data)"), Wide("c/data"));
  EXPECT_EQ(NativePath(LR"(C:\dAtA)"), Wide("c/DATA"));
}

TEST_F(Paths, ExistenceIsThatOfTheFileOrFolder) {
  const struct {
    std::wstring path;
    bool exists;
  } rows[] = {
      {LR"(C:\)", true},
      {LR"(C:\data\\)", true},
      {LR"(\\?\C:\data\file.txt)", true},
      {LR"(C:\missing)", false},
      {LR"(D:\)", false},
      {LR"(\\server\share\)", false},
      {Wide("c/Data"), true},
      {Wide("c/Data//"), true},
      {Wide("c/data"), false},
      {Wide("link/file.txt"), true},
      {Wide("dangling"), false},
      {L"/", true},
      {L"//", true},
      {L"", false},
      {Wide("c/Data") + std::wstring(L"\0x", 2), false},
  };
  for (const auto& row : rows) EXPECT_EQ(PathExists(row.path), row.exists) << ToUtf8(row.path);
}

TEST_F(Paths, FoldersAreTheSameByWhatTheyAre) {
  const struct {
    std::wstring first, second;
    bool same;
  } rows[] = {
      {LR"(C:\Data)", LR"(c:\DATA\)", true},    {LR"(C:\Data)", LR"(\\?\C:\data)", true},
      {LR"(C:\Data)", Wide("c/Data/"), true},   {Wide("link"), Wide("c/Data/Sub/.."), true},
      {LR"(C:\Data)", LR"(C:\data2)", false},   {Wide("c/Data"), Wide("c/data"), false},
      {LR"(C:\Data)", LR"(C:\missing)", false}, {L"", L"", false},
  };
  const auto messages = AnswerMessages([&] {
    for (const auto& row : rows) {
      EXPECT_EQ(IsSameFolder(row.first, row.second), row.same)
          << ToUtf8(row.first) << " and " << ToUtf8(row.second);
    }
  });
  EXPECT_TRUE(messages.empty());
}

TEST_F(Paths, ItemsOpenInTheDesktop) {
  const auto messages = AnswerMessages([&] {
    EXPECT_TRUE(ExecuteItemFromName(LR"(\\?\C:\DATA)"));
    EXPECT_TRUE(ExecuteItemFromName(Wide("c/Data/file.txt")));
  });
  EXPECT_TRUE(messages.empty());
  EXPECT_EQ(machine_->opened, (std::vector{Wide("c/Data"), Wide("c/Data/file.txt")}));
}

TEST_F(Paths, WhatCannotBeOpenedIsTold) {
  machine_->opens = false;  // No desktop runs with an offscreen toolkit.
  const struct {
    std::wstring path;
    std::vector<const wchar_t*> told;
  } rows[] = {
      {LR"(D:\Data)", {L"Parsing item", L"Testing folder path", L"0x80040612"}},
      {L"", {L"Parsing item", L"Testing folder path", L"0x80040612"}},
      {Wide("c/Data"), {L"Executing item from name", L"Executing item failed", L"0x8004060d"}},
  };
  for (const auto& row : rows) {
    const auto messages = AnswerMessages([&] { EXPECT_FALSE(ExecuteItemFromName(row.path)); });
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].caption, L"Application Error");
    for (const wchar_t* part : row.told) {
      EXPECT_NE(messages[0].text.find(part), std::wstring::npos) << ToUtf8(messages[0].text);
    }
  }
}

TEST_F(Paths, SeveralFoldersArePickedAndJoined) {
  fs::create_directory(folder_ / "c/a;b");
  PickerDriver driver([](QFileDialog& picker) {
    EXPECT_EQ(picker.property("pickerMode").toString(), "folders");
    EXPECT_EQ(picker.property("pickerStart").toString(), "C:\\");
    PickerDriver::ClickInList(picker, {"Data", "a;b", "data2"});
    QTest::keyClick(picker.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
  });
  std::wstring result;
  ASSERT_TRUE(BrowseForFolder(nullptr, LR"(C:)", &result, true));
  EXPECT_EQ(result, Wide("c/Data") + L";\"" + Wide("c/a;b") + L"\";" + Wide("c/data2"));
}

TEST_F(Paths, OneFolderIsPickedAsItIs) {
  fs::create_directory(folder_ / "c/a;b");
  PickerDriver driver([](QFileDialog& picker) {
    EXPECT_EQ(picker.property("pickerMode").toString(), "folder");
    PickerDriver::Type(picker, "a;b\n");
  });
  std::wstring result;
  ASSERT_TRUE(BrowseForFolder(nullptr, Wide("c"), &result, false));
  EXPECT_EQ(result, Wide("c/a;b"));
}

TEST_F(Paths, ACancelledPickerLeavesTheResult) {
  PickerDriver driver([](QFileDialog& picker) {
    EXPECT_EQ(picker.property("pickerStart").toString(), "");
    QTest::keyClick(&picker, Qt::Key_Escape);
  });
  std::wstring result = L"as before";
  EXPECT_FALSE(BrowseForFolder(nullptr, L"", &result, false));
  EXPECT_EQ(result, L"as before");
  EXPECT_EQ(driver.shown, 1);
  EXPECT_THROW(BrowseForFolder(nullptr, std::wstring(260001, L'x'), &result, false), CCP_Exception);
}

}  // namespace
