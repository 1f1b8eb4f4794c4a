#include "foundation/geometry.h"

namespace Geometry {

void BindControls(ILayout& layout, CWnd* dialog, std::span<const ControlConstraint> table) {
  for (const ControlConstraint& row : table) {
    CConstraint constraint;
    ParseConstraint(row.text, constraint);
    layout.BindControl(row.id, constraint, dialog);
  }
}

}  // namespace Geometry
