#include "core/page_host.h"

void AdoptPage(CDialog& page) {
  if (page.GetSafeHwnd() == nullptr) return;
  page.ModifyStyle(page.GetStyle(), WS_CHILD | WS_CLIPCHILDREN);
  page.ModifyStyleEx(page.GetExStyle(), WS_EX_CONTROLPARENT);
}

void PlacePage(CDialog& page, const CWnd& frame, const CWnd& host) {
  if (page.GetSafeHwnd() == nullptr || frame.GetSafeHwnd() == nullptr) return;
  CRect rect;
  frame.GetWindowRect(rect);
  host.ScreenToClient(rect);
  page.SetWindowPos(rect.left, rect.top, rect.Width(), rect.Height(),
                    SWP_NOZORDER | SWP_NOACTIVATE);
  page.ShowWindow(SW_SHOW);
}
