#include "core/main_dialog.h"

#include "core/page_host.h"
#include "core/restore_defaults.h"
#include "core/tree_builder.h"
#include "core/tree_images.h"
#include "foundation/catch_chain.h"
#include "foundation/language.h"
#include "foundation/message_helpers.h"
#include "resources/resource.h"
#include "resources/text_ids.h"

namespace {

constexpr const wchar_t* kSource = L"Brisquel/ConfigurationMain";

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_PAGE_TREE, L"CY"},
    {IDC_PAGE_FRAME, L"CX+CY"},
    {IDC_PAGE_CAPTION, L"CX"},
    {IDC_RESTORE_DEFAULTS, L"Y"},
    {IDOK, L"X+Y"},
    {IDCANCEL, L"X+Y"},
};

class ScopedFlag {
 public:
  explicit ScopedFlag(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~ScopedFlag() { flag_ = before_; }
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;

 private:
  bool& flag_;
  bool before_;
};

template <class Work>
void RunReported(Work&& work, const CString& context = {}) {
  RunGuarded(std::forward<Work>(work), MakeMsgBoxDisplay, context, kSource);
}

}  // namespace

BEGIN_MESSAGE_MAP(CConfigurationMain, CBaseTranslateDialog)
ON_NOTIFY(TVN_SELCHANGINGW, IDC_PAGE_TREE, &ThisClass::OnSelectionChanging)
ON_NOTIFY(TVN_SELCHANGEDW, IDC_PAGE_TREE, &ThisClass::OnSelectionChanged)
ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &ThisClass::OnRestoreDefaults)
ON_WM_SIZE()
END_MESSAGE_MAP()

CConfigurationMain::CConfigurationMain(const StoreHandle& config, const StoreHandle& master,
                                       const StoreHandle& history, const StoreHandle& fourth,
                                       std::int32_t initialPageId)
    : CBaseTranslateDialog(IDD_MAIN_CONFIGURATION) {
  SetUp(config, master, history, fourth, initialPageId);
}

void CConfigurationMain::SetUp(const StoreHandle& config, const StoreHandle& master,
                               const StoreHandle& history, const StoreHandle& fourth,
                               std::int32_t initialPageId) {
  config_ = config;
  initialPageId_ = initialPageId;
  root_ = std::make_shared<CConfigMgr>(config_);
  master_ = master;
  history_ = history;
  fourth_ = fourth;
  clearHistory_ = CClearHistorySettings(config_);
}

void CConfigurationMain::DoDataExchange(CDataExchange* exchange) {
  CBaseTranslateDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_PAGE_FRAME, frame_);
  DDX_Control(exchange, IDC_PAGE_TREE, tree_);
  DDX_Control(exchange, IDC_PAGE_CAPTION, caption_);
}

BOOL CConfigurationMain::OnInitDialog() {
  CBaseTranslateDialog::OnInitDialog();
  Geometry::BindControls(*this, this, kLayout);
  ModifyStyle(0, WS_THICKFRAME);
  EnableLayout();
  AdjustControlsLayout();
  SetUpTree();
  RunReported([this] { BuildPageTree(); });
  // Also when the tree could not be completed.
  RunReported([this] { SelectInitialPage(); });
  return TRUE;
}

void CConfigurationMain::SetUpTree() {
  LoadTreeImages(images_);
  tree_.SetImageList(&images_);
  tree_.SetItemHeight(static_cast<int>(GetGlobalData().GetTextHeight() * 1.2));
}

void CConfigurationMain::BuildPageTree() {
  const ScopedFlag rebuilding(rebuilding_);
  BuildTree(tree_, *this, *root_, TVI_ROOT, initialPageId_, initialItem_);
}

void CConfigurationMain::SelectInitialPage() {
  if (initialItem_ == nullptr) return;
  tree_.SelectItem(tree_.GetRootItem());
  tree_.SelectItem(initialItem_);
}

void CConfigurationMain::OnSelectionChanging(NMHDR*, LRESULT* result) {
  if (rebuilding_ || page_ == nullptr) return;
  bool saved = false;
  RunReported([&] { saved = SavePage(*page_); });
  *result = saved ? FALSE : TRUE;
}

void CConfigurationMain::OnSelectionChanged(NMHDR* header, LRESULT*) {
  if (rebuilding_) return;
  const HTREEITEM item = reinterpret_cast<const NMTREEVIEW*>(header)->itemNew.hItem;
  if (INTERNAL_IFC::IConfigEntry* entry = EntryOf(tree_, item)) {
    RunReported([&] { ShowEntry(*entry); });
  }
}

void CConfigurationMain::ShowEntry(INTERNAL_IFC::IConfigEntry& entry) {
  HidePage();
  page_ = entry.GetDialog(this, this);
  if (page_ != nullptr) AdoptPage(*page_);
  CString caption;
  caption.Format(LanguageString(TextId::kPageCaption).Str(), entry.GetTitle());
  caption_.SetWindowText(caption);
  caption_.Invalidate();
  if (page_ != nullptr) PlacePage(*page_, frame_, *this);
}

void CConfigurationMain::HidePage() {
  if (page_ != nullptr && page_->GetSafeHwnd() != nullptr) page_->ShowWindow(SW_HIDE);
  page_.reset();
}

void CConfigurationMain::OnSize(UINT type, int cx, int cy) {
  CBaseTranslateDialog::OnSize(type, cx, cy);
  if (page_ != nullptr) PlacePage(*page_, frame_, *this);
}

void CConfigurationMain::OnOK() {
  const auto apply = [this] {
    if (page_ != nullptr && !SavePage(*page_)) return;
    if (root_ != nullptr) ThrowHr(root_->Apply(), L"Applying configuration");
    CBaseTranslateDialog::OnOK();
  };
  RunReported(apply, LanguageString(TextId::kSavingConfiguration));
}

void CConfigurationMain::OnRestoreDefaults() {
  if (ShowLangMessage(TextId::kAskRestoreDefaults, MB_YESNOCANCEL) != IDYES) return;
  EmptyTree();
  RunReported([this] { RestoreDefaults(); }, LanguageString(TextId::kRestoringDefaults));
}

void CConfigurationMain::EmptyTree() {
  const ScopedFlag rebuilding(rebuilding_);
  // The page shown must neither veto nor write its values over the defaults to come.
  HidePage();
  tree_.DeleteAllItems();
  initialItem_ = nullptr;
}

void CConfigurationMain::RestoreDefaults() {
  if (config_ != nullptr) {
    LoadDefaultConfiguration(*config_);
    // From here on the pages made so far show values of the past; should a later step fail, OK
    // must not write them.
    root_.reset();
    ResyncDocumentFilters(config_);
  }
  if (master_ != nullptr) LoadDefaultMaster(*master_);
  if (fourth_ != nullptr) fourth_->Clear();
  SetUp(config_, master_, history_, fourth_, kDefaultPageId);
  BuildPageTree();
  tree_.SelectItem(tree_.GetRootItem());
}

HRESULT CConfigurationMain::Notify(std::uint32_t code, INTERNAL_IFC::IObserverParms* parms) {
  const auto* node = dynamic_cast<const CTreeViewParms*>(parms);
  if (code == kChildrenChanged && node != nullptr) RebuildChildren(node->Item());
  return S_OK;
}

void CConfigurationMain::RebuildChildren(HTREEITEM item) {
  const ScopedFlag rebuilding(rebuilding_);
  const HTREEITEM selected = tree_.GetSelectedItem();
  INTERNAL_IFC::IConfigEntry* entry = EntryOf(tree_, item);
  tree_.Expand(item, TVE_COLLAPSE | TVE_COLLAPSERESET);
  if (auto* group = dynamic_cast<INTERNAL_IFC::IConfigParent*>(entry)) {
    BuildTree(tree_, *this, *group, item, initialPageId_, initialItem_);
  }
  tree_.Expand(item, TVE_EXPAND);
  if (tree_.GetSelectedItem() == selected || entry == nullptr) return;
  // The page shown belonged to a child that is gone; its group is shown instead.
  tree_.SelectItem(item);
  ShowEntry(*entry);
}
