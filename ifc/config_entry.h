#pragma once

// A node of the page tree, and a node that has children.

#include <memory>
#include <vector>

#include "ifc/config_data_provider.h"
#include "platform/text.h"

class CDialog;
class CWnd;

namespace INTERNAL_IFC {

class IConfigEntry {
 public:
  virtual ~IConfigEntry() = default;
  /// The page, made as a child of `parent` on the first call and the same one afterwards. The
  /// provider must outlive the page.
  virtual std::shared_ptr<CDialog> GetDialog(CWnd* parent, IConfigDataProvider* provider) = 0;
  virtual CString GetTitle() = 0;
  virtual std::int32_t GetPageId() = 0;
  virtual std::uint32_t GetExtraValue() = 0;
  /// Writes the page's values into the store; S_OK also when the page was never made.
  virtual HRESULT Apply() = 0;
  /// Index in the tree's image strip; -1 for the default image.
  virtual std::int32_t GetImageIndex() = 0;
};

class IConfigParent {
 public:
  virtual ~IConfigParent() = default;
  /// Replaces the vector's content by the children in tree order and returns their number.
  virtual std::int32_t GetChildren(std::vector<std::shared_ptr<IConfigEntry>>& children) = 0;
};

}  // namespace INTERNAL_IFC
