#include "pages/general/alerts_page.h"

#include "controls/path.h"
#include "foundation/language.h"
#include "foundation/message_helpers.h"
#include "panterow/panterow.h"
#include "platform/file_dialog.h"
#include "platform/sound.h"
#include "resources/text_ids.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kAlerts = L"Alerts";

constexpr auto kValues = MakeTable({
    {kAlerts, L"PlaySound", Int(0), Check(IDC_FOUND_SOUND)},
    {kAlerts, L"TaskbarNotification", Int(0), Check(IDC_FOUND_NOTIFICATION)},
    {kAlerts, L"EveryFile", Int(0), Check(IDC_FOUND_EVERY_FILE)},
    {kAlerts, L"SoundPath", Text(), Edit(IDC_FOUND_SOUND_FILE)},
    {kAlerts, L"EndSearchSound", Int(0), Check(IDC_END_SOUND)},
    {kAlerts, L"EndSearchTaskbarNotification", Int(0), Check(IDC_END_NOTIFICATION)},
    {kAlerts, L"EndSearchSoundPath", Text(), Edit(IDC_END_SOUND_FILE)},
});

constexpr int kHeadings[] = {IDC_FOUND_HEADING, IDC_END_HEADING};

constexpr EditRow kRows[] = {
    {IDC_FOUND_SOUND_FILE, IDC_FOUND_SOUND_BROWSE, IDC_FOUND_SOUND_PLAY},
    {IDC_END_SOUND_FILE, IDC_END_SOUND_BROWSE, IDC_END_SOUND_PLAY},
};

constexpr Geometry::ControlConstraint kLayout[] = {{IDC_FOUND_HEADING, L"CX"},
                                                   {IDC_END_HEADING, L"CX"}};

constexpr PageDescription kPage = {kValues, kHeadings};
constexpr EditRowsDescription kSoundRows = {kRows, PANTEROW::kImagePlay, kLayout};

/// A sound that the user wants, and what is said when no file is named for it.
struct WantedSound {
  int check;
  int edit;
  UINT message;
};
constexpr WantedSound kWanted[] = {
    {IDC_FOUND_SOUND, IDC_FOUND_SOUND_FILE, TextId::kFoundSoundMissing},
    {IDC_END_SOUND, IDC_END_SOUND_FILE, TextId::kEndSoundMissing},
};

// Where the folder of the sound chosen last is kept, and the file proposed in it.
constexpr const wchar_t* kFolders = L"FOLDERS";
constexpr const wchar_t* kSounds = L"Sounds";
constexpr const wchar_t* kSampleFile = L"Sample1.wav";

CString TextOf(const CEdit& edit) {
  CString text;
  edit.GetWindowText(text);
  return text;
}

}  // namespace

CConfigEntryGeneralAlertsDlg::CConfigEntryGeneralAlertsDlg()
    : CEditRowsPage(IDD, kPage, kSoundRows) {}

void CConfigEntryGeneralAlertsDlg::CheckValues(CDataExchange* exchange) {
  for (const WantedSound& sound : kWanted) {
    CString file;
    GetDlgItemText(sound.edit, file);
    if (IsDlgButtonChecked(sound.check) == 0 || !file.IsEmpty()) continue;
    ShowLangMessage(sound.message, MB_OK);
    exchange->PrepareEditCtrl(sound.edit);
    exchange->Fail();
  }
}

void CConfigEntryGeneralAlertsDlg::OnAction(const CEdit& edit) {
  const std::wstring file = TextOf(edit).Str();
  if (!PathExists(file)) {
    ShowLangMessage(TextId::kSoundNotFound, MB_OK);
  } else if (!PlaySoundW(file, SND_FILENAME | SND_ASYNC)) {
    ShowLangMessage(TextId::kSoundNotPlayed, MB_OK);
  }
}

void CConfigEntryGeneralAlertsDlg::OnBrowse(CEdit& edit) {
  const CString filter = LanguageString(TextId::kSoundFilter);
  CFileDialog picker(TRUE, nullptr, ProposedFile(edit).Str().c_str(),
                     OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_EXPLORER, filter.Str().c_str(),
                     this);
  if (picker.DoModal() != IDOK) {
    if (CommDlgExtendedError() != 0) ShowLangMessage(TextId::kBrowsingFailed, MB_OK);
    return;
  }
  const CString file = picker.GetPathName();
  RememberFolder(file);
  edit.SetWindowText(file);
}

/// The file that the edit names, else a file in the folder remembered; empty without one.
CString CConfigEntryGeneralAlertsDlg::ProposedFile(const CEdit& edit) const {
  CString file = TextOf(edit);
  file.Trim();
  const StoreHandle store = GetWorkingStore();
  if (!file.IsEmpty() || store == nullptr) return file;
  const std::wstring folder = store->ReadString(kFolders, kSounds, L"");
  return folder.empty() ? CString() : CString(WithSeparator(folder) + kSampleFile);
}

void CConfigEntryGeneralAlertsDlg::RememberFolder(const CString& file) const {
  const std::wstring folder = SplitPath(file.Str()).first;
  const StoreHandle store = GetWorkingStore();
  if (!folder.empty() && store != nullptr) store->WriteString(kFolders, kSounds, folder);
}
