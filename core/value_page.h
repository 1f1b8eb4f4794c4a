#pragma once

// The frame of the pages that show stored values. A page is a description (its table of values, its
// headings, its enabling rules) and the few things that are its own; getting the store, reading,
// exchanging, validating and writing happens here, once for all pages.

#include <optional>
#include <vector>

#include "controls/config_color_button.h"
#include "controls/custom_combo_box.h"
#include "controls/separator.h"
#include "core/config_dialog.h"
#include "core/enabling_rules.h"
#include "core/page_values.h"

/// The id that the combo box keeps with its chosen row; nothing without a choice.
std::optional<int> ChosenId(const CWnd& page, int combo);

/// Predicate of an enabling rule: the chosen row of the combo box is that of the id.
template <int kCombo, int kId>
bool WhenChosen(const CWnd& page) {
  return ChosenId(page, kCombo) == kId;
}

/// What a page does while its host has no store.
enum class WithoutStore {
  kSkip,   ///< Exchanges nothing; the controls stay as the template has them.
  kBlank,  ///< Shows the defaults of an empty store and keeps nothing.
};

/// Everything here refers to constants that outlive the page.
struct PageDescription {
  page_values::TableView values{};
  std::span<const int> headings{};
  std::span<const EnablingRule> rules{};
  WithoutStore withoutStore = WithoutStore::kSkip;
};

class CValuePage : public CConfigDialog {
 public:
  CValuePage(UINT templateId, const PageDescription& description);

 protected:
  /// The base's set-up with the load exchange, then the enabling rules.
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  /// Applies the enabling rules again after a click and after a choice in a combo box.
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

  void ApplyEnablingRules() { ApplyRules(*this, description_.rules); }

  /// The place for control objects of the page's own (DDX_Control). Called in every exchange, with
  /// and without a store, before the values are read.
  virtual void BindMembers(CDataExchange*) {}

  /// The store of the table's values; a page whose values live elsewhere than in the configuration
  /// being edited answers with that store. Empty when there is none.
  virtual StoreHandle GetValueStore() { return GetWorkingStore(); }

  /// Values of the page's own beside those of its table: called with the store before the table's
  /// values are read, and after they have been shown or, when saving, written. EndExchange is
  /// also the place to refuse a value that the store keeps nevertheless.
  virtual void BeginExchange(CDataExchange*, const StoreHandle&) {}
  virtual void EndExchange(CDataExchange*, const StoreHandle&) {}

  /// What a table cannot say about valid values: called when saving, after all controls have been
  /// exchanged and before anything is written. Tells the user and calls `exchange->Fail()`.
  virtual void CheckValues(CDataExchange*) {}

  /// GetValueStore's, or what the page's description puts in its place; empty when it skips.
  StoreHandle StoreForExchange();

 private:
  void BindHeadings(CDataExchange* exchange);
  void BindValueControls(CDataExchange* exchange);

  PageDescription description_;
  std::vector<CSeparator> headings_;
  std::vector<CCustomComboBox> labelCombos_;
  std::vector<CConfigColorButton> colourButtons_;
};
