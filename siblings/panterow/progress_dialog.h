#pragma once

// The dialog that long tasks run in.

#include <memory>

#include "ifc/work_progress.h"

class CWnd;

namespace PANTEROW {

/// A window object of this library; what it can do is found by a run-time cast to an interface.
class CWindowObject {
 public:
  virtual ~CWindowObject() = default;
};

/// Makes a dialog that can run one task after the other (INTERNAL_IFC::IWorkProgressDialog).
/// `owner` may be null, which is the active window, and must outlive the dialog otherwise.
///
/// A task polls (IsCancelled) or reports often: that is when the dialog is painted and Cancel is
/// heard, at most forty times a second. It appears at a poll after a twentieth of a second, so that
/// a short task shows none, and closes as soon as the task returns. While it is open it is modal.
/// Reports move a bar; the text below the title is the one that the task sets.
std::unique_ptr<CWindowObject> CreateProgressDialog(CWnd* owner);

}  // namespace PANTEROW
