#pragma once

#include "core/value_page.h"
#include "foundation/geometry.h"
#include "resources/resource.h"

/// Which files are read as UTF-8. Run as Geometry::CGeometryDynCreateWnd.
class CConfigEntryFileTypeUTF8Dlg : public CValuePage, public Geometry::ILayout {
 public:
  static constexpr UINT IDD = IDD_UTF8_PAGE;
  CConfigEntryFileTypeUTF8Dlg();

 protected:
  BOOL OnInitDialog() override;
};
