#include "platform/module.h"
#include "platform/qt/gdi_types.h"

CBCGPPngImage::CBCGPPngImage() = default;
CBCGPPngImage::~CBCGPPngImage() = default;

BOOL CBCGPPngImage::Load(UINT id) { return LoadFromMemory(AfxLoadResource(L"PNG", id)); }

BOOL CBCGPPngImage::LoadFromMemory(std::span<const std::byte> bytes) {
  QImage image;
  const auto* data = reinterpret_cast<const uchar*>(bytes.data());
  if (!image.loadFromData(data, static_cast<int>(bytes.size()), "PNG")) return FALSE;
  // Lengths that an image may state about itself have no say in how large it is shown.
  image.setDevicePixelRatio(1);
  implementation_ = std::make_unique<Implementation>(Implementation{image});
  return TRUE;
}

CSize CBCGPPngImage::GetSize() const {
  if (implementation_ == nullptr) return {0, 0};
  return {implementation_->image.width(), implementation_->image.height()};
}

CImageList::CImageList() = default;
CImageList::~CImageList() = default;

BOOL CImageList::Create(int cx, int cy, UINT, int initial, int) {
  if (cx <= 0 || cy <= 0) return FALSE;
  implementation_ = std::make_unique<Implementation>(Implementation{QSize(cx, cy), {}});
  implementation_->images.reserve(static_cast<std::size_t>(qBound(0, initial, 1000)));
  return TRUE;
}

int CImageList::Add(const CBCGPPngImage& strip) {
  if (implementation_ == nullptr || strip.Get() == nullptr) return -1;
  const QSize size = implementation_->size;
  const QImage& image = strip.Get()->image;
  const int count = image.width() / size.width();
  if (count == 0) return -1;
  const int first = GetImageCount();
  for (int i = 0; i < count; ++i) {
    implementation_->images.push_back(
        QPixmap::fromImage(image.copy(QRect(QPoint(i * size.width(), 0), size))));
  }
  return first;
}

int CImageList::GetImageCount() const {
  return implementation_ != nullptr ? static_cast<int>(implementation_->images.size()) : 0;
}

CSize CImageList::GetImageSize() const {
  if (implementation_ == nullptr) return {0, 0};
  return {implementation_->size.width(), implementation_->size.height()};
}
