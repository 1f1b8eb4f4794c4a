#pragma once

#include "core/value_page.h"
#include "foundation/geometry.h"
#include "resources/resource.h"

/// How many threads searching and indexing use, and the priorities of the application.
class CConfigEntryGeneralThreadDlg : public CValuePage, public Geometry::ILayout {
 public:
  static constexpr UINT IDD = IDD_THREADS_PAGE;
  CConfigEntryGeneralThreadDlg();

 protected:
  BOOL OnInitDialog() override;
  void OnSearchSpeed();
  void OnIndexSpeed();
  DECLARE_MESSAGE_MAP()
};
