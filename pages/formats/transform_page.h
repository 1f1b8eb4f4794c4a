#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// The component that performs custom transforms.
class CConfigEntryAdvTransformDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_TRANSFORM_PAGE;
  CConfigEntryAdvTransformDlg();

 protected:
  /// A component that is named must be one that can be created.
  void EndExchange(CDataExchange* exchange, const StoreHandle& store) override;
};
