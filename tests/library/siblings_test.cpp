// What the small sibling libraries promise: files read as streams, and the styles of search terms.

#include <sys/stat.h>

#include <QTemporaryDir>
#include <cerrno>

#include "flumbrel/flumbrel.h"
#include "recording_store.h"
#include "support/fake_machine.h"
#include "ternwick/ternwick.h"

namespace {

using StreamHandle = std::shared_ptr<INTERNAL_IFC::IFileStream>;
using StyleHandle = std::shared_ptr<INTERNAL_IFC::ITermStyle>;

class OpenRead : public testing::Test {
 protected:
  OpenRead() {
    QFile file(folder_.filePath("f"));
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    file.write("abcdef");
  }
  std::wstring Path(const char* name) const { return folder_.filePath(name).toStdWString(); }
  HRESULT Open(const std::wstring& path, std::int32_t mode = FLUMBREL::kSharedReading) {
    return FLUMBREL::OpenRead(path, mode, &stream_);
  }

  QTemporaryDir folder_;
  StreamHandle stream_;
};

TEST_F(OpenRead, ReadsOnUntilTheEnd) {
  ASSERT_EQ(Open(Path("f")), S_OK);
  const std::pair<std::uint32_t, std::string> reads[] = {{4, "abcd"}, {0, ""}, {4, "ef"}, {4, ""}};
  for (const auto& [size, expected] : reads) {
    char bytes[4];
    std::uint32_t count = 99;
    ASSERT_EQ(stream_->Read(bytes, size, &count), S_OK);
    EXPECT_EQ(std::string(bytes, count), expected);
  }
  EXPECT_EQ(stream_->Read(nullptr, 1, nullptr), E_INVALIDARG);
}

TEST_F(OpenRead, OpensWindowsStylePaths) {
  ScopedMachine machine;
  machine->drives[L'C'] = folder_.path().toStdWString();
  EXPECT_EQ(Open(L"c:\\F"), S_OK);
}

TEST_F(OpenRead, RefusesWhatIsNoReadableFile) {
  QDir(folder_.path()).mkdir("folder");
  ASSERT_EQ(mkfifo(folder_.filePath("pipe").toUtf8().constData(), 0600), 0);
  ASSERT_TRUE(QFile::link("nowhere", folder_.filePath("link")));
  const std::pair<const char*, int> cases[] = {
      {"folder", EISDIR}, {"pipe", EINVAL}, {"link", ENOENT}, {"none", ENOENT}};
  for (const auto& [name, error] : cases) {
    EXPECT_EQ(Open(Path(name)), E_FAIL) << name;
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(error)) << name;
  }
  EXPECT_EQ(Open(L""), E_FAIL);
  EXPECT_EQ(Open(Path("f"), 2), E_INVALIDARG);
  EXPECT_EQ(stream_, nullptr);
}

TEST(SearchTerms, StylesAreReadChangedAndSavedByTerm) {
  const auto store = std::make_shared<RecordingStore>();
  store->values->WriteInt(L"SearchTerms", L"Color9", 0x123456);
  const auto manager = TERNWICK::CreateSearchTermMgr();
  StyleHandle first, last;
  ASSERT_EQ(manager->GetTermStyle(store, 0, &first), S_OK);
  ASSERT_EQ(manager->GetTermStyle(store, 9, &last), S_OK);
  EXPECT_EQ(first->GetColor(), 0U);
  EXPECT_EQ(last->GetColor(), 0x123456U);
  last->SetColor(7);
  EXPECT_TRUE(last->IsModified());
  last->SetColor(0x123456);
  EXPECT_FALSE(last->IsModified());
  EXPECT_TRUE(store->writes.empty());
  EXPECT_EQ(manager->SaveTermStyle(store, 4, last), S_OK);
  EXPECT_EQ(store->writes, std::vector<std::wstring>{L"int SearchTerms/Color4 1193046"});

  for (const int term : {-1, 10}) {
    EXPECT_EQ(manager->GetTermStyle(store, term, &first), E_INVALIDARG);
    EXPECT_EQ(manager->SaveTermStyle(store, term, last), E_INVALIDARG);
  }
  EXPECT_EQ(manager->GetTermStyle(nullptr, 0, &first), E_INVALIDARG);
  EXPECT_EQ(manager->SaveTermStyle(store, 0, nullptr), E_INVALIDARG);
}

}  // namespace
