// The dialog of several folders, used as a person uses it.

#include "panterow/multi_folder.h"

#include <QComboBox>
#include <QListWidget>

#include "environment.h"
#include "history_fixture.h"
#include "hollerin/temporary_folder.h"
#include "panterow/panterow_resource.h"
#include "quimbly/quimbly.h"
#include "support/picker_driver.h"

namespace {

QListWidget& List() {
  return *static_cast<QListWidget*>(WidgetOf(IDD_MULTI_FOLDER, IDC_FOLDER_LIST));
}
QComboBox& Field() { return *static_cast<QComboBox*>(WidgetOf(IDD_MULTI_FOLDER, IDC_NEW_FOLDER)); }
void Click(int id) { QTest::mouseClick(WidgetOf(IDD_MULTI_FOLDER, id), Qt::LeftButton); }
void ClickBox() {
  QWidget* box = WidgetOf(IDD_MULTI_FOLDER, IDC_SUBFOLDERS);
  QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
}
void Choose(int row) {
  const QRect place = List().visualItemRect(List().item(row));
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place.center());
}
void Type(const char* text) {
  Field().setFocus();
  QTest::keyClicks(&Field(), text);
}
std::string Rows() {
  QStringList rows;
  for (int row = 0; row < List().count(); ++row) rows << List().item(row)->text();
  return rows.join('|').toStdString();
}
/// The buttons that can be pressed, as letters: Remove, Up, Down, Include.
std::string Usable() {
  std::string letters;
  const std::pair<int, char> kControls[] = {{IDC_REMOVE_FOLDER, 'R'},
                                            {IDC_FOLDER_UP, 'U'},
                                            {IDC_FOLDER_DOWN, 'D'},
                                            {IDC_SUBFOLDERS, 'I'}};
  for (const auto& [id, letter] : kControls) {
    if (WidgetOf(IDD_MULTI_FOLDER, id)->isEnabled()) letters += letter;
  }
  return letters;
}

class MultiFolder : public testing::Test {
 protected:
  MultiFolder() {
    EXPECT_EQ(TOLLIVER::CreateLocationList(&list, false), S_OK);
    list->ParseText(L"/a;\"/b\"-;/c");
  }
  /// The list's text afterwards; nothing when the user cancelled.
  std::optional<std::wstring> Run(std::function<void()> act) {
    const Person person(IDD_MULTI_FOLDER, std::move(act));
    const auto result = PANTEROW::OpenMultiFolderDialog(list, history, nullptr);
    if (result == nullptr) return std::nullopt;
    EXPECT_EQ(result, list);
    return result->FormatText(true);
  }

  std::shared_ptr<INTERNAL_IFC::ILocationList> list;
  std::shared_ptr<INTERNAL_IFC::ILoadComboReg> history;
};

TEST_F(MultiFolder, ShowsItsFoldersAndGivesThemBack) {
  EXPECT_EQ(Run([] {
              EXPECT_EQ(Rows(), "/a|/b (without subfolders)|/c");
              EXPECT_EQ(List().currentRow(), 0);
              EXPECT_EQ(List().window()->windowTitle(), "Folders");
              EXPECT_FALSE(List().accessibleName().isEmpty());
              EXPECT_FALSE(Field().accessibleName().isEmpty());
              for (QWidget* child : List().window()->findChildren<QWidget*>()) {
                EXPECT_FALSE(child->property("text").toString().startsWith('{'));
              }
              Click(IDOK);
            }),
            L"/a;\"/b\"-;/c");
}

TEST_F(MultiFolder, FoldersAreAddedRemovedMovedAndMarked) {
  EXPECT_EQ(Run([] {
              EXPECT_EQ(Usable(), "RDI");
              Type("/d;e ");
              Click(IDC_ADD_FOLDER);
              EXPECT_EQ(Rows(), "/a|/b (without subfolders)|/c|/d;e");
              EXPECT_EQ(Usable(), "RUI");
              EXPECT_EQ(Field().currentText(), "");
              Click(IDC_FOLDER_UP);
              Click(IDC_FOLDER_UP);
              EXPECT_EQ(Rows(), "/a|/d;e|/b (without subfolders)|/c");
              EXPECT_EQ(List().currentRow(), 1);
              ClickBox();
              EXPECT_EQ(Rows(), "/a|/d;e (without subfolders)|/b (without subfolders)|/c");
              Choose(0);
              Click(IDC_REMOVE_FOLDER);
              EXPECT_EQ(List().currentRow(), 0);
              Click(IDC_FOLDER_DOWN);
              Choose(0);
              ClickBox();
              EXPECT_EQ(Rows(), "/b|/d;e (without subfolders)|/c");
              Click(IDOK);
            }),
            L"/b;\"/d;e\"-;/c");
}

TEST_F(MultiFolder, CancelLosesNothing) {
  const std::wstring before = list->FormatText(true);
  for (const bool escape : {false, true}) {
    EXPECT_EQ(Run([escape] {
                Click(IDC_REMOVE_FOLDER);
                Choose(1);
                ClickBox();
                Type("/new");
                Click(IDC_ADD_FOLDER);
                if (!escape) Click(IDCANCEL);
              }),
              std::nullopt);
    EXPECT_EQ(list->FormatText(true), before);
  }
}

TEST_F(MultiFolder, TheKeyboardIsEnough) {
  EXPECT_EQ(Run([] {
              Type("/d");
              QTest::keyClick(&Field(), Qt::Key_Return);
              EXPECT_EQ(Rows(), "/a|/b (without subfolders)|/c|/d");
              Type("/a");  // Known already: selected, not added again.
              QTest::keyClick(&Field(), Qt::Key_Return);
              EXPECT_EQ(List().currentRow(), 0);
              EXPECT_EQ(List().count(), 4);
              List().setFocus();
              QTest::keyClick(&List(), Qt::Key_Delete);
              QTest::keyClick(&List(), Qt::Key_Delete);
              EXPECT_EQ(Rows(), "/c|/d");
              EXPECT_TRUE(HasFocus(IDD_MULTI_FOLDER, IDC_FOLDER_LIST));
              WidgetOf(IDD_MULTI_FOLDER, IDC_FOLDER_DOWN)->setFocus();
              QTest::keyClick(WidgetOf(IDD_MULTI_FOLDER, IDC_FOLDER_DOWN), Qt::Key_Space);
              EXPECT_EQ(Rows(), "/d|/c");
              EXPECT_TRUE(HasFocus(IDD_MULTI_FOLDER, IDC_FOLDER_LIST)) << "it was disabled";
              QTest::keyClick(&List(), Qt::Key_Return);
            }),
            L"/d;/c");
}

TEST_F(MultiFolder, WhatWasTypedAndNotAddedIsNotLost) {
  EXPECT_EQ(Run([] {
              Type("/late");
              QTest::keyClick(&Field(), Qt::Key_Return);
              EXPECT_TRUE(Rows().ends_with("|/late"));
            }),
            std::nullopt)
      << "Enter in the field adds and does not close";
  EXPECT_EQ(Run([] {
              Type("/late");
              Click(IDOK);
            }),
            L"/a;\"/b\"-;/c;/late");
}

TEST_F(MultiFolder, AnEmptyListHasNothingToAct) {
  list->Clear();
  EXPECT_EQ(Run([] {
              EXPECT_EQ(Usable(), "");
              Click(IDC_ADD_FOLDER);
              QTest::keyClick(&List(), Qt::Key_Delete);
              Type("/x");
              Click(IDC_ADD_FOLDER);
              EXPECT_EQ(Usable(), "RI");
              Click(IDC_REMOVE_FOLDER);
              EXPECT_EQ(Usable(), "");
              Click(IDOK);
            }),
            L"");
  EXPECT_EQ(PANTEROW::OpenMultiFolderDialog(nullptr, nullptr, nullptr), nullptr);
}

TEST_F(MultiFolder, OffersEarlierFolders) {
  const auto store = HOLLERIN::CreateStore();
  store->WriteString(L"RecentFolders", L"0", L"/recent");
  store->WriteString(L"RecentFolders", L"1", L"/older");
  ASSERT_EQ(TOLLIVER::CreateLoadComboReg(store, &history), S_OK);
  ASSERT_EQ(history->SelectList(L"RecentFolders", 9), S_OK);
  EXPECT_EQ(Run([] {
              ASSERT_EQ(Field().count(), 2);
              EXPECT_EQ(Field().currentText(), "");
              Field().setFocus();
              QTest::keyClick(&Field(), Qt::Key_Down);
              EXPECT_EQ(Field().currentText(), "/recent");
              Click(IDC_ADD_FOLDER);
              Click(IDOK);
            }),
            L"/a;\"/b\"-;/c;/recent");
}

TEST_F(MultiFolder, PickedFoldersAreAdded) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "one");
  list->ParseText(folder.Path().wstring());
  PickerDriver picker([](QFileDialog& dialog) { PickerDriver::Type(dialog, "one\n"); });
  EXPECT_EQ(Run([] {
              Click(IDC_BROWSE_FOLDERS);
              Click(IDOK);
            }),
            folder.Path().wstring() + L";" + (folder / "one").wstring());
  EXPECT_EQ(picker.shown, 1);
}

}  // namespace
