#pragma once

#include "core/value_page.h"
#include "foundation/geometry.h"
#include "resources/resource.h"

/// How text is prepared for matching: quotation marks, names as contents, line ends.
class CConfigEntryGeneralCharProcDlg : public CValuePage, public Geometry::ILayout {
 public:
  static constexpr UINT IDD = IDD_CHARACTER_PAGE;
  CConfigEntryGeneralCharProcDlg();

 protected:
  BOOL OnInitDialog() override;
};
