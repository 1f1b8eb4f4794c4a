// The external editors that are found on a machine.

#include <gtest/gtest.h>

#include "hollerin/application.h"
#include "hollerin/temporary_folder.h"
#include "quimbly/desktop_entry.h"
#include "quimbly/quimbly.h"
#include "support/fake_machine.h"
#include "support/scoped_variable.h"

namespace {

namespace fs = std::filesystem;

using Texts = std::vector<std::wstring>;
using Manager = std::shared_ptr<INTERNAL_IFC::IExternalEditorMgr>;
using Editors = std::vector<std::shared_ptr<INTERNAL_IFC::IExternalEditor>>;

/// Nothing when the manager refuses to list them.
std::optional<Texts> Names(INTERNAL_IFC::IExternalEditorMgr& manager,
                           std::wstring* current = nullptr) {
  Editors editors;
  std::shared_ptr<INTERNAL_IFC::IExternalEditor> usual;
  if (FAILED(manager.GetEditors(editors, usual))) return std::nullopt;
  EXPECT_EQ(manager.HasEditors(), !editors.empty());
  if (current != nullptr) *current = usual != nullptr ? usual->GetName() : L"";
  Texts names;
  for (const auto& editor : editors) names.push_back(editor->GetName());
  return names;
}

/// A machine with two data folders and one folder of programs.
class ExternalEditors : public testing::Test {
 protected:
  ExternalEditors() {
    for (const char* folder : {"bin", "user/applications/sub", "system/applications"})
      fs::create_directories(root_ / folder);
    AddProgram("edit");
  }

  void AddProgram(const char* name) {
    const fs::path path = root_ / "bin" / name;
    Put(path, "#!/bin/sh\n");
    fs::permissions(path, fs::perms::owner_all);
  }
  void AddEntry(const std::string& file, const std::string& lines) {
    Put(root_.Path() / file, "[Desktop Entry]\nType=Application\nCategories=TextEditor;\n" + lines);
  }
  Manager Make() {
    Manager manager;
    EXPECT_EQ(TOLLIVER::CreateExternalEditorMgr(store_, &manager), S_OK);
    return manager;
  }
  Texts Found() { return Names(*Make()).value_or(Texts{L"(failed)"}); }

  TemporaryFolder root_;
  ScopedVariable home_{"XDG_DATA_HOME", root_ / "user"};
  ScopedVariable system_{"XDG_DATA_DIRS", "relative::" + (root_ / "system/").string()};
  ScopedVariable path_{"PATH", "bin::" + (root_ / "bin").string()};
  ScopedVariable locale_{"LC_ALL", "de_AT.UTF-8"};
  ScopedMachine machine_;
  std::shared_ptr<HOLLERIN::Store> store_ = HOLLERIN::CreateStore();
};

TEST_F(ExternalEditors, ADesktopEntryOfAnEditorCounts) {
  const struct {
    std::string lines;
    std::wstring name;  ///< Empty when there is no editor.
  } kCases[] = {
      {"Name=A\nExec=edit %U\n", L"A"},
      {"Name=A\nExec=" + (root_ / "bin/edit").string() + "\n", L"A"},
      {"Name=A\nExec=\"" + (root_ / "bin/edit").string() + "\" -w %F\n", L"A"},
      {"Name=A\nExec=edit\nCategories=GTK;TextEditor\n", L"A"},
      {"Name=A\nExec=edit\nTryExec=edit\n", L"A"},
      {"Name=A\nName[de]=B\nName[fr]=C\nExec=edit\n", L"B"},
      {"Name=A\nName[de]=B\nName[de_AT]=C\nExec=edit\n", L"C"},
      {"Name=A\nName[de]=\nExec=edit\n", L"A"},
      {"Name=A\\sb\\\\\nExec=edit\n[Desktop Action X]\nName=X\nNoDisplay=true\n", L"A b\\"},
      {"Name=\u00c4\nExec=edit\n", L"\u00c4"},
      {"Name=A\nExec=edit\nTryExec=missing\n", L""},
      {"Name=A\nExec=missing\n", L""},
      {"Name=A\nExec=bin/edit\n", L""},
      {"Name=A\nExec=\"edit\n", L""},
      {"Name=A\n", L""},
      {"Exec=edit\n", L""},
      {"Name=A\nExec=edit\nNoDisplay=true\n", L""},
      {"Name=A\nExec=edit\nHidden=true\n", L""},
      {"Name=A\nExec=edit\nType=Link\n", L""},
      {"Name=A\nExec=edit\nCategories=TextEditors;Utility\n", L""},
      {"Name=A\nExec=edit\nno pair\n", L""},
      {"Name=A\nExec=edit\nComment=\xff\n", L""},
      {"Name=A\nExec=edit\n#" + std::string(1 << 20, '-') + "\n", L""},
  };
  for (const auto& row : kCases) {
    AddEntry("user/applications/a.desktop", row.lines);
    EXPECT_EQ(Found(), row.name.empty() ? Texts() : Texts{row.name}) << row.lines.substr(0, 80);
  }
}

TEST_F(ExternalEditors, TheBetterDataFolderHidesAnEntry) {
  AddEntry("system/applications/sub-a.desktop", "Name=System\nExec=edit\n");
  EXPECT_EQ(Found(), Texts{L"System"});
  AddEntry("user/applications/sub/a.desktop", "Name=User\nExec=edit\n");
  EXPECT_EQ(Found(), Texts{L"User"});
  AddEntry("user/applications/sub/a.desktop", "Name=User\nExec=edit\nHidden=true\n");
  EXPECT_EQ(Found(), Texts());
}

TEST_F(ExternalEditors, KnownProgramsAreFoundUnlessAnEntryStartsThem) {
  AddProgram("vim");
  AddProgram("nano");
  AddProgram("unknown");
  Put(root_ / "bin/joe", "no program");
  fs::create_directory(root_ / "bin/kate");
  EXPECT_EQ(Found(), (Texts{L"nano", L"Vim"}));
  AddEntry("user/applications/a.desktop", "Name=Vi\nExec=vim %F\n");
  EXPECT_EQ(Found(), (Texts{L"Vi", L"nano"}));
}

TEST_F(ExternalEditors, EqualNamesAreToldApart) {
  AddProgram("other");
  AddEntry("user/applications/a.desktop", "Name=Text Editor\nExec=edit\n");
  AddEntry("user/applications/b.desktop", "Name=Text Editor\nExec=other\n");
  AddEntry("user/applications/c.desktop", "Name=Text Editor\nExec=other -x\n");
  EXPECT_EQ(Found(),
            (Texts{L"Text Editor (edit)", L"Text Editor (other)", L"Text Editor (c.desktop)"}));
}

TEST_F(ExternalEditors, TheDefaultIsRememberedWhileItIsThere) {
  AddEntry("user/applications/a.desktop", "Name=A\nExec=edit\n");
  AddEntry("user/applications/b.desktop", "Name=B\nExec=edit\n");
  std::wstring current;
  const Manager manager = Make();
  Editors editors;
  std::shared_ptr<INTERNAL_IFC::IExternalEditor> usual;
  ASSERT_EQ(manager->GetEditors(editors, usual), S_OK);
  EXPECT_EQ(usual, nullptr);
  manager->SetDefaultEditor(nullptr);
  EXPECT_TRUE(store_->GetValues().empty());
  manager->SetDefaultEditor(editors[1].get());
  EXPECT_EQ(store_->ReadString(L"Editor", L"DefaultExternal", L""), L"b.desktop");
  Names(*Make(), &current);
  EXPECT_EQ(current, L"B");
  fs::remove(root_ / "user/applications/b.desktop");
  EXPECT_EQ(Names(*Make(), &current), Texts{L"A"});
  EXPECT_EQ(current, L"");
}

TEST_F(ExternalEditors, AMachineMayDictateThemAndTheirFailure) {
  AddEntry("user/applications/a.desktop", "Name=A\nExec=edit\n");
  machine_->editors = {{L"Alpha"}, {L"Beta", true}};
  std::wstring current;
  EXPECT_EQ(Names(*Make(), &current), (Texts{L"Alpha", L"Beta"}));
  EXPECT_EQ(current, L"Beta");
  store_->WriteString(L"Editor", L"DefaultExternal", L"Alpha");
  Names(*Make(), &current);
  EXPECT_EQ(current, L"Alpha");
  store_.reset();
  Names(*Make(), &current);
  EXPECT_EQ(current, L"Beta");
  machine_->fails = L"GetEditors";
  EXPECT_EQ(Names(*Make()), std::nullopt);
  EXPECT_TRUE(Make()->HasEditors());
  machine_->fails = L"CreateExternalEditorMgr";
  Manager none;
  EXPECT_EQ(TOLLIVER::CreateExternalEditorMgr(store_, &none), E_FAIL);
  machine_->fails.clear();
  EXPECT_EQ(TOLLIVER::CreateExternalEditorMgr(store_, nullptr), E_INVALIDARG);
  machine_->editors.emplace();
  EXPECT_FALSE(Make()->HasEditors());
}

TEST(DesktopEntryLocales, AreTriedFromTheWholeToTheLanguage) {
  using Forms = std::vector<std::string>;
  const struct {
    const char* locale;
    Forms forms;
  } kCases[] = {{"de_AT.UTF-8@euro", {"de_AT@euro", "de_AT", "de@euro", "de"}},
                {"sr@latin", {"sr@latin", "sr"}},
                {"de_AT.UTF-8", {"de_AT", "de"}},
                {"de", {"de"}},
                {"", {}},
                {"@", {}}};
  for (const auto& row : kCases) EXPECT_EQ(LocaleForms(row.locale), row.forms) << row.locale;
}

}  // namespace
