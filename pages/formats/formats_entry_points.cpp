// The exported functions of the dialogs that choose formats.

#include "foundation/catch_chain.h"
#include "foundation/entry_frame.h"
#include "pages/formats/formats_compressed.h"
#include "pages/formats/formats_document.h"
#include "pages/formats/formats_ocr.h"

namespace {

constexpr const wchar_t* kSource = L"Brisquel/FormatsEntryPoints";

/// A dialog whose set-up may fail: the user is told, and it counts as not confirmed.
template <class T>
class CReportedDialog : public Geometry::CGeometryWnd<T> {
 public:
  using Geometry::CGeometryWnd<T>::CGeometryWnd;

  INT_PTR DoModal() override {
    INT_PTR result = -1;
    RunGuarded([&] { result = Geometry::CGeometryWnd<T>::DoModal(); }, MakeMsgBoxDisplay, CString(),
               kSource);
    return result;
  }
};

template <class T>
BRISQUEL::Status Run(const BRISQUEL::StoreHandle& store) {
  return RunEntryPoint(UiLibrary::kLeave, store, [&] { return CReportedDialog<T>(store); });
}

}  // namespace

namespace BRISQUEL {

Status OpenDocumentSettings(const StoreHandle& store) { return Run<CFormatsDocument>(store); }

Status OpenArchiveSettings(const StoreHandle& store) { return Run<CFormatsCompressed>(store); }

Status OpenOCRSettings(const StoreHandle& store) { return Run<CFormatsOCR>(store); }

}  // namespace BRISQUEL
