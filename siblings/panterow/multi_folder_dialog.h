#pragma once

// The dialog of several folders. Private to the library.

#include <memory>
#include <vector>

#include "ifc/load_combo_reg.h"
#include "ifc/location_list.h"
#include "panterow/panterow.h"
#include "platform/bcg.h"
#include "platform/list_box.h"

/// Works on folders of its own; after IDOK they are what the user wants.
class CMultiFolderDlg : public CBCGPDialog {
 public:
  using Locations = std::vector<INTERNAL_IFC::Location>;

  CMultiFolderDlg(Locations locations, std::shared_ptr<INTERNAL_IFC::ILoadComboReg> history,
                  CWnd* owner);
  const Locations& GetLocations() const { return locations_; }

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  /// Enter in the field of a new folder adds that folder; otherwise the dialog ends, and a folder
  /// that was typed and not added yet is one of those chosen.
  void OnOK() override;
  /// Delete removes the selected folder.
  BOOL PreTranslateMessage(MSG* message) override;

  void OnAdd();
  void OnBrowse();
  void OnRemove();
  void OnUp() { Move(-1); }
  void OnDown() { Move(1); }
  void OnSubfolders();
  void OnSelected();
  DECLARE_MESSAGE_MAP()

 private:
  void FillHistory();
  /// Selects the folder, which is appended when it is not in the list yet.
  void Add(const std::wstring& folder);
  void AddTyped();
  void Move(int rows);
  void ShowRow(int row);
  void Enable(int id, bool enable);
  bool Has(int row) const { return row >= 0 && row < static_cast<int>(locations_.size()); }
  INTERNAL_IFC::Location& At(int row) { return locations_[static_cast<std::size_t>(row)]; }

  CBCGPComboBox newFolder_;
  CBCGPListBox list_;
  Locations locations_;  ///< The rows of the list, in their order.
  std::shared_ptr<INTERNAL_IFC::ILoadComboReg> history_;
  std::shared_ptr<CFontMgr> fonts_;  ///< Keeps the dialog font alive.
};
