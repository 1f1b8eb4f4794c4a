#pragma once

// The group of file extensions: two pages of its own, and one for each interpreter of the list in
// the configuration being edited.

#include "core/config_mgr.h"
#include "hollerin/hollerin.h"
#include "ifc/observer.h"

class CConfigEntryExtension;

/// Holds one interpreter list, whose entries the pages below it edit in memory. Its observer hears
/// kChildrenChanged when the pages have been replaced.
class CConfigExtensionMgr : public CConfigMgrBase, public INTERNAL_IFC::IPublisher {
 public:
  /// `store` is the configuration being edited. A list that cannot be loaded is reported to the log
  /// and leaves the group with its own two pages.
  explicit CConfigExtensionMgr(const StoreHandle& store);

  /// Makes the children on the first call: the pages of the table, those of default interpreters,
  /// those of all others, each in the order of the list. Raises CCP_Exception when the list fails.
  std::int32_t GetChildren(EntryList& children) override;
  std::shared_ptr<CDialog> CreateGroupDialog(CWnd* parent,
                                             INTERNAL_IFC::IConfigDataProvider* provider) override;
  /// Applies the pages and stores the list. E_FAIL without a store.
  HRESULT Apply() override;

  HRESULT Subscribe(INTERNAL_IFC::IObserver* observer,
                    std::shared_ptr<INTERNAL_IFC::IObserverParms> parms) override;

  /// Takes the list anew from the store. The pages of the old one are dropped with what they did
  /// not save. Raises CCP_Exception, with everything as it was, when the list cannot be loaded.
  void Reload();

 private:
  CConfigExtensionMgr(const GroupRow& row, const StoreHandle& store);
  HOLLERIN::InterpreterListHandle LoadList() const;
  void MakeChildren();
  HRESULT Renew();

  const GroupRow& row_;
  HOLLERIN::InterpreterListHandle list_;  ///< Empty when it could not be loaded.
  StoreHandle store_;
  std::vector<std::shared_ptr<CConfigEntryExtension>> extensions_;  ///< Those of the children.
  INTERNAL_IFC::IObserver* observer_ = nullptr;
  std::shared_ptr<INTERNAL_IFC::IObserverParms> parms_;
};
