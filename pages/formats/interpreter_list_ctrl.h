#pragma once

// The list of interpreters, or of those that its owner wants shown, with their enabled flags.

#include <functional>
#include <string>
#include <vector>

#include "ifc/config_data_mgr.h"
#include "ifc/config_interpreter_list.h"
#include "platform/list_ctrl.h"

/// Whether the interpreter is shown.
using InterpreterFilter =
    std::function<bool(const std::shared_ptr<INTERNAL_IFC::IConfigInterpreter>&)>;

/// Each row is one entry of the list in the store, labelled with its name; the rows keep the order
/// of the list. The owner sets store and filter first. Failures raise CCP_Exception.
class CInterpreterListCtrl : public CBCGPListCtrl {
 public:
  using ListHandle = std::shared_ptr<INTERNAL_IFC::IConfigInterpreterList>;
  using StoreHandle = std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>;
  using EntryHandle = std::shared_ptr<INTERNAL_IFC::IConfigInterpreter>;

  void SetConfigStore(StoreHandle store) { store_ = std::move(store); }
  void SetFilter(InterpreterFilter filter) { filter_ = std::move(filter); }

  /// Rows show no check boxes then, and no flag is read or written. Followed by Populate.
  void SetReadOnly(bool readOnly) { readOnly_ = readOnly; }
  bool IsReadOnly() const { return readOnly_; }

  /// Fills the rows anew, each with the enabled flag of its entry; with `reload` from the list that
  /// is in the store now, otherwise from the one loaded last, where there is one.
  void Populate(bool reload);
  /// As the user changes between all and selected types: the check boxes come or go and the rows
  /// are filled from the list loaded last, so that flags not saved are lost.
  void ChangeReadOnly(bool readOnly);

  /// The keys of the checked rows in row order; none when read-only.
  std::vector<std::wstring> GetCheckedKeys() const;
  /// Checks exactly the rows with these keys, and enables exactly their entries among those shown;
  /// nothing when read-only. Nothing is saved.
  void SetCheckedKeys(const std::vector<std::wstring>& keys);
  /// Checks every row, or none.
  void CheckAll(bool check);

  /// Writes the flags of the rows into the list that is in the store now, so that all else which
  /// was changed there stays; nothing when read-only. Rows whose entry is gone go as well.
  void SaveEnabledFlags();

 protected:
  bool RedrawsScrollBars(UINT message) const override;
  void ScrollTo(int bar, int position) override;

 private:
  const ListHandle& GetList(bool reload);
  void SetUpView();
  bool Shows(const EntryHandle& entry) const { return filter_ && filter_(entry); }
  void AddRow(int place, INTERNAL_IFC::IConfigInterpreter& entry);
  /// Null when the row's entry is gone. The shown list keeps the entry alive.
  INTERNAL_IFC::IConfigInterpreter* EntryAt(int row) const;
  EntryHandle FindEntryOf(int row, INTERNAL_IFC::IConfigInterpreterList& list) const;
  void RemoveRowsWithoutEntry();

  ListHandle cached_;
  ListHandle shown_;
  InterpreterFilter filter_;
  bool readOnly_ = false;
  StoreHandle store_;
};
