#pragma once

#include "ifc/config_entry.h"
#include "ifc/config_interpreter_list.h"

class CConfigEntryExtensionDlg;

/// The tree's node of one interpreter. The list has as many of them as the user has interpreters,
/// so a node is little more than a handle; its page is made when it is first asked for.
class CConfigEntryExtension : public INTERNAL_IFC::IConfigEntry {
 public:
  explicit CConfigEntryExtension(std::shared_ptr<INTERNAL_IFC::IConfigInterpreter> interpreter);

  std::shared_ptr<CDialog> GetDialog(CWnd* parent,
                                     INTERNAL_IFC::IConfigDataProvider* provider) override;
  CString GetTitle() override { return name_; }
  /// None: interpreters come and go, so no caller can name one of their pages.
  std::int32_t GetPageId() override { return -1; }
  std::uint32_t GetExtraValue() override { return 0; }
  /// Puts the page's values into the interpreter. Always S_OK.
  HRESULT Apply() override;
  std::int32_t GetImageIndex() override { return -1; }

  /// From now on a page that was made edits the interpreter with the same key in `list`; where that
  /// has none, the page keeps its own. The list's status when it fails.
  HRESULT MoveTo(INTERNAL_IFC::IConfigInterpreterList& list);

 private:
  CString name_;
  std::shared_ptr<CConfigEntryExtensionDlg> page_;
  std::shared_ptr<INTERNAL_IFC::IConfigInterpreter> interpreter_;
};
