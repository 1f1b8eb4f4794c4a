#pragma once

#include <array>

#include "core/value_page.h"
#include "foundation/geometry.h"
#include "ifc/search_term_mgr.h"
#include "resources/resource.h"
#include "ternwick/ternwick.h"

/// The colours and font styles of hits in the results window and on the text tab, and the colours
/// of search terms. Run as Geometry::CGeometryDynCreateWnd, though it binds no control.
class CConfigEntryColorDlg : public CValuePage, public Geometry::ILayout {
 public:
  static constexpr UINT IDD = IDD_COLOUR_PAGE;
  CConfigEntryColorDlg();

 protected:
  /// Raises CCP_Exception when there is no search-term manager.
  BOOL OnInitDialog() override;
  void BindMembers(CDataExchange* exchange) override;
  /// Reads the styles of the terms, and when loading shows their colours.
  void BeginExchange(CDataExchange* exchange, const StoreHandle& store) override;
  /// When saving, writes those styles that the user changed.
  void EndExchange(CDataExchange* exchange, const StoreHandle& store) override;

 private:
  void NameControls();

  std::shared_ptr<INTERNAL_IFC::ISearchTermMgr> manager_;
  std::array<std::shared_ptr<INTERNAL_IFC::ITermStyle>, TERNWICK::kTermCount> styles_;
  std::array<CConfigColorButton, TERNWICK::kTermCount> termButtons_;
};
