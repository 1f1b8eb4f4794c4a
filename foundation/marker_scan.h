#pragma once

// Constraints placed in a dialog template by invisible group boxes.

#include "foundation/resize_list.h"

namespace Geometry {

/// Binds every child that lies wholly inside a marker with the marker's constraint. A marker is an
/// invisible group box (or any button that is no push button) whose text is "$Geometry:" and a
/// constraint text. Markers count in child order; a later one overrides an earlier one.
void BindMarkedControls(CResizeCtlList& list, const CWnd& dialog);

}  // namespace Geometry
