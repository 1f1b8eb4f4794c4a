#include "foundation/marker_scan.h"

#include <cwchar>
#include <optional>

namespace Geometry {

namespace {

constexpr std::wstring_view kPrefix = L"$Geometry:";
/// The part of a button's style that is not zero for a group box, but is for a push button.
constexpr DWORD kButtonType = 0x07;

struct Marker {
  HWND window;
  CConstraint constraint;
};

std::optional<Marker> AsMarker(HWND child) {
  if (std::wcscmp(GetClassName(child), L"Button") != 0) return std::nullopt;
  const DWORD style = GetWindowLong(child, GWL_STYLE);
  if ((style & kButtonType) == 0 || (style & WS_VISIBLE) != 0) return std::nullopt;
  const std::wstring text = GetWindowText(child);
  if (!text.starts_with(kPrefix)) return std::nullopt;
  Marker marker{child, {}};
  ParseConstraint(std::wstring_view(text).substr(kPrefix.size()), marker.constraint);
  return marker;
}

}  // namespace

void BindMarkedControls(CResizeCtlList& list, const CWnd& dialog) {
  std::vector<Marker> markers;
  std::vector<HWND> others;
  for (const HWND child : GetChildWindows(dialog.m_hWnd)) {
    if (auto marker = AsMarker(child)) {
      markers.push_back(*marker);
    } else {
      others.push_back(child);
    }
  }
  for (const Marker& marker : markers) {
    const CRect around = GetChildRect(marker.window);
    for (const HWND child : others) {
      if (around.Contains(GetChildRect(child))) list.BindWindow(child, marker.constraint);
    }
  }
}

}  // namespace Geometry
