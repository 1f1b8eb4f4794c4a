#pragma once

// What stands behind fonts, surfaces, images and image lists. Private to the platform layer and to
// those that are allowed to see Qt.

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <memory>
#include <vector>

#include "platform/gdi.h"

struct CFont::Implementation {
  QFont font;
};

struct CDC::Implementation {
  /// Set where the surface has its own painter, as in WM_PAINT.
  std::unique_ptr<QPainter> owned;
  /// The painter drawn with; not active where the window is gone, and nothing is drawn then.
  QPainter* painter = nullptr;
  QFont font;
  QColor textColour;
};

struct CBCGPPngImage::Implementation {
  QImage image;
};

struct CImageList::Implementation {
  QSize size;
  std::vector<QPixmap> images;
};

/// A surface on a painter that someone else began, such as the one that draws a window's
/// background. The painter must outlive the surface and gets its own state back afterwards.
class QtPainterDC : public CDC {
 public:
  explicit QtPainterDC(QPainter& painter);
  ~QtPainterDC() override;
};

QColor ToQt(COLORREF colour);
COLORREF FromQt(const QColor& colour);
