#pragma once

#include <memory>

#include "core/value_page.h"
#include "ifc/external_editor_mgr.h"
#include "resources/resource.h"

/// Which editor opens the files that were found.
class CConfigEntryEditorDefaultDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_DEFAULT_EDITOR_PAGE;
  CConfigEntryEditorDefaultDlg();

 protected:
  /// Shows the stored choice and the editors of the machine. Nothing is read after that.
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  void BindMembers(CDataExchange* exchange) override;

 private:
  void CheckStoredChoice();
  void ListEditors();
  int Choice() const;
  void RememberEditor();

  CCustomComboBox combo_;
  std::shared_ptr<INTERNAL_IFC::IExternalEditorMgr> manager_;  ///< Empty when it cannot be made.
  /// The rows of the combo box point to these.
  std::vector<std::shared_ptr<INTERNAL_IFC::IExternalEditor>> editors_;
};
