#include "dialogs/search_filter_edit.h"

#include "controls/browse_for_folder.h"
#include "core/blank_store.h"
#include "dialogs/filter_match_types.h"
#include "foundation/catch_chain.h"
#include "foundation/exception.h"
#include "foundation/language.h"
#include "panterow/multi_folder.h"
#include "quimbly/quimbly.h"
#include "resources/resource.h"

namespace {

constexpr const wchar_t* kSource = L"Brisquel/SearchFilterEdit";
constexpr int kMostCharacters = 0x7FFFFFFE;

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_FILTER_NAME, L"CX"},
    {IDC_FILTER_PATTERN, L"CX"},
    {IDC_FILTER_NAME_TYPE, L"X"},
    {IDC_FILTER_FOLDERS, L"CX"},
    {IDC_FILTER_LOCATION_TYPE, L"X"},
    {IDC_FILTER_BROWSE, L"X"},
    {IDC_FILTER_EDIT_FOLDERS, L"X"},
    {IDOK, L"X"},
    {IDCANCEL, L"X"},
};

/// The types that each kind of filter offers, the one of a new filter among them.
constexpr std::int32_t kLocationTypes[] = {0, 1, 2};
constexpr std::int32_t kNameTypes[] = {4, 0, 2};
constexpr std::int32_t kNewLocationType = 1;
constexpr std::int32_t kNewNameType = 4;

constexpr int kLocationControls[] = {IDC_FILTER_FOLDERS, IDC_FILTER_LOCATION_TYPE,
                                     IDC_FILTER_BROWSE, IDC_FILTER_EDIT_FOLDERS};
constexpr int kNameControls[] = {IDC_FILTER_PATTERN, IDC_FILTER_NAME_TYPE};

/// Lets the user edit the folders of a text; false when the user cancelled.
bool EditFolderList(CWnd* owner, const std::shared_ptr<INTERNAL_IFC::ILoadComboReg>& history,
                    CString& folders) {
  std::shared_ptr<INTERNAL_IFC::ILocationList> list;
  ThrowHr(TOLLIVER::CreateLocationList(&list, false), L"Creating location list");
  list->ParseText(folders.Str());
  const auto edited = PANTEROW::OpenMultiFolderDialog(list, history, owner);
  if (edited != nullptr) folders = edited->FormatText(true);
  return edited != nullptr;
}

template <class Work>
HRESULT RunReported(Work&& work) {
  return RunGuarded(std::forward<Work>(work), MakeMsgBoxDisplay, CString(), kSource);
}

}  // namespace

BEGIN_MESSAGE_MAP(CSearchFilterEdit, CBaseTranslateDialog)
ON_BN_CLICKED(IDC_FILTER_BY_NAME, &ThisClass::OnKindClicked)
ON_BN_CLICKED(IDC_FILTER_BY_LOCATION, &ThisClass::OnKindClicked)
ON_BN_CLICKED(IDC_FILTER_BROWSE, &ThisClass::OnBrowse)
ON_BN_CLICKED(IDC_FILTER_EDIT_FOLDERS, &ThisClass::OnEditFolders)
END_MESSAGE_MAP()

CSearchFilterEdit::CSearchFilterEdit(std::shared_ptr<INTERNAL_IFC::ILoadComboReg> history,
                                     std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store,
                                     std::shared_ptr<INTERNAL_IFC::ISearchFilter> filter)
    : CBaseTranslateDialog(IDD_SEARCH_FILTER),
      history_(std::move(history)),
      store_(std::move(store)),
      filter_(std::move(filter)) {}

BOOL CSearchFilterEdit::OnInitDialog() {
  FillTypes();
  CBaseTranslateDialog::OnInitDialog();
  EnableLayout();
  Geometry::BindControls(*this, this, kLayout);
  ShowImages();
  RunReported([this] {
    if (StoreOrBlank(store_)->ReadBool(L"Options", L"EnableLookInAutoComplete", true)) {
      folders_.EnableAutoComplete();
    }
  });
  RunReported([this] { SetUpLookIn(); });
  ShowKind();
  name_.SetFocus();
  return FALSE;
}

/// The exchange that follows selects among these rows.
void CSearchFilterEdit::FillTypes() {
  const auto fill = [this](CComboBox& combo, UINT id, std::span<const std::int32_t> types) {
    combo.SubclassDlgItem(id, this);
    for (const std::int32_t type : types) combo.AddString(LabelOf(FilterMatchTypes, type));
  };
  fill(locationType_, IDC_FILTER_LOCATION_TYPE, kLocationTypes);
  fill(nameType_, IDC_FILTER_NAME_TYPE, kNameTypes);
}

void CSearchFilterEdit::ShowImages() {
  if (image_.Load(IDR_SEARCH_FILTER_IMAGE)) picture_.SetBitmap(image_);
  browse_.SetButtonImage(PANTEROW::GetAppImageList(), PANTEROW::kImageBrowse);
  editFolders_.SetButtonImage(PANTEROW::GetAppImageList(), PANTEROW::kImageSeveralFolders);
  // What stands before the types names the texts that they belong to.
  for (const auto& [combo, name] : {std::pair(&nameType_, TextId::kFilterNameType),
                                    std::pair(&locationType_, TextId::kFilterLocationType)}) {
    SetAccessibleName(combo->m_hWnd, LanguagePlaceholder(name.dialog, name.number));
  }
}

void CSearchFilterEdit::SetUpLookIn() {
  folders_.LimitText(kMostCharacters);
  folders_.SetOptions(true, true);
  folders_.SetProviders(history_, history_);
  folders_.SetFolderListEditor(EditFolderList);
  folders_.Fill();
}

void CSearchFilterEdit::ShowKind() {
  const bool location = filter_->GetFilterKind() == INTERNAL_IFC::kLocationFilter;
  CheckDlgButton(IDC_FILTER_BY_NAME, location ? BST_UNCHECKED : BST_CHECKED);
  CheckDlgButton(IDC_FILTER_BY_LOCATION, location ? BST_CHECKED : BST_UNCHECKED);
  OnKindClicked();
}

bool CSearchFilterEdit::IsLocation() const {
  return IsDlgButtonChecked(IDC_FILTER_BY_LOCATION) == BST_CHECKED;
}

void CSearchFilterEdit::OnKindClicked() {
  const bool location = IsLocation();
  for (const int id : kLocationControls) GetDlgItem(id)->EnableWindow(location ? TRUE : FALSE);
  for (const int id : kNameControls) GetDlgItem(id)->EnableWindow(location ? FALSE : TRUE);
}

void CSearchFilterEdit::BindControlObjects(CDataExchange* exchange) {
  DDX_Control(exchange, IDC_FILTER_PICTURE, picture_);
  DDX_Control(exchange, IDC_FILTER_NAME, name_);
  DDX_Control(exchange, IDC_FILTER_PATTERN, pattern_);
  DDX_Control(exchange, IDC_FILTER_NAME_TYPE, nameType_);
  DDX_Control(exchange, IDC_FILTER_FOLDERS, folders_);
  DDX_Control(exchange, IDC_FILTER_LOCATION_TYPE, locationType_);
  DDX_Control(exchange, IDC_FILTER_BROWSE, browse_);
  DDX_Control(exchange, IDC_FILTER_EDIT_FOLDERS, editFolders_);
}

void CSearchFilterEdit::DoDataExchange(CDataExchange* exchange) {
  CBaseTranslateDialog::DoDataExchange(exchange);
  BindControlObjects(exchange);
  Texts texts = exchange->m_bSaveAndValidate ? Texts() : ReadFilter();
  DDX_CBStringExact(exchange, IDC_FILTER_LOCATION_TYPE, texts.locationType);
  DDX_CBStringExact(exchange, IDC_FILTER_NAME_TYPE, texts.nameType);
  DDX_Text(exchange, IDC_FILTER_PATTERN, texts.pattern);
  if (exchange->m_bSaveAndValidate) {
    texts.folders = folders_.GetText();
  } else {
    folders_.SetText(texts.folders);
  }
  DDX_Text(exchange, IDC_FILTER_NAME, texts.name);
  if (exchange->m_bSaveAndValidate) ChangeFilter(texts);
}

CSearchFilterEdit::Texts CSearchFilterEdit::ReadFilter() const {
  Texts texts;
  std::int32_t locationType = kNewLocationType;
  std::int32_t nameType = kNewNameType;
  const std::int32_t kind = filter_->GetFilterKind();
  if (kind == INTERNAL_IFC::kLocationFilter) {
    texts.folders = filter_->GetValue();
    locationType = filter_->GetMatchType();
  } else if (kind == INTERNAL_IFC::kNameFilter) {
    texts.pattern = filter_->GetValue();
    nameType = filter_->GetMatchType();
  }
  texts.locationType = LabelOf(FilterMatchTypes, locationType);
  texts.nameType = LabelOf(FilterMatchTypes, nameType);
  texts.name = filter_->GetName();
  return texts;
}

void CSearchFilterEdit::ChangeFilter(const Texts& texts) {
  const bool location = IsLocation();
  filter_->SetName(texts.name.Str());
  filter_->SetNameKind(!location);
  filter_->SetValue((location ? texts.folders : texts.pattern).Str());
  filter_->SetMatchType(IdOf(FilterMatchTypes, location ? texts.locationType : texts.nameType));
}

template <class Browse>
void CSearchFilterEdit::BrowseFrom(Browse&& browse) {
  RunReported([&] {
    if (!UpdateData(TRUE)) return;
    CString value = filter_->GetValue();
    if (!browse(value)) return;
    filter_->SetValue(value.Str());
    UpdateData(FALSE);
  });
}

void CSearchFilterEdit::OnBrowse() {
  BrowseFrom([this](CString& value) {
    std::wstring folder;
    const bool picked = BrowseForFolder(this, value.Str(), &folder, false);
    if (picked) value = folder;
    return picked;
  });
}

void CSearchFilterEdit::OnEditFolders() {
  BrowseFrom([this](CString& value) { return EditFolderList(this, history_, value); });
}

void CSearchFilterEdit::OnOK() {
  RunReported([this] { CBaseTranslateDialog::OnOK(); });
}
