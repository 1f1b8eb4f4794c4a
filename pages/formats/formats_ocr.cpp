#include "pages/formats/formats_ocr.h"

#include "foundation/exception.h"
#include "foundation/language.h"
#include "hollerin/hollerin.h"
#include "resources/text_ids.h"

namespace {

using namespace page_values;
using INTERNAL_IFC::IOCRLanguage;

constexpr const wchar_t* kOptions = L"Options";

// Kept beside the table: what the rows and the combo box say.
constexpr const wchar_t* kTypesKey = L"OCRFileTypes";
constexpr const wchar_t* kLanguageKey = L"OCRLanguage";

/// Stored while single formats are picked and none is checked; the empty text stands for all.
constexpr const wchar_t* kNoTypes = L"none";
constexpr wchar_t kBetweenKeys = L'*';

constexpr const wchar_t* kUsualLanguage = L"eng";

// Reports tell the steps apart by these line numbers.
constexpr std::int32_t kLoadingLine = 122;
constexpr std::int32_t kListingLine = 125;

constexpr auto kValues = MakeTable({
    {kOptions, L"CacheOCRText", Bool(false), Check(IDC_OCR_CACHE), 1},
    {kOptions, L"OCRDetectOrientation", Bool(true), Check(IDC_OCR_ORIENTATION), 3},
    {kOptions, L"OCRPDFWithText", Bool(false), InvertedCheck(IDC_OCR_PDF_WITHOUT_TEXT), 2},
});

bool IsRecognisable(INTERNAL_IFC::IConfigInterpreter& entry) {
  return HasType(entry, L"ocrformat");
}

bool PicksSingle(const CWnd& dialog) { return !WhenChecked<IDC_OCR_ALL>(dialog); }

constexpr int kHeadings[] = {IDC_OCR_HEADING, IDC_OCR_PDF_HEADING};

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_FORMATS_LIST, L"CX+CY"},
    {IDOK, L"X+Y"},
    {IDCANCEL, L"X+Y"},
    {IDC_OCR_PDF_WITHOUT_TEXT, L"Y"},
    {IDC_OCR_LANGUAGE_LABEL, L"Y"},
    {IDC_OCR_LANGUAGE, L"Y"},
    {IDC_OCR_ORIENTATION, L"Y"},
    {IDC_OCR_PDF_HEADING, L"Y+CX"},
};

constexpr FormatsDescription kDialog = {.values = kValues,
                                        .shows = &IsRecognisable,
                                        .picksSingleFormats = &PicksSingle,
                                        .headings = kHeadings,
                                        .layout = kLayout};

/// Keys of the formats that a stored text picks.
std::vector<std::wstring> Split(const std::wstring& types) {
  std::vector<std::wstring> keys;
  if (types == kNoTypes) return keys;
  std::size_t first = 0;
  for (std::size_t end = types.find(kBetweenKeys); end != std::wstring::npos;
       end = types.find(kBetweenKeys, first)) {
    keys.push_back(types.substr(first, end - first));
    first = end + 1;
  }
  keys.push_back(types.substr(first));
  return keys;
}

std::wstring Join(const std::vector<std::wstring>& keys) {
  std::wstring types;
  for (const std::wstring& key : keys) {
    if (&key != &keys.front()) types += kBetweenKeys;
    types += key;
  }
  return types;
}

}  // namespace

BEGIN_MESSAGE_MAP(CFormatsOCR, CFormatsDialog)
ON_BN_CLICKED(IDC_OCR_ALL, &ThisClass::OnChoice)
ON_BN_CLICKED(IDC_OCR_CHECKED, &ThisClass::OnChoice)
END_MESSAGE_MAP()

CFormatsOCR::CFormatsOCR(StoreHandle store) : CFormatsDialog(IDD, kDialog, std::move(store)) {}

BOOL CFormatsOCR::OnInitDialog() {
  CFormatsDialog::OnInitDialog();
  CheckStoredTypes();
  FillLanguages();
  return TRUE;
}

void CFormatsOCR::DoDataExchange(CDataExchange* exchange) {
  CFormatsDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_OCR_LANGUAGE, box_);
  if (exchange->m_bSaveAndValidate) return;
  int button = StoredTypes().empty() ? 0 : 1;
  DDX_Radio(exchange, IDC_OCR_ALL, button);
}

std::wstring CFormatsOCR::StoredTypes() { return Store().ReadString(kOptions, kTypesKey, L""); }

std::wstring CFormatsOCR::ShownTypes() const {
  if (list_.IsReadOnly()) return {};
  const std::vector<std::wstring> keys = list_.GetCheckedKeys();
  return keys.empty() ? kNoTypes : Join(keys);
}

void CFormatsOCR::CheckStoredTypes() {
  const std::wstring types = StoredTypes();
  if (!types.empty()) list_.SetCheckedKeys(Split(types));
}

void CFormatsOCR::FillLanguages() {
  std::shared_ptr<INTERNAL_IFC::IOCRLangMap> map;
  ThrowHr(HOLLERIN::LoadOCRLangMap(&map), L"Loading ocr lang map", kLoadingLine);
  ThrowHr(map->GetLanguages(languages_), L"Getting ocr lang list", kListingLine);
  box_.ResetContent();
  const std::shared_ptr<IOCRLanguage> chosen = ChosenLanguage(*map);
  for (const auto& language : languages_) {
    if (!language->IsAvailable()) continue;
    const int row = box_.AddString(language->GetDisplayName());
    box_.SetItemData(row, reinterpret_cast<DWORD_PTR>(language.get()));
  }
  const auto& cue = box_.GetCount() > 0 ? TextId::kOcrSelectLanguage : TextId::kOcrNoLanguages;
  box_.SetCueBanner(LanguagePlaceholder(cue.dialog, cue.number));
  // The box sorts, so that rows are known only now.
  for (int row = 0; chosen != nullptr && row < box_.GetCount(); ++row) {
    if (LanguageAt(row)->GetCode() != chosen->GetCode()) continue;
    box_.SetCurSel(row);
    break;
  }
}

std::shared_ptr<IOCRLanguage> CFormatsOCR::ChosenLanguage(INTERNAL_IFC::IOCRLangMap& map) {
  std::shared_ptr<IOCRLanguage> language;
  map.FindLanguage(language, Store().ReadString(kOptions, kLanguageKey, L""));
  if (language == nullptr || !language->IsAvailable()) map.FindLanguage(language, kUsualLanguage);
  return language;
}

IOCRLanguage* CFormatsOCR::LanguageAt(int row) const {
  return reinterpret_cast<IOCRLanguage*>(box_.GetItemData(row));
}

void CFormatsOCR::SaveRows() {
  Store().WriteString(kOptions, kTypesKey, ShownTypes());
  SaveLanguage();
}

void CFormatsOCR::SaveLanguage() {
  const int row = box_.GetCurSel();
  if (row >= 0) Store().WriteString(kOptions, kLanguageKey, LanguageAt(row)->GetCode());
}
