#pragma once

// What the dialogs that choose formats have in common: a list of interpreters, stored values, and
// radio buttons that say whether all formats count or those that are checked.

#include <memory>
#include <vector>

#include "controls/separator.h"
#include "core/enabling_rules.h"
#include "core/page_values.h"
#include "foundation/geometry.h"
#include "foundation/translate_dialog.h"
#include "pages/formats/interpreter_list_ctrl.h"

/// Everything here refers to constants that outlive the dialog.
struct FormatsDescription {
  page_values::TableView values{};
  bool (*shows)(INTERNAL_IFC::IConfigInterpreter& entry) = nullptr;
  /// Whether the user picks single formats; only then do the rows have check boxes.
  bool (*picksSingleFormats)(const CWnd& dialog) = nullptr;
  std::span<const EnablingRule> rules{};
  std::span<const int> headings{};
  std::span<const Geometry::ControlConstraint> layout{};
  /// Whether the stored list is brought in line with the document filters of the machine first.
  bool syncsFilters = true;
};

/// Whether the type of the entry has that word.
bool HasType(INTERNAL_IFC::IConfigInterpreter& entry, const wchar_t* word);

/// Run as Geometry::CGeometryWnd<...>. What fails in the set-up leaves DoModal as an exception;
/// what fails later is reported, and the dialog stays open. Without a store the dialog shows the
/// defaults and keeps nothing.
class CFormatsDialog : public CBaseTranslateDialog, public Geometry::ILayout {
 public:
  using StoreHandle = CInterpreterListCtrl::StoreHandle;

  CFormatsDialog(UINT templateId, const FormatsDescription& description, StoreHandle store);

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  void OnOK() override;

  /// The click on a button that says which formats count.
  void OnChoice();
  void OnCheckAll() { list_.CheckAll(true); }
  void OnClearAll() { list_.CheckAll(false); }

  /// Writes what the rows say, before the values of the table: their enabled flags, unless the
  /// dialog keeps them elsewhere.
  virtual void SaveRows() { list_.SaveEnabledFlags(); }

  INTERNAL_IFC::IConfigDataMgr& Store() { return *store_; }

  CInterpreterListCtrl list_;

 private:
  void UseBlankStoreInsteadOfNone();
  void FillList();
  void ApplyChoice();

  FormatsDescription description_;
  std::vector<CSeparator> headings_;
  StoreHandle store_;
};
