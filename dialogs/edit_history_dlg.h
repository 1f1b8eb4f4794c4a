#pragma once

// The dialog that edits histories as text.

#include "foundation/geometry.h"
#include "foundation/translate_dialog.h"
#include "ifc/load_combo_reg.h"
#include "platform/list_box.h"

/// Run as Geometry::CGeometryWnd<CEditHistoryDlg>. A history is stored when another one is chosen
/// and when the user confirms, so after anything but IDOK the store may hold some of the user's
/// changes. A history that cannot be stored stays the one that is shown.
class CEditHistoryDlg : public CBaseTranslateDialog, public Geometry::ILayout {
 public:
  /// Shares the provider; without one, that is reported and there is nothing to edit. Each history
  /// keeps at most `maximum` entries.
  CEditHistoryDlg(std::shared_ptr<INTERNAL_IFC::ILoadComboReg> lists, std::int32_t maximum);

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  void OnOK() override;
  void OnCategoryChanged();
  DECLARE_MESSAGE_MAP()

 private:
  void FillCategories();
  void CreateEdit();
  CWnd& Edit() const;
  /// Stores the history shown, then shows the selected one.
  void ShowSelected();
  void Load(int category);
  void StoreShown();
  void SelectShown();

  CBCGPListBox categories_;
  std::shared_ptr<INTERNAL_IFC::ILoadComboReg> lists_;
  std::int32_t maximum_;
  std::int32_t shown_ = -1;  ///< Number of the history in the edit box.
};
