#include <QApplication>
#include <QPalette>
#include <QScreen>

#include "platform/messages.h"
#include "platform/qt/gdi_types.h"

namespace {

struct ColourRow {
  int index;
  QPalette::ColorGroup group;
  QPalette::ColorRole role;
};
constexpr ColourRow kColours[] = {
    {COLOR_WINDOW, QPalette::Active, QPalette::Base},
    {COLOR_WINDOWTEXT, QPalette::Active, QPalette::Text},
    {COLOR_BTNFACE, QPalette::Active, QPalette::Window},
    {COLOR_BTNSHADOW, QPalette::Active, QPalette::Dark},
    {COLOR_GRAYTEXT, QPalette::Disabled, QPalette::WindowText},
    {COLOR_BTNTEXT, QPalette::Active, QPalette::ButtonText},
};

}  // namespace

COLORREF GetSysColor(int index) {
  for (const ColourRow& row : kColours) {
    if (row.index == index) return FromQt(QApplication::palette().color(row.group, row.role));
  }
  return RGB(0, 0, 0);
}

int GetScreenCaps(int index) {
  const QWidget* active = QApplication::activeWindow();
  const QScreen* screen = active != nullptr ? active->screen() : QGuiApplication::primaryScreen();
  if (screen == nullptr) return 0;
  switch (index) {
    case LOGPIXELSX:
      return qRound(screen->logicalDotsPerInchX());
    case BITSPIXEL:
      return screen->depth();
    case PLANES:
      return 1;
    default:
      return 0;
  }
}
