#include "pages/general/localization_page.h"

#include <algorithm>

#include "foundation/catch_chain.h"
#include "pages/general/language_files.h"

namespace {

constexpr const wchar_t* kSection = L"Language";
constexpr const wchar_t* kFile = L"File";
constexpr const wchar_t* kDefaultFile = L"lang-en.xml";

constexpr PageDescription kPage = {{}, {}, {}, WithoutStore::kBlank};

}  // namespace

CConfigEntryLocalizationDlg::CConfigEntryLocalizationDlg() : CValuePage(IDD, kPage) {}

BOOL CConfigEntryLocalizationDlg::OnInitDialog() {
  CValuePage::OnInitDialog();
  RunGuarded([this] { FillLanguages(); }, MakeMsgBoxDisplay, L"Loading languages",
             L"Brisquel/ConfigEntryLocalizationDlg");
  return TRUE;
}

void CConfigEntryLocalizationDlg::HideNote() {
  if (m_hWnd != nullptr) GetDlgItem(IDC_LANGUAGE_NOTE)->ShowWindow(SW_HIDE);
}

void CConfigEntryLocalizationDlg::BindMembers(CDataExchange* exchange) {
  DDX_Control(exchange, IDC_LANGUAGE, languages_);
}

void CConfigEntryLocalizationDlg::FillLanguages() {
  const std::wstring folder = LanguageFolder();
  const CString current = StoreForExchange()->ReadString(kSection, kFile, kDefaultFile);
  VisitLanguageFiles(folder, [&](const std::wstring& file, const std::wstring& language) {
    AddLanguage(file, language, current);
  });
}

void CConfigEntryLocalizationDlg::AddLanguage(const std::wstring& file,
                                              const std::wstring& language,
                                              const CString& currentFile) {
  const int row = languages_.AddString(language);
  files_.push_back(std::make_shared<const std::wstring>(file));
  languages_.SetItemData(row, reinterpret_cast<DWORD_PTR>(files_.back().get()));
  if (currentFile.CompareNoCase(file.c_str()) == 0) languages_.SetCurSel(row);
}

/// Languages of the same name cannot be told apart by the text that is looked for: the first of
/// them behind the first item is taken, or else the first item itself.
const std::wstring* CConfigEntryLocalizationDlg::ChosenFile() const {
  CString language;
  languages_.GetWindowText(language);
  const int row = languages_.FindStringExact(0, language);
  if (row == CB_ERR) return nullptr;
  const DWORD_PTR data = languages_.GetItemData(row);
  const auto isItsData = [data](const FileName& file) {
    return reinterpret_cast<DWORD_PTR>(file.get()) == data;
  };
  const auto file = std::ranges::find_if(files_, isItsData);
  return file != files_.end() ? file->get() : nullptr;
}

void CConfigEntryLocalizationDlg::EndExchange(CDataExchange* exchange, const StoreHandle& store) {
  if (!exchange->m_bSaveAndValidate) return;
  const std::wstring* file = ChosenFile();
  if (file != nullptr) store->WriteString(kSection, kFile, *file);
}
