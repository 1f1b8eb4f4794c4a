#pragma once

// The list of persistent search filters.

#include "foundation/geometry.h"
#include "foundation/translate_dialog.h"
#include "ifc/config_data_mgr.h"
#include "ifc/load_combo_reg.h"
#include "ifc/search_filter_list.h"
#include "platform/list_ctrl.h"

/// Run as Geometry::CGeometryWnd<CSearchFilterListDlg>. What the user creates, edits, deletes and
/// switches is in memory until it is stored on OK; a filter is edited as a copy.
class CSearchFilterListDlg : public CBaseTranslateDialog, public Geometry::ILayout {
 public:
  using StoreHandle = std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>;
  using Provider = std::shared_ptr<INTERNAL_IFC::ILoadComboReg>;

  /// Shares the store and the history of folders; either may be empty. Without a store there are no
  /// filters and nothing is kept. With `startActive` the filters are shown as active, whatever the
  /// store says.
  CSearchFilterListDlg(StoreHandle store, Provider history, bool startActive);

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  void OnOK() override;
  void OnNew();
  void OnEdit();
  void OnDelete();
  void OnDoubleClick(NMHDR* header, LRESULT* result);
  LRESULT OnContextMenu(WPARAM wParam, LPARAM lParam);
  DECLARE_MESSAGE_MAP()

 private:
  using Filter = std::shared_ptr<INTERNAL_IFC::ISearchFilter>;

  void SetUpList();
  void LoadFilters();
  void LoadActive();
  void FillList();
  int AppendRow(const Filter& filter);
  void FillRow(int row, const Filter& filter);
  /// -1 when none is selected.
  int SelectedRow() const;
  /// Null when there is no such filter.
  Filter FilterAt(int row) const;
  /// The user's changed copy; null when the user cancelled.
  Filter RunEditor(const Filter& filter);
  void EditRow(int row);
  void DeleteRow(int row);
  /// Switches the filters as their rows are checked; whether any of them is on.
  bool TakeCheckBoxes();
  void Store();

  CBCGPListCtrl list_;
  CBCGPButton activeBox_;
  StoreHandle store_;
  Provider history_;
  bool startActive_;
  std::shared_ptr<INTERNAL_IFC::ISearchFilterList> filters_;  ///< Null when it cannot be loaded.
};
