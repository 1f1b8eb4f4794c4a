#include "panterow/panterow.h"

#include "panterow/module_state.h"
#include "platform/embedded_resources.h"

namespace PANTEROW {

const AFX_MODULE_STATE& ModuleState() {
  static const CModule module(L"panterow", EmbeddedResources());
  static const AFX_MODULE_STATE state(&module);
  return state;
}

namespace {

class CSharedFonts : public CFontMgr {
 public:
  CSharedFonts() { dialogFont_.CreateDialogFont(); }
  const CFont& GetDialogFont() const override { return dialogFont_; }

 private:
  CFont dialogFont_;
};

struct ImageSize {
  int least;  ///< Logical pixels per inch from which on this size is used.
  int pixels;
};
constexpr ImageSize kImageSizes[] = {{281, 48}, {192, 32}, {144, 24}, {0, 16}};

int ImagePixels(int resolution) {
  for (const ImageSize& size : kImageSizes) {
    if (resolution >= size.least) return size.pixels;
  }
  return kImageSizes[std::size(kImageSizes) - 1].pixels;
}

const CImageList* LoadAppImages() {
  const AFX_MAINTAIN_STATE2 state(ModuleState());
  const int pixels = ImagePixels(GetScreenCaps(LOGPIXELSX));
  CBCGPPngImage strip;
  auto* const images = new CImageList;
  images->Create(pixels, pixels, ILC_COLOR32, 0, 0);
  if (strip.Load(static_cast<UINT>(pixels))) images->Add(strip);
  return images;
}

}  // namespace

void InitializeUILib(CDynLinkLibrary** slot) {
  static CDynLinkLibrary link(ModuleState().Module());
  if (slot != nullptr && *slot == nullptr) *slot = &link;
}

std::shared_ptr<CFontMgr> GetFontMgr() {
  static std::weak_ptr<CFontMgr> shared;
  std::shared_ptr<CFontMgr> manager = shared.lock();
  if (manager == nullptr) shared = manager = std::make_shared<CSharedFonts>();
  return manager;
}

const CImageList& GetAppImageList() {
  // Never freed: at the end of the process the toolkit that the images need is gone already.
  static const CImageList* const images = LoadAppImages();
  return *images;
}

}  // namespace PANTEROW
