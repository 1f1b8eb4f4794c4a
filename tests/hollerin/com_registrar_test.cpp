// The registrar and its record.

#include "hollerin/com_registrar.h"

#include <span>

#include "hollerin/application.h"
#include "support/fake_machine.h"
#include "temporary_folder.h"

namespace {

using namespace HOLLERIN;

/// The flags as the queries answer them: results, folders, F3, hot key, files; "failed" otherwise.
std::string Flags() {
  std::shared_ptr<ICOMRegistrar> registrar;
  if (CreateCOMRegistrar(&registrar) != S_OK) return "failed";
  VARIANT_BOOL flags[6] = {9, 9, 9, 9, 9, 9};
  EXPECT_EQ(registrar->GetShellIntegration(&flags[0], &flags[1], &flags[5], &flags[2]), S_OK);
  EXPECT_EQ(registrar->GetHotKeyEnabled(&flags[3]), S_OK);
  EXPECT_EQ(registrar->GetFileContextMenu(&flags[4]), S_OK);
  EXPECT_EQ(flags[5], VARIANT_FALSE);
  std::string text;
  for (const VARIANT_BOOL flag : std::span(flags).first<5>()) {
    text += flag == VARIANT_TRUE ? '1' : flag == VARIANT_FALSE ? '0' : '?';
  }
  return text;
}

class Registrar : public testing::Test {
 protected:
  Registrar() {
    application_.dataFolder = folder_.Path().wstring() + L"/";
    application_.log = log_;
    Start();
  }
  ~Registrar() override { SetUpApplication({}); }
  void Start() {
    machine_->registration.reset();
    SetUpApplication(application_);
  }

  TemporaryFolder folder_;
  ScopedMachine machine_;
  std::shared_ptr<MemoryLog> log_ = CreateMemoryLog(nullptr);
  Application application_;
  std::shared_ptr<Store> config_ = CreateStore();
};

TEST_F(Registrar, RemembersEachFlagOfAConfirmedConfiguration) {
  EXPECT_EQ(Flags(), "00000");
  EXPECT_EQ(ApplyShellSettings(*config_), S_FALSE);
  EXPECT_TRUE(folder_.Names().empty());
  for (const auto& [key, flags] : {std::pair{L"AssociateSRF", "10000"},
                                   {L"AddToDirCM", "11000"},
                                   {L"ReplaceF3", "11100"},
                                   {L"EnableHotKey", "11110"},
                                   {L"AddToFileCM", "11111"}}) {
    config_->WriteBool(L"Shell", key, true);
    EXPECT_EQ(ApplyShellSettings(*config_), S_OK);
    EXPECT_EQ(Flags(), flags);
  }
  EXPECT_EQ(ApplyShellSettings(*config_), S_FALSE);
  // A value that the configuration lacks stays.
  config_->ClearSection(L"Shell");
  config_->WriteBool(L"Shell", L"EnableHotKey", false);
  EXPECT_EQ(ApplyShellSettings(*config_), S_OK);
  EXPECT_EQ(Flags(), "11101");
  EXPECT_NE(Contents(folder_ / "shell.xml").find("<section name=\"Shell\">"), std::string::npos);
}

TEST_F(Registrar, ADamagedRecordIsPutAsideAndLogged) {
  Put(folder_ / "shell.xml", "<broken");
  EXPECT_EQ(Flags(), "00000");
  EXPECT_EQ(folder_.Names(), std::set<std::string>{"shell.xml.damaged-1"});
  const std::vector<std::wstring> lines = log_->TakeLines();
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_NE(lines[0].find(L"shell.xml"), std::wstring::npos);

  std::filesystem::create_directory(folder_ / "shell.xml");
  EXPECT_EQ(Flags(), "failed");
  EXPECT_EQ(ApplyShellSettings(*config_), E_FAIL);
}

TEST_F(Registrar, NothingIsRecordedWhereItIsNotTheRecordThatCounts) {
  config_->WriteBool(L"Shell", L"EnableHotKey", true);
  machine_->portable = true;
  EXPECT_EQ(ApplyShellSettings(*config_), S_FALSE);
  machine_->portable = false;
  machine_->registration = ShellRegistration{.fileMenu = true};
  EXPECT_EQ(ApplyShellSettings(*config_), S_FALSE);
  EXPECT_EQ(Flags(), "00001");
  EXPECT_TRUE(folder_.Names().empty());
  machine_->registration.reset();
  application_.dataFolder.clear();
  Start();
  EXPECT_EQ(Flags(), "00000");
  EXPECT_EQ(ApplyShellSettings(*config_), E_FAIL);
}

TEST_F(Registrar, MissingPlacesForTheAnswersAndFailuresAreReported) {
  EXPECT_EQ(CreateCOMRegistrar(nullptr), E_INVALIDARG);
  std::shared_ptr<ICOMRegistrar> registrar;
  ASSERT_EQ(CreateCOMRegistrar(&registrar), S_OK);
  VARIANT_BOOL flag = 7;
  EXPECT_EQ(registrar->GetShellIntegration(&flag, &flag, nullptr, &flag), E_INVALIDARG);
  EXPECT_EQ(registrar->GetHotKeyEnabled(nullptr), E_INVALIDARG);
  EXPECT_EQ(registrar->GetFileContextMenu(nullptr), E_INVALIDARG);
  machine_->fails = L"GetShellIntegration";
  EXPECT_EQ(registrar->GetShellIntegration(&flag, &flag, &flag, &flag), E_FAIL);
  machine_->fails = L"GetHotKeyEnabled";
  EXPECT_EQ(registrar->GetHotKeyEnabled(&flag), E_FAIL);
  machine_->fails = L"GetFileContextMenu";
  EXPECT_EQ(registrar->GetFileContextMenu(&flag), E_FAIL);
  EXPECT_EQ(flag, 7);
  machine_->fails = L"CreateCOMRegistrar";
  EXPECT_EQ(CreateCOMRegistrar(&registrar), E_FAIL);
}

}  // namespace
