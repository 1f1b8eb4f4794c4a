#pragma once

// The bindings of one dialog's controls to their constraints.

#include <string>
#include <vector>

#include "foundation/constraint.h"
#include "platform/wnd.h"

namespace Geometry {

/// The number of a control that has none. Such controls are told apart by their window.
constexpr int kNoControlNumber = -1;

struct CBindCtlToConstraint {
  int id = 0;
  CRect initial;  ///< In the dialog's client coordinates.
  CConstraint constraint;
  HWND window = nullptr;  ///< The control, once it was found.
};

class CResizeCtlList {
 public:
  /// Binds a control, or gives a bound one another constraint and keeps its first rectangle. With a
  /// `parent` that has a window the control's present rectangle is its first one.
  void Bind(int id, const CConstraint& constraint, const CWnd* parent);
  /// The same for a child window at hand, with a number or without.
  void BindWindow(HWND window, const CConstraint& constraint);
  void Unbind(int id);
  void UnbindAll();

  /// Makes the present rectangle of every control its first one.
  void CaptureRectangles(const CWnd& dialog);

  /// Lays all controls out for a client area of `size`, limited by the components of `maximum` that
  /// are greater than 0, in one batch that touches only controls whose rectangle changes. Nothing
  /// when the size is the one applied last.
  void Resize(CWnd& dialog, CSize size, CSize initialSize, CSize maximum);

 private:
  struct SavedText {
    HWND window = nullptr;
    DWORD selection = 0;
    std::wstring text;
  };

  CBindCtlToConstraint* Find(int id, HWND window);
  void Bind(int id, HWND window, const CConstraint& constraint);
  bool MoveControls(CWnd& dialog, CSize size, CSize initialSize);
  void RestoreTexts();

  std::vector<CBindCtlToConstraint> bindings_;
  std::vector<SavedText> saved_;  ///< Kept between calls so that a size message allocates nothing.
  CSize applied_{-1, -1};
  bool restoresText_ = false;
};

}  // namespace Geometry
