#pragma once

#include "core/value_page.h"
#include "foundation/geometry.h"
#include "ifc/filter_mgr.h"
#include "platform/list_ctrl.h"
#include "resources/resource.h"

/// The document filters of the machine by file extension, whether those for plain text count, and
/// which go first, filters or the application's own converters. Run as
/// Geometry::CGeometryDynCreateWnd.
class CConfigEntryGeneralFiltersDlg : public CValuePage, public Geometry::ILayout {
 public:
  static constexpr UINT IDD = IDD_FILTERS_PAGE;
  CConfigEntryGeneralFiltersDlg();

 protected:
  /// The list is filled once the page is shown, by a message that the page posts to itself.
  BOOL OnInitDialog() override;
  void BindMembers(CDataExchange* exchange) override;

  /// Looks for the filters anew, in a dialog that can be cancelled, which leaves the rows so far.
  /// What is raised is shown.
  void OnRefresh();
  LRESULT OnRefreshMessage(WPARAM, LPARAM);
  /// Saves the page's values at once, so that the list follows the choice.
  void OnIncludeTextFilters();
  DECLARE_MESSAGE_MAP()

 private:
  void SetUpList();
  void FillList();

  CBCGPListCtrl list_;
  std::shared_ptr<INTERNAL_IFC::IFilterMgr> filters_;  ///< Made when it is first needed.
};
