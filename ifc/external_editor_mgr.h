#pragma once

// The external editors that are known, and which of them is the default.

#include <memory>
#include <string>
#include <vector>

#include "platform/types.h"

namespace INTERNAL_IFC {

/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class IExternalEditor {
 public:
  virtual ~IExternalEditor() = default;              // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  /// The name that is shown to the user.
  virtual std::wstring GetName() = 0;  // 2
};

/// As above.
class IExternalEditorMgr {
 public:
  virtual ~IExternalEditorMgr() = default;           // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  /// Whether at least one external editor is known.
  virtual bool HasEditors() = 0;  // 2
  /// All that are known, and the one of them that is the default; that is empty when none is. Both
  /// are left alone on failure.
  virtual HRESULT GetEditors(std::vector<std::shared_ptr<IExternalEditor>>& editors,
                             std::shared_ptr<IExternalEditor>& current) = 0;  // 3
  /// Makes one of the editors from GetEditors the default. Any other pointer is ignored.
  virtual void SetDefaultEditor(IExternalEditor* editor) = 0;  // 4
};

}  // namespace INTERNAL_IFC
