#pragma once

// The frame of pages with rows of an edit and two image buttons: one that browses for what the edit
// names, and one that does something with it.

#include "controls/semi_button.h"
#include "core/value_page.h"
#include "foundation/geometry.h"

/// The controls of one row. The edit widens with the page, the buttons stay at its right edge.
struct EditRow {
  int edit = 0;
  int browse = 0;
  int action = 0;
};

/// What a page says about its rows. Everything here refers to constants that outlive the page.
struct EditRowsDescription {
  std::span<const EditRow> rows{};
  int actionImage = 0;  ///< Of the application image list.
  /// Constraints of the controls that belong to no row.
  std::span<const Geometry::ControlConstraint> layout{};
};

/// Run as Geometry::CGeometryDynCreateWnd of the derived class.
class CEditRowsPage : public CValuePage, public Geometry::ILayout {
 protected:
  CEditRowsPage(UINT templateId, const PageDescription& page, const EditRowsDescription& rows);

  BOOL OnInitDialog() override;
  void BindMembers(CDataExchange* exchange) override;
  /// A click on a button of a row; what it raises is shown to the user.
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

  /// Lets the user browse for what the edit names, and fills it with the choice.
  virtual void OnBrowse(CEdit& edit) = 0;
  /// Does what the row's other button stands for.
  virtual void OnAction(const CEdit& edit) = 0;

 private:
  struct Controls {
    CBCGPEdit edit;
    CSemiButton browse;
    CSemiButton action;
  };
  bool OnClicked(int id);
  void BindRowsToLayout();

  EditRowsDescription description_;
  std::vector<Controls> rows_;
};
