#include "platform/file_find.h"

#include <QTemporaryDir>
#include <cerrno>
#include <set>

#include "support/fake_machine.h"

namespace {

using Names = std::set<std::wstring>;

/// The names found, and the last error behind the last of them.
std::pair<Names, DWORD> Find(const std::wstring& pattern) {
  CFileFind finder;
  Names names;
  SetLastError(99);
  BOOL more = finder.FindFile(pattern);
  while (more) {
    more = finder.FindNextFile();
    EXPECT_TRUE(names.insert(finder.GetFileName().Str()).second);
  }
  return {names, GetLastError()};
}

TEST(FileFind, FindsTheNamesThatMatch) {
  const QTemporaryDir folder;
  for (const char* name : {"lang-en.xml", "LANG.XML", "lang-en.xml~", "slang-en.xml", "a[1]", "a1",
                           "\xc3\xa4.x", ".hidden"}) {
    ASSERT_TRUE(QFile(folder.filePath(QString::fromUtf8(name))).open(QFile::WriteOnly));
  }
  QDir(folder.path()).mkdir("language.xml");
  ScopedMachine machine;
  machine->drives[L'C'] = folder.path().toStdWString();
  const struct {
    const wchar_t* pattern;
    Names names;
  } kPatterns[] = {
      {L"lang*.xml", {L"lang-en.xml", L"LANG.XML", L"language.xml"}},
      {L"a[1]", {L"a[1]"}},
      {L"a?", {L"a1"}},
      {L"?.x", {L"\u00e4.x"}},
      {L"lang-en.xml", {L"lang-en.xml"}},
      {L"none*", {}},
  };
  for (const auto& row : kPatterns) {
    const std::wstring folders[] = {folder.path().toStdWString() + L"/", L"C:\\"};
    for (const std::wstring& path : folders) {
      EXPECT_EQ(Find(path + row.pattern), std::pair(row.names, DWORD{0})) << ToUtf8(row.pattern);
    }
  }
}

TEST(FileFind, SaysWhyAFolderCannotBeListed) {
  const QTemporaryDir folder;
  const std::wstring path = folder.path().toStdWString();
  ASSERT_TRUE(QFile(folder.filePath("file")).open(QFile::WriteOnly));
  EXPECT_EQ(Find(path + L"/none/*"), std::pair(Names(), DWORD{ENOENT}));
  EXPECT_EQ(Find(path + L"/file/*"), std::pair(Names(), DWORD{ENOTDIR}));
  EXPECT_EQ(Find(L"Q:\\*"), std::pair(Names(), DWORD{ENOENT}));
}

}  // namespace
