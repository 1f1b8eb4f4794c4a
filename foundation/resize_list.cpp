#include "foundation/resize_list.h"

#include <algorithm>
#include <cwchar>

namespace Geometry {

namespace {

constexpr DWORD kNoSelection = static_cast<DWORD>(-1);

HWND FindControl(const CWnd& dialog, int id) {
  const CWnd* control = id != kNoControlNumber ? dialog.GetDlgItem(id) : nullptr;
  return control != nullptr ? control->m_hWnd : nullptr;
}

/// The selection in a combo box's edit part.
DWORD EditSelection(HWND window) {
  if (std::wcscmp(GetClassName(window), L"ComboBox") != 0) return kNoSelection;
  return static_cast<DWORD>(SendMessage(window, CB_GETEDITSEL, 0, 0));
}

/// Positioning flags that lead from one rectangle to the other; both bits when they are the same.
UINT Unchanged(const CRect& now, const CRect& then) {
  return (now.TopLeft() == then.TopLeft() ? SWP_NOMOVE : 0) |
         (now.Size() == then.Size() ? SWP_NOSIZE : 0);
}

CSize Limited(CSize size, CSize maximum) {
  if (maximum.cx > 0) size.cx = std::min(size.cx, maximum.cx);
  if (maximum.cy > 0) size.cy = std::min(size.cy, maximum.cy);
  return size;
}

}  // namespace

CBindCtlToConstraint* CResizeCtlList::Find(int id, HWND window) {
  const auto found = std::ranges::find_if(bindings_, [&](const CBindCtlToConstraint& binding) {
    return binding.id == id && (id != kNoControlNumber || binding.window == window);
  });
  return found != bindings_.end() ? &*found : nullptr;
}

void CResizeCtlList::Bind(int id, HWND window, const CConstraint& constraint) {
  restoresText_ = restoresText_ || constraint.restoreText;
  if (CBindCtlToConstraint* bound = Find(id, window); bound != nullptr) {
    bound->constraint = constraint;
    return;
  }
  const CRect initial = window != nullptr ? GetChildRect(window) : CRect();
  bindings_.push_back({id, initial, constraint, window});
}

void CResizeCtlList::Bind(int id, const CConstraint& constraint, const CWnd* parent) {
  const bool hasWindow = parent != nullptr && parent->GetSafeHwnd() != nullptr;
  Bind(id, hasWindow ? FindControl(*parent, id) : nullptr, constraint);
}

void CResizeCtlList::BindWindow(HWND window, const CConstraint& constraint) {
  Bind(GetDlgCtrlID(window), window, constraint);
}

void CResizeCtlList::Unbind(int id) {
  std::erase_if(bindings_, [id](const CBindCtlToConstraint& binding) { return binding.id == id; });
}

void CResizeCtlList::UnbindAll() { bindings_.clear(); }

void CResizeCtlList::CaptureRectangles(const CWnd& dialog) {
  for (CBindCtlToConstraint& binding : bindings_) {
    if (!IsWindow(binding.window)) binding.window = FindControl(dialog, binding.id);
    if (binding.window != nullptr) binding.initial = GetChildRect(binding.window);
  }
}

void CResizeCtlList::Resize(CWnd& dialog, CSize size, CSize initialSize, CSize maximum) {
  if (size == applied_) return;
  size = Limited(size, maximum);
  if (MoveControls(dialog, size, initialSize)) {
    RestoreTexts();
    dialog.UpdateWindow();
  }
  applied_ = size;
}

bool CResizeCtlList::MoveControls(CWnd& dialog, CSize size, CSize initialSize) {
  saved_.clear();
  HDWP batch = nullptr;
  for (CBindCtlToConstraint& binding : bindings_) {
    const CRect now = GetChildRect(binding.window);
    if (now == CRect() && !IsWindow(binding.window)) {
      // The control was made again under its number, or is gone.
      binding.window = FindControl(dialog, binding.id);
      if (binding.window == nullptr) continue;
    }
    const CRect then = LayOut(binding.constraint, binding.initial, size, initialSize);
    const UINT unchanged = Unchanged(now, then);
    if (unchanged == (SWP_NOMOVE | SWP_NOSIZE)) continue;
    if (binding.constraint.restoreText) {
      saved_.push_back(
          {binding.window, EditSelection(binding.window), GetWindowText(binding.window)});
    }
    if (batch == nullptr) batch = BeginDeferWindowPos(static_cast<int>(bindings_.size()));
    batch = DeferWindowPos(batch, binding.window, then.left, then.top, then.Width(), then.Height(),
                           SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS | unchanged);
  }
  return batch != nullptr && EndDeferWindowPos(batch) != FALSE;
}

void CResizeCtlList::RestoreTexts() {
  if (!restoresText_) return;
  for (const SavedText& saved : saved_) {
    if (!IsWindow(saved.window)) continue;
    if (!saved.text.empty()) SetWindowText(saved.window, saved.text);
    if (saved.selection == kNoSelection) continue;
    SendMessage(saved.window, CB_SETEDITSEL, 0, static_cast<LPARAM>(saved.selection));
  }
}

}  // namespace Geometry
