#include "dialogs/cache_settings.h"

#include "controls/browse_for_folder.h"
#include "controls/execute_item.h"
#include "controls/path.h"
#include "controls/same_folder.h"
#include "core/page_values.h"
#include "foundation/byte_size.h"
#include "foundation/catch_chain.h"
#include "foundation/language.h"
#include "foundation/message_helpers.h"
#include "hollerin/app_folder_mgr.h"
#include "hollerin/hollerin.h"
#include "quimbly/quimbly.h"
#include "resources/resource.h"
#include "resources/text_ids.h"

namespace {

using namespace page_values;
using INTERNAL_IFC::IFileCacheMgr;

constexpr const wchar_t* kSource = L"Brisquel/CacheSettings";
constexpr const wchar_t* kOptions = L"Options";
constexpr const wchar_t* kFolders = L"FOLDERS";
constexpr const wchar_t* kCacheFolder = L"CacheFolder";

constexpr int kUsualKilobytes = 51200;

constexpr auto kValues = MakeTable({
    {kOptions, L"MaxTextCacheSize", Int(0),
     Kilobytes(IDC_MAX_CACHE_SIZE, {1, 1000000}, kUsualKilobytes)},
    {kOptions, L"CacheExpireDays", Int(0), Number(IDC_CACHE_EXPIRE_DAYS, {1, 999999})},
    {kOptions, L"CacheExpirePolicy", Int(0), Radio(IDC_CACHE_KEEP, 3)},
});

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_CACHE_FOLDER_HEADING, L"CX"},
    {IDC_CACHE_FOLDER, L"CX"},
    {IDC_CACHE_FOLDER_BROWSE, L"X"},
    {IDC_CACHE_FOLDER_OPEN, L"X"},
    {IDC_CACHE_SIZE_HEADING, L"CX"},
    {IDC_CACHE_EXPIRY_HEADING, L"CX"},
    {IDOK, L"X+Y"},
    {IDCANCEL, L"X+Y"},
};

template <class Work>
HRESULT RunReported(const CString& description, Work&& work) {
  return RunGuarded(std::forward<Work>(work), MakeMsgBoxDisplay, description, kSource);
}

}  // namespace

BEGIN_MESSAGE_MAP(CCacheSettings, CBaseTranslateDialog)
ON_BN_CLICKED(IDC_CACHE_FOLDER_BROWSE, &ThisClass::OnBrowse)
ON_BN_CLICKED(IDC_CACHE_FOLDER_OPEN, &ThisClass::OnOpen)
ON_BN_CLICKED(IDC_CACHE_KEEP, &ThisClass::OnPolicyClicked)
ON_BN_CLICKED(IDC_CACHE_EXPIRE, &ThisClass::OnPolicyClicked)
ON_BN_CLICKED(IDC_CACHE_CLEAR_ON_EXIT, &ThisClass::OnPolicyClicked)
ON_BN_CLICKED(IDC_COMPACT_CACHE, &ThisClass::OnCompact)
ON_BN_CLICKED(IDC_DELETE_CACHE, &ThisClass::OnDelete)
END_MESSAGE_MAP()

CCacheSettings::CCacheSettings(std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store)
    : CBaseTranslateDialog(IDD_CACHE_SETTINGS), store_(std::move(store)) {}

BOOL CCacheSettings::OnInitDialog() {
  OpenCache();
  // Without a manager no folder can be made out, which shows where one is needed.
  HOLLERIN::CreateAppFolderMgr(&folders_);
  ReadFolder();
  CBaseTranslateDialog::OnInitDialog();
  EnableLayout();
  Geometry::BindControls(*this, this, kLayout);
  browse_.SetButtonImage(PANTEROW::GetAppImageList(), PANTEROW::kImageBrowse);
  open_.SetButtonImage(PANTEROW::GetAppImageList(), PANTEROW::kImageOpen);
  // The choice before the edit in template order is not the one that it belongs to.
  const auto& name = TextId::kCacheDaysName;
  SetAccessibleName(GetDlgItem(IDC_CACHE_EXPIRE_DAYS)->m_hWnd,
                    LanguagePlaceholder(name.dialog, name.number));
  OnPolicyClicked();
  return TRUE;
}

void CCacheSettings::OpenCache() {
  if (SUCCEEDED(STOVEN::CreateCacheMgr(store_, this, &cache_))) {
    statistics_ = cache_->GetCacheStats();
  } else {
    ShowMessageText(L"Unable to create cache mgr", MB_OK);
  }
}

void CCacheSettings::ReadFolder() {
  HOLLERIN::StoreHandle master;
  if (SUCCEEDED(HOLLERIN::GetGlobalMasterConfiguration(&master))) {
    folder_ = master->ReadString(kFolders, kCacheFolder, {});
  } else {
    ShowErrorText(L"Unable to load master configuration");
  }
}

void CCacheSettings::DoDataExchange(CDataExchange* exchange) {
  CBaseTranslateDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_CACHE_FOLDER_HEADING, folderHeading_);
  DDX_Control(exchange, IDC_CACHE_SIZE_HEADING, sizeHeading_);
  DDX_Control(exchange, IDC_CACHE_EXPIRY_HEADING, expiryHeading_);
  DDX_Control(exchange, IDC_CACHE_FOLDER_BROWSE, browse_);
  DDX_Control(exchange, IDC_CACHE_FOLDER_OPEN, open_);
  DDX_Control(exchange, IDC_CACHE_FOLDER, folderEdit_);
  if (!exchange->m_bSaveAndValidate) ShowStatistics();
  if (store_ == nullptr) return;
  Values values(kValues, *store_);
  values.Exchange(exchange);
  DDX_Text(exchange, IDC_CACHE_FOLDER, folder_);
  if (exchange->m_bSaveAndValidate) values.Write(*store_);
}

void CCacheSettings::ShowStatistics() {
  if (statistics_ == nullptr) return;
  SetDlgItemText(IDC_CACHE_ITEMS, numberFormat_.Format(statistics_->GetItemCount()));
  SetDlgItemText(IDC_CACHE_SIZE, ByteSizeText(statistics_->GetSizeInfo().total));
}

void CCacheSettings::OnPolicyClicked() {
  const bool byAge = IsDlgButtonChecked(IDC_CACHE_EXPIRE) != BST_UNCHECKED;
  GetDlgItem(IDC_CACHE_EXPIRE_DAYS)->EnableWindow(byAge);
}

HRESULT CCacheSettings::Expand(const std::wstring& text, std::wstring& path) {
  return folders_ != nullptr ? folders_->ExpandPath(text, path) : E_FAIL;
}

std::wstring CCacheSettings::ExpandedEdit() {
  CString text;
  folderEdit_.GetWindowText(text);
  std::wstring path;
  return SUCCEEDED(Expand(text.Str(), path)) ? path : std::wstring();
}

void CCacheSettings::OnBrowse() {
  RunReported(CString(), [this] {
    std::wstring folder;
    if (!BrowseForFolder(this, ExpandedEdit(), &folder, false)) return;
    folderEdit_.SetWindowText(folders_ != nullptr ? folders_->CollapsePath(folder) : folder);
  });
}

void CCacheSettings::OnOpen() {
  RunReported(CString(), [this] {
    const CWaitCursor wait;
    ExecuteItemFromName(ExpandedEdit());
  });
}

void CCacheSettings::OnCompact() {
  Change(&IFileCacheMgr::CompactCache, L"Compacting Cache Database");
}

void CCacheSettings::OnDelete() { Change(&IFileCacheMgr::DeleteCache, L"Deleting Cache Database"); }

void CCacheSettings::Change(Operation operation, const wchar_t* description) {
  RunReported(description, [&] {
    const CWaitCursor wait;
    ThrowHr(cache_ != nullptr ? S_OK : E_FAIL, L"Checking cache available");
    RunOnCache(operation);
    statistics_ = cache_->GetCacheStats();
    // The figures alone, so that what the user has typed and not yet confirmed stays.
    ShowStatistics();
  });
}

void CCacheSettings::RunOnCache(Operation operation) {
  std::wstring error;
  SetLastError(0);
  ThrowHr(((*cache_).*operation)(error), error);
}

void CCacheSettings::OnOK() {
  RunReported(LanguageString(TextId::kSavingConfiguration), [this] {
    if (UpdateData(TRUE) && StoreFolder()) EndDialog(IDOK);
  });
}

bool CCacheSettings::StoreFolder() {
  const std::wstring& wanted = folder_.Str();
  std::wstring newPath, oldPath;
  const HRESULT expanded = Expand(wanted, newPath);
  HOLLERIN::StoreHandle master;
  ThrowHr(HOLLERIN::GetGlobalMasterConfiguration(&master), L"Loading master configuration");
  const std::wstring stored = master->ReadString(kFolders, kCacheFolder, {});
  if (stored == wanted) return true;
  ThrowHr(expanded, L"Making out the cache folder");
  const bool exists = SUCCEEDED(Expand(stored, oldPath)) && PathExists(oldPath);
  if (!exists) {
    SaveFolder(*master, stored);
    return true;
  }
  if (IsSameFolder(oldPath, newPath)) return true;
  if (ShowLangMessage(TextId::kAskNewCacheFolder, MB_YESNO) != IDYES) return false;
  SaveFolder(*master, stored);
  if (cache_ != nullptr) RunOnCache(&IFileCacheMgr::DeleteCache);
  return true;
}

void CCacheSettings::SaveFolder(INTERNAL_IFC::IConfigDataMgr& master,
                                const std::wstring& previous) {
  master.WriteString(kFolders, kCacheFolder, folder_.Str());
  const HRESULT saved = master.Save();
  // The dialog stays open, and may be cancelled.
  if (FAILED(saved)) master.WriteString(kFolders, kCacheFolder, previous);
  ThrowHr(saved, L"Saving master configuration");
}
