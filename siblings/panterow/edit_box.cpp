#include "panterow/edit_box.h"

namespace PANTEROW {

HWND CreateEditBox(CWnd* parent, const CRect& rect, int id) {
  constexpr DWORD kStyle =
      WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_VSCROLL | WS_HSCROLL | ES_MULTILINE;
  return CreateWindowChild(L"Edit", CString(), kStyle, rect, parent, id);
}

}  // namespace PANTEROW
