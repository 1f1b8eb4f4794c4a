#pragma once

#include "controls/custom_combo_box.h"
#include "ifc/ocr_lang_map.h"
#include "pages/formats/formats_dialog.h"
#include "resources/resource.h"

/// Where text in pictures is recognised, and in which language. The chosen formats are kept as a
/// value of their own; the interpreter list keeps its enabled flags.
class CFormatsOCR : public CFormatsDialog {
 public:
  static constexpr UINT IDD = IDD_FORMATS_OCR;
  explicit CFormatsOCR(StoreHandle store);

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  void SaveRows() override;
  DECLARE_MESSAGE_MAP()

 private:
  std::wstring StoredTypes();
  std::wstring ShownTypes() const;
  void CheckStoredTypes();
  void FillLanguages();
  /// The stored language, or English in the place of one that cannot be used; empty when the map
  /// does not know it.
  std::shared_ptr<INTERNAL_IFC::IOCRLanguage> ChosenLanguage(INTERNAL_IFC::IOCRLangMap& map);
  INTERNAL_IFC::IOCRLanguage* LanguageAt(int row) const;
  void SaveLanguage();

  CCustomComboBox box_;
  /// The rows of the combo box point to these.
  std::vector<std::shared_ptr<INTERNAL_IFC::IOCRLanguage>> languages_;
};
