#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <csignal>

#include "hollerin/application.h"
#include "hollerin/sample_values.h"
#include "hollerin/store_xml.h"
#include "hollerin/system_faults.h"
#include "hollerin/temporary_folder.h"
#include "platform/types.h"

namespace {

using namespace HOLLERIN;
namespace fs = std::filesystem;
using Names = std::set<std::string>;

std::shared_ptr<Store> Open(const fs::path& path) {
  OpenReport report;
  std::shared_ptr<Store> store = OpenStore(path.wstring(), report);
  if (store == nullptr) throw std::runtime_error("the store did not open");
  return store;
}

Values ValuesIn(const fs::path& path) {
  std::wstring reason;
  std::optional<Values> values = ParseStoreXml(Contents(path), reason);
  return values ? *values : Values{{L"damaged", {{reason, true}}}};
}

const Values kOld = {{L"s", {{L"k", std::wstring(20000, L'o')}}}};
const Values kNew = {{L"s", {{L"k", std::wstring(30000, L'n')}}}};

void Fill(Store& store, const Values& values) {
  for (const auto& [section, entries] : values) {
    for (const auto& [key, value] : entries) store.Write(section, key, value);
  }
}

/// A store over a file that holds kOld, about to be saved with kNew.
class SaveTest : public testing::Test {
 protected:
  SaveTest() {
    Put(file_, FormatStoreXml(kOld));
    store_ = Open(file_);
    Fill(*store_, kNew);
  }
  TemporaryFolder folder_;
  fs::path file_ = folder_ / "config.xml";
  std::shared_ptr<Store> store_;
};

TEST(Save, MakesANewFileForItsUserAlone) {
  const TemporaryFolder folder;
  const fs::path file = folder / "config.xml";
  const auto store = Open(file);
  Fill(*store, NastyValues());
  EXPECT_EQ(store->Save(), S_OK);
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(Open(file)->GetValues(), NastyValues());
  EXPECT_EQ(folder.Names(), Names{"config.xml"});
}

TEST_F(SaveTest, KeepsThePermissions) {
  fs::permissions(file_, fs::perms{0640});
  EXPECT_EQ(store_->Save(), S_OK);
  EXPECT_EQ(fs::status(file_).permissions(), fs::perms{0640});
  EXPECT_EQ(ValuesIn(file_), kNew);
}

TEST_F(SaveTest, EqualValuesLeaveTheFileUntouched) {
  // Another layout of the same values counts as equal; a person's comments stay.
  std::string own = FormatStoreXml(kNew);
  own.insert(own.find("<section"), "<!-- mine -->");
  Put(file_, own);
  struct stat before {
  }, after{};
  ASSERT_EQ(stat(file_.c_str(), &before), 0);
  EXPECT_EQ(store_->Save(), S_FALSE);
  ASSERT_EQ(stat(file_.c_str(), &after), 0);
  EXPECT_EQ(before.st_ino, after.st_ino);
  EXPECT_EQ(before.st_mtim.tv_nsec, after.st_mtim.tv_nsec);
  EXPECT_EQ(Contents(file_), own);
  store_->WriteBool(L"s", L"other", true);
  EXPECT_EQ(store_->Save(), S_OK);
  EXPECT_EQ(store_->Save(), S_FALSE);
}

TEST_F(SaveTest, ALinkStaysAndItsTargetIsReplaced) {
  fs::create_directory(folder_ / "sub");
  fs::rename(file_, folder_ / "sub/real.xml");
  fs::create_symlink("sub/middle", file_);
  fs::create_symlink("real.xml", folder_ / "sub/middle");
  EXPECT_EQ(store_->Save(), S_OK);
  EXPECT_TRUE(fs::is_symlink(file_));
  EXPECT_TRUE(fs::is_symlink(folder_ / "sub/middle"));
  EXPECT_EQ(ValuesIn(folder_ / "sub/real.xml"), kNew);

  fs::remove(folder_ / "sub/real.xml");
  EXPECT_EQ(store_->Save(), S_OK) << "the target of the link is made";
  EXPECT_EQ(ValuesIn(folder_ / "sub/real.xml"), kNew);

  fs::remove(file_);
  fs::create_symlink("config.xml", file_);
  EXPECT_EQ(store_->Save(), E_FAIL) << "the link leads to itself";
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ELOOP));
}

TEST_F(SaveTest, PutsAFileAsideThatWasDamagedMeanwhile) {
  Put(file_, "<configuration");
  EXPECT_EQ(store_->Save(), S_OK);
  EXPECT_EQ(ValuesIn(file_), kNew);
  EXPECT_EQ(Contents(folder_ / "config.xml.damaged-1"), "<configuration");
}

TEST_F(SaveTest, FailsWhereItMayNotWrite) {
  const auto expectRefusal = [&](const char* where) {
    SCOPED_TRACE(where);
    {
      const OrdinaryUser user;
      SetLastError(0);
      EXPECT_EQ(store_->Save(), E_FAIL);
      EXPECT_EQ(GetLastError(), static_cast<DWORD>(EACCES));
    }
    EXPECT_EQ(ValuesIn(file_), kOld);
    EXPECT_EQ(folder_.Names(), Names{"config.xml"});
  };
  fs::permissions(file_, fs::perms{0666});
  fs::permissions(folder_.Path(), fs::perms{0555});
  expectRefusal("the folder is read-only");
  fs::permissions(folder_.Path(), fs::perms{0777});
  fs::permissions(file_, fs::perms{0444});
  expectRefusal("the file is read-only");
}

TEST_F(SaveTest, FailsWithoutFileFolderOrRoom) {
  EXPECT_EQ(CreateStore()->Save(), E_FAIL);
  const TemporaryFolder other;
  const auto orphan = Open(other / "none/config.xml");
  EXPECT_EQ(orphan->Save(), E_FAIL);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ENOENT));

  rlimit old{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  const rlimit small = {1000, old.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const HRESULT status = store_->Save();
  const DWORD error = GetLastError();
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &old), 0);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(status, E_FAIL);
  EXPECT_EQ(error, static_cast<DWORD>(EFBIG));
  EXPECT_EQ(ValuesIn(file_), kOld);
  EXPECT_EQ(folder_.Names(), Names{"config.xml"});
}

TEST_F(SaveTest, EveryFailingCallIsReportedAndLosesNothing) {
  int n = 0;
  while (true) {
    SCOPED_TRACE(++n);
    Put(file_, FormatStoreXml(kOld));
    FaultPlan plan;
    plan.failAtCall = n;
    plan.error = EIO;
    const PlannedFaults faults(plan);
    SetLastError(0);
    const HRESULT status = store_->Save();
    if (faults.Calls() < n) {
      EXPECT_EQ(status, S_OK);
      break;
    }
    EXPECT_EQ(status, E_FAIL);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(EIO));
    EXPECT_EQ(ValuesIn(file_), faults.FailedBehindRename() ? kNew : kOld);
    EXPECT_EQ(folder_.Names(), Names{"config.xml"});
  }
  EXPECT_GE(n, 8) << "the calls were not watched";
}

TEST_F(SaveTest, FlushesTheFileBeforeItIsRenamedAndTheFolderAfterwards) {
  const PlannedFaults faults({});
  EXPECT_EQ(store_->Save(), S_OK);
  EXPECT_EQ(faults.Trace(), "oolwcsros");
}

TEST_F(SaveTest, StartsAgainWhenItsFileIsTakenForAnAbandonedOne) {
  FaultPlan plan;
  plan.beforeLock = [this] { Open(file_); };
  HRESULT status = E_FAIL;
  std::string trace;
  {
    const PlannedFaults faults(plan);
    status = store_->Save();
    trace = faults.Trace();
  }
  EXPECT_EQ(status, S_OK) << trace;
  EXPECT_EQ(std::count(trace.begin(), trace.end(), 'r'), 1);
  EXPECT_EQ(ValuesIn(file_), kNew);
  EXPECT_EQ(folder_.Names(), Names{"config.xml"});
}

TEST_F(SaveTest, ShortAndInterruptedWritesAreContinued) {
  FaultPlan plan;
  plan.mostPerWrite = 7;
  plan.interrupt = true;
  HRESULT status = E_FAIL;
  {
    const PlannedFaults faults(plan);
    status = store_->Save();
    EXPECT_GT(faults.Calls(), 5000);
  }
  EXPECT_EQ(status, S_OK);
  EXPECT_EQ(ValuesIn(file_), kNew);
}

TEST_F(SaveTest, AKilledSaveLeavesAWholeFile) {
  int sawOld = 0, sawNew = 0, leftovers = 0;
  for (int n = 1;; ++n) {
    SCOPED_TRACE(n);
    Put(file_, FormatStoreXml(kOld));
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      FaultPlan plan;
      plan.killAtCall = n;
      plan.mostPerWrite = 4000;
      const PlannedFaults faults(plan);
      _exit(store_->Save() == S_OK ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    const Values values = ValuesIn(file_);
    ASSERT_TRUE(values == kOld || values == kNew);
    (values == kOld ? sawOld : sawNew)++;
    leftovers += folder_.Names().size() > 1 ? 1 : 0;
    EXPECT_EQ(Open(file_)->GetValues(), values);
    EXPECT_EQ(folder_.Names(), Names{"config.xml"}) << "what the save left was not removed";
    if (WIFEXITED(status)) {
      EXPECT_EQ(WEXITSTATUS(status), 0);
      break;
    }
  }
  EXPECT_GT(leftovers, 8);
  EXPECT_GT(sawOld, 10);
  EXPECT_GT(sawNew, 1);
}

TEST_F(SaveTest, WritersAndOpenersDoNotDisturbEachOther) {
  constexpr int kSaves = 60;
  pid_t children[2];
  for (int writer = 0; writer < 2; ++writer) {
    children[writer] = fork();
    ASSERT_GE(children[writer], 0);
    if (children[writer] != 0) continue;
    int good = 0;
    for (int i = 0; i < kSaves; ++i) {
      store_->WriteInt(L"s", L"turn", writer * kSaves + i);
      good += store_->Save() == S_OK ? 1 : 0;
    }
    _exit(good == kSaves ? 0 : 1);
  }
  int reads = 0;
  for (int ended = 0; ended < 2;) {
    OpenReport report;
    ASSERT_NE(OpenStore(file_.wstring(), report), nullptr);
    ASSERT_TRUE(report.loaded) << "a half-written file was seen";
    ++reads;
    int status = 0;
    if (waitpid(children[ended], &status, WNOHANG) == children[ended]) {
      EXPECT_EQ(status, 0) << "a save failed";
      ++ended;
    }
  }
  EXPECT_GT(reads, 1);
  EXPECT_EQ(folder_.Names(), Names{"config.xml"});
}

}  // namespace
