#include "core/tree_images.h"

#include "platform/exceptions.h"
#include "resources/resource.h"

namespace {

struct Strip {
  int fromPixelsPerInch;
  int size;
  UINT resource;
};

constexpr Strip kStrips[] = {
    {281, 48, IDR_TREE_IMAGES_48},
    {192, 32, IDR_TREE_IMAGES_32},
    {144, 24, IDR_TREE_IMAGES_24},
};
constexpr Strip kSmallStrip = {0, 16, IDR_TREE_IMAGES_16};

const Strip& StripFor(int pixelsPerInch) {
  for (const Strip& strip : kStrips) {
    if (pixelsPerInch >= strip.fromPixelsPerInch) return strip;
  }
  return kSmallStrip;
}

}  // namespace

int TreeImageSize(int pixelsPerInch) { return StripFor(pixelsPerInch).size; }

UINT ImageListColours(int bitsPerPixel) {
  if (bitsPerPixel >= 32) return ILC_COLOR32;
  if (bitsPerPixel >= 24) return ILC_COLOR24;
  if (bitsPerPixel >= 16) return ILC_COLOR16;
  return ILC_COLOR8;
}

void LoadTreeImages(CImageList& images) {
  const Strip& strip = StripFor(GetScreenCaps(LOGPIXELSX));
  CBCGPPngImage image;
  if (!image.Load(strip.resource)) AfxThrowResourceException(L"The images of the tree are missing");
  const UINT colours = ImageListColours(GetScreenCaps(BITSPIXEL) * GetScreenCaps(PLANES));
  images.Create(strip.size, strip.size, colours, 0, 4);
  images.Add(image);
}
