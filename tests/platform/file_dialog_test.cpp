#include "platform/file_dialog.h"

#include <QDir>
#include <QMessageBox>
#include <QTemporaryDir>

#include "platform/messages.h"
#include "support/picker_driver.h"

namespace {

class FileDialog : public testing::Test {
 protected:
  FileDialog() {
    for (const char* name : {"one", "two"}) QDir(folder_.path()).mkdir(name);
    for (const char* name : {"a.wav", "b.OGG", "c.txt"}) QFile(Path(name)).open(QFile::WriteOnly);
  }
  QString Path(const char* name) const { return folder_.filePath(name); }
  std::wstring Wide(const char* name) const { return Path(name).toStdWString(); }

  QTemporaryDir folder_;
};

TEST_F(FileDialog, ProposesAFileAndFiltersByThePatterns) {
  const wchar_t* filter = L"Sounds (*.wav)|*.wav;*.ogg|All|*.*||";
  PickerDriver driver([&](QFileDialog& picker) {
    EXPECT_EQ(picker.property("pickerMode").toString(), "open");
    EXPECT_EQ(picker.property("pickerStart").toString(), Path("new.wav"));
    EXPECT_EQ(picker.property("pickerFilter").toString(), QString::fromWCharArray(filter));
    EXPECT_EQ(picker.nameFilters(), QStringList({"Sounds (*.wav) (*.wav *.ogg)", "All (*)"}));
    EXPECT_EQ(picker.directory().path(), folder_.path());
    EXPECT_EQ(picker.findChild<QLineEdit*>("fileNameEdit")->text(), "new.wav");
    PickerDriver::Type(picker, "b.OGG\n");
  });
  CFileDialog dialog(TRUE, nullptr, Wide("new.wav").c_str(),
                     OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_EXPLORER, filter);
  EXPECT_EQ(dialog.m_ofn.Flags, 0x81004U);
  ASSERT_EQ(dialog.DoModal(), IDOK);
  EXPECT_EQ(dialog.GetPathName().Str(), Wide("b.OGG"));
  EXPECT_EQ(CommDlgExtendedError(), 0U);
}

TEST_F(FileDialog, SeveralFoldersAreTypedInQuotes) {
  PickerDriver driver([&](QFileDialog& picker) {
    PickerDriver::Type(picker, '"' + Path("one") + "\" \"two\" \"/\"\n");
  });
  CFolderPickerDialog dialog(folder_.path().toStdWString().c_str(), OFN_ALLOWMULTISELECT);
  ASSERT_EQ(dialog.DoModal(), IDOK);
  std::vector<std::wstring> picked;
  for (POSITION place = dialog.GetStartPosition(); place != 0;) {
    picked.push_back(dialog.GetNextPathName(place).Str());
  }
  EXPECT_EQ(picked, (std::vector<std::wstring>{Wide("one"), Wide("two"), L"/"}));
}

TEST_F(FileDialog, SeveralFoldersAreClicked) {
  QDir(folder_.path()).mkdir("q\"q");
  PickerDriver driver([](QFileDialog& picker) {
    PickerDriver::ClickInList(picker, {"q\"q", "two"});
    QTest::keyClick(picker.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
  });
  CFolderPickerDialog dialog(folder_.path().toStdWString().c_str(), OFN_ALLOWMULTISELECT);
  ASSERT_EQ(dialog.DoModal(), IDOK);
  POSITION place = dialog.GetStartPosition();
  EXPECT_EQ(dialog.GetNextPathName(place).Str(), Wide("q\"q"));
  EXPECT_EQ(dialog.GetNextPathName(place).Str(), Wide("two"));
  EXPECT_EQ(place, 0U);
}

TEST_F(FileDialog, AMissingFolderKeepsThePickerOpen) {
  QString warned;
  PickerDriver driver([&](QFileDialog& picker) {
    QMetaObject::invokeMethod(
        &picker,
        [&] {
          auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
          warned = box != nullptr ? box->text() : "no message";
          if (box != nullptr) box->reject();
        },
        Qt::QueuedConnection);
    PickerDriver::Type(picker, "\"one\" \"missing\"\n");
    EXPECT_TRUE(picker.isVisible());
    picker.reject();
  });
  CFolderPickerDialog dialog(folder_.path().toStdWString().c_str(), OFN_ALLOWMULTISELECT);
  EXPECT_EQ(dialog.DoModal(), IDCANCEL);
  EXPECT_TRUE(warned.contains(Path("missing"))) << warned.toStdString();
  EXPECT_EQ(dialog.GetStartPosition(), 0U);
}

TEST_F(FileDialog, NamesThatDoNotFitAreAnError) {
  PickerDriver driver([&](QFileDialog& picker) { PickerDriver::Type(picker, "one\n"); });
  CFolderPickerDialog folder(folder_.path().toStdWString().c_str());
  folder.m_ofn.nMaxFile = static_cast<DWORD>(Wide("one").size());
  EXPECT_EQ(folder.DoModal(), IDCANCEL);
  EXPECT_EQ(CommDlgExtendedError(), FNERR_BUFFERTOOSMALL);
  EXPECT_TRUE(folder.GetPathName().IsEmpty());
  ++folder.m_ofn.nMaxFile;
  EXPECT_EQ(folder.DoModal(), IDOK);
  EXPECT_EQ(CommDlgExtendedError(), 0U);
  EXPECT_EQ(driver.shown, 2);

  CFileDialog file(TRUE, nullptr, Wide("a.wav").c_str());
  file.m_ofn.nMaxFile = static_cast<DWORD>(Wide("a.wav").size());
  EXPECT_EQ(file.DoModal(), IDCANCEL);
  EXPECT_EQ(CommDlgExtendedError(), FNERR_BUFFERTOOSMALL);
  EXPECT_EQ(driver.shown, 2);
}

TEST_F(FileDialog, AStartWithoutAPlaceStillOpens) {
  PickerDriver driver([](QFileDialog& picker) { QTest::keyClick(&picker, Qt::Key_Escape); });
  CFileDialog unknown(TRUE, nullptr, LR"(Q:\a.wav)");
  EXPECT_EQ(unknown.DoModal(), IDCANCEL);
  CFolderPickerDialog missing((Wide("one") + L"/deeper/still").c_str());
  EXPECT_EQ(missing.DoModal(), IDCANCEL);
  EXPECT_EQ(CommDlgExtendedError(), 0U);
  EXPECT_EQ(driver.shown, 2);
}

}  // namespace
