#include <gtest/gtest.h>
#include <sys/stat.h>

#include "hollerin/application.h"
#include "hollerin/sample_values.h"
#include "hollerin/store_xml.h"
#include "hollerin/temporary_folder.h"

namespace {

using namespace HOLLERIN;
namespace fs = std::filesystem;
using Names = std::set<std::string>;

TEST(OpenStore, LoadsAFileAndAcceptsNone) {
  const TemporaryFolder folder;
  const fs::path file = folder / "config.xml";
  OpenReport report;
  auto store = OpenStore(file.wstring(), report);
  ASSERT_NE(store, nullptr);
  EXPECT_FALSE(report.loaded);
  EXPECT_EQ(report.reason, L"");
  EXPECT_TRUE(store->GetValues().empty());

  Put(file, FormatStoreXml(SmallValues()));
  store = OpenStore(file.wstring(), report);
  ASSERT_NE(store, nullptr);
  EXPECT_TRUE(report.loaded);
  EXPECT_EQ(report.putAside, L"");
  EXPECT_EQ(store->GetValues(), SmallValues());
}

TEST(OpenStore, PutsDamagedFilesAsideUnderFreeNames) {
  const TemporaryFolder folder;
  const fs::path file = folder / "config.xml";
  Put(folder / "config.xml.damaged-1", "earlier");
  const std::string damaged[] = {"", "<configuration version=\"1\">", std::string(100, '\0')};
  int n = 1;
  for (const std::string& bytes : damaged) {
    Put(file, bytes);
    OpenReport report;
    const auto store = OpenStore(file.wstring(), report);
    ASSERT_NE(store, nullptr);
    EXPECT_FALSE(report.loaded);
    EXPECT_NE(report.reason, L"");
    const fs::path aside = file.string() + ".damaged-" + std::to_string(++n);
    EXPECT_EQ(report.putAside, aside.wstring());
    EXPECT_EQ(Contents(aside), bytes);
    EXPECT_FALSE(fs::exists(file));
    EXPECT_TRUE(store->GetValues().empty());
  }
  EXPECT_EQ(Contents(folder / "config.xml.damaged-1"), "earlier");
}

TEST(OpenStore, PutsTheTargetOfALinkAside) {
  const TemporaryFolder folder;
  Put(folder / "real.xml", "damaged");
  fs::create_symlink("real.xml", folder / "config.xml");
  OpenReport report;
  ASSERT_NE(OpenStore((folder / "config.xml").wstring(), report), nullptr);
  EXPECT_EQ(report.putAside, (folder / "real.xml.damaged-1").wstring());
  EXPECT_EQ(folder.Names(), (Names{"config.xml", "real.xml.damaged-1"}));
}

TEST(OpenStore, PutsTooLargeAndForbiddenFilesAside) {
  const TemporaryFolder folder;
  const fs::path file = folder / "config.xml";
  Put(file, "");
  fs::resize_file(file, (std::uintmax_t{64} << 20) + 1);
  OpenReport report;
  ASSERT_NE(OpenStore(file.wstring(), report), nullptr);
  EXPECT_EQ(report.reason, L"it is too large");
  EXPECT_EQ(fs::file_size(folder / "config.xml.damaged-1"), (std::uintmax_t{64} << 20) + 1);

  Put(file, FormatStoreXml(SmallValues()));
  fs::permissions(file, fs::perms::none);
  fs::permissions(folder.Path(), fs::perms{0777});
  {
    const OrdinaryUser user;
    ASSERT_NE(OpenStore(file.wstring(), report), nullptr);
  }
  EXPECT_FALSE(report.loaded);
  EXPECT_EQ(Contents(folder / "config.xml.damaged-2"), FormatStoreXml(SmallValues()));
}

TEST(OpenStore, IsNullWhenAFileCanBeNeitherReadNorPutAside) {
  const TemporaryFolder folder;
  const fs::path file = folder / "config.xml";
  OpenReport report;
  Put(file, "damaged");
  fs::permissions(file, fs::perms{0644});
  fs::permissions(folder.Path(), fs::perms{0555});
  {
    const OrdinaryUser user;
    EXPECT_EQ(OpenStore(file.wstring(), report), nullptr);
  }
  EXPECT_NE(report.reason, L"");
  EXPECT_EQ(Contents(file), "damaged");
  fs::permissions(folder.Path(), fs::perms{0755});

  fs::create_directory(folder / "folder.xml");
  ASSERT_EQ(mkfifo((folder / "pipe.xml").c_str(), 0600), 0);
  const std::wstring paths[] = {(folder / "folder.xml").wstring(), (folder / "pipe.xml").wstring(),
                                L"", std::wstring(L"a\0b", 3)};
  for (const std::wstring& path : paths) {
    report = {};
    EXPECT_EQ(OpenStore(path, report), nullptr);
    EXPECT_NE(report.reason, L"");
  }
}

TEST(OpenStore, RemovesOnlyWhatASaveLeft) {
  const TemporaryFolder folder;
  const Names kept = {"config.xml",
                      "config.xml.saving-",
                      "config.xml.saving-0123456789abcde",
                      "config.xml.saving-0123456789abcdeg",
                      "config.xml.saving-0123456789abcdef0",
                      "other.xml.saving-0123456789abcdef"};
  for (const std::string& name : kept) Put(folder / name.c_str(), FormatStoreXml({}));
  Put(folder / "config.xml.saving-0123456789abcdef", "half");
  OpenReport report;
  ASSERT_NE(OpenStore((folder / "config.xml").wstring(), report), nullptr);
  EXPECT_EQ(folder.Names(), kept);
}

TEST(LoadFile, LaysTheFileOverTheStore) {
  const TemporaryFolder folder;
  const auto store = CreateStore();
  store->WriteInt(L"a", L"1", 1);
  store->WriteInt(L"a", L"2", 2);
  Put(folder / "over.xml", FormatStoreXml({{L"a", {{L"2", true}}}, {L"b", {{L"1", false}}}}));
  const std::wstring path = folder.Path().wstring();
  EXPECT_EQ(store->LoadFile(path + L"/", L"over.xml"), S_OK);
  const Values expected = {{L"a", {{L"1", std::int32_t{1}}, {L"2", true}}},
                           {L"b", {{L"1", false}}}};
  EXPECT_EQ(store->GetValues(), expected);

  Put(folder / "bad.xml", "<configuration version=\"1\"><section name=\"a\">");
  EXPECT_EQ(store->LoadFile(path, L"bad.xml"), E_FAIL);
  EXPECT_EQ(store->LoadFile(path, L"missing.xml"), E_FAIL);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ENOENT));
  EXPECT_EQ(store->GetValues(), expected);
  EXPECT_TRUE(fs::exists(folder / "bad.xml")) << "a file of another owner was put aside";
}

}  // namespace
