#pragma once

// The dialog that defines one search filter.

#include "controls/look_in_combo.h"
#include "controls/reg_loaded_combo.h"
#include "controls/semi_button.h"
#include "foundation/geometry.h"
#include "foundation/translate_dialog.h"
#include "ifc/config_data_mgr.h"
#include "ifc/search_filter_list.h"

/// Run as Geometry::CGeometryWnd<CSearchFilterEdit>. The filter changes while the user browses,
/// too, so it has to be a copy that counts only after IDOK.
class CSearchFilterEdit : public CBaseTranslateDialog, public Geometry::ILayout {
 public:
  /// Shares the history of folders and the store, either of which may be empty, and the filter.
  CSearchFilterEdit(std::shared_ptr<INTERNAL_IFC::ILoadComboReg> history,
                    std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store,
                    std::shared_ptr<INTERNAL_IFC::ISearchFilter> filter);

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  void OnOK() override;
  void OnKindClicked();
  void OnBrowse();
  void OnEditFolders();
  DECLARE_MESSAGE_MAP()

 private:
  /// What the controls show. A type is the label of its id.
  struct Texts {
    CString name;
    CString pattern;
    CString nameType;
    CString folders;
    CString locationType;
  };

  void FillTypes();
  void BindControlObjects(CDataExchange* exchange);
  void ShowImages();
  void SetUpLookIn();
  void ShowKind();
  Texts ReadFilter() const;
  void ChangeFilter(const Texts& texts);
  bool IsLocation() const;
  /// Takes the controls over, lets `browse` change the filter's value, and shows it.
  template <class Browse>
  void BrowseFrom(Browse&& browse);

  CStatic picture_;
  CBCGPEdit name_;
  CRegLoadedCombo pattern_;
  CBCGPComboBox nameType_;
  CLookInCombo folders_;
  CBCGPComboBox locationType_;
  CSemiButton browse_;
  CSemiButton editFolders_;
  CBCGPPngImage image_;
  std::shared_ptr<INTERNAL_IFC::ILoadComboReg> history_;
  std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store_;
  std::shared_ptr<INTERNAL_IFC::ISearchFilter> filter_;
};
