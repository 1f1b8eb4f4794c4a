// The exported function of the dialog of the text cache.

#include "dialogs/cache_settings.h"
#include "foundation/entry_frame.h"

namespace BRISQUEL {

Status OpenCacheSettings(const StoreHandle& store) {
  using Dialog = Geometry::CGeometryDynCreateWnd<CCacheSettings>;
  return RunEntryPoint(UiLibrary::kLeave, store, [&] { return Dialog(store); });
}

}  // namespace BRISQUEL
