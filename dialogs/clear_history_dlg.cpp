#include "dialogs/clear_history_dlg.h"

#include "dialogs/history_categories.h"
#include "foundation/catch_chain.h"
#include "foundation/language.h"
#include "resources/resource.h"
#include "resources/text_ids.h"

namespace {

constexpr const wchar_t* kTask = L"Saving history changes";

struct Box {
  int id;
  bool CClearHistorySettings::*flag;
};

constexpr Box kBoxes[] = {
    {IDC_CLEAR_ALL, &CClearHistorySettings::All},
    {IDC_CLEAR_FILE_NAME, &CClearHistorySettings::FileName},
    {IDC_CLEAR_LOOK_IN, &CClearHistorySettings::LookIn},
    {IDC_CLEAR_CONTAINING, &CClearHistorySettings::Containing},
};

struct Clearing {
  bool CClearHistorySettings::*flag;
  HistoryNumber history;
};

constexpr Clearing kClearings[] = {
    {&CClearHistorySettings::FileName, kRecentFileName},
    {&CClearHistorySettings::LookIn, kRecentFolders},
    {&CClearHistorySettings::Containing, kRecentContains},
};

}  // namespace

BEGIN_MESSAGE_MAP(CClearHistoryDlg, CBaseTranslateDialog)
ON_BN_CLICKED(IDC_CLEAR_ALL, &ThisClass::OnAllClicked)
ON_BN_CLICKED(IDC_CLEAR_HISTORY, &ThisClass::OnClear)
END_MESSAGE_MAP()

CClearHistoryDlg::CClearHistoryDlg(CClearHistorySettings& settings,
                                   std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> history)
    : CBaseTranslateDialog(IDD_CLEAR_HISTORY), history_(std::move(history)), settings_(settings) {}

BOOL CClearHistoryDlg::OnInitDialog() {
  CBaseTranslateDialog::OnInitDialog();
  OnAllClicked();
  return TRUE;
}

void CClearHistoryDlg::DoDataExchange(CDataExchange* exchange) {
  CBaseTranslateDialog::DoDataExchange(exchange);
  for (const Box& box : kBoxes) {
    int checked = settings_.*box.flag ? BST_CHECKED : BST_UNCHECKED;
    DDX_Check(exchange, box.id, checked);
    settings_.*box.flag = checked != BST_UNCHECKED;
  }
}

void CClearHistoryDlg::OnAllClicked() {
  const bool all = IsDlgButtonChecked(IDC_CLEAR_ALL) != BST_UNCHECKED;
  for (const Box& box : kBoxes) {
    if (box.id != IDC_CLEAR_ALL) GetDlgItem(box.id)->EnableWindow(!all);
  }
}

void CClearHistoryDlg::OnClear() {
  if (!UpdateData(TRUE)) return;
  const auto clear = [this] {
    ThrowHr(history_ != nullptr ? S_OK : E_INVALIDARG, kTask);
    ClearChosen();
    settings_.Save();
    ThrowHr(history_->Save(), kTask);
  };
  RunGuarded(clear, MakeMsgBoxDisplay, LanguageString(TextId::kClearingHistory),
             L"Brisquel/ClearHistoryDlg");
  EndDialog(IDOK);
}

void CClearHistoryDlg::ClearChosen() {
  for (const Clearing& clearing : kClearings) {
    if (settings_.*clearing.flag) history_->ClearSection(HistorySection(clearing.history).Str());
  }
  if (settings_.All) history_->Clear();
}
