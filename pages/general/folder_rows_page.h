#pragma once

// The frame of pages whose rows name folders. An edit holds a path in the form of the application's
// folders, with placeholders, or several paths with ";" between them.

#include "pages/general/edit_rows_page.h"

class CFolderRowsPage : public CEditRowsPage {
 protected:
  /// `layout` has the constraints of the controls that belong to no row; both tables outlive the
  /// page.
  CFolderRowsPage(UINT templateId, const PageDescription& page, std::span<const EditRow> rows,
                  std::span<const Geometry::ControlConstraint> layout = {});

  /// Picks one folder, starting where the edit's text leads.
  void OnBrowse(CEdit& edit) override;
  /// Opens every path that the edit names with the desktop's own program.
  void OnAction(const CEdit& edit) override;
};
