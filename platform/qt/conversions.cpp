#include <QApplication>

#include "platform/qt/gdi_types.h"
#include "platform/qt/peer.h"

QString ToQt(std::wstring_view text) {
  // The detour replaces what is no code point, which Qt's own conversion would pass on.
  const std::string bytes = ToUtf8(text);
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()))
      .replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::wstring FromQt(const QString& text) { return text.toStdWString(); }

QFont ToQtFont(const CFont& font) {
  return font.IsEmpty() ? QApplication::font() : font.Get()->font;
}

QColor ToQt(COLORREF colour) { return {GetRValue(colour), GetGValue(colour), GetBValue(colour)}; }

COLORREF FromQt(const QColor& colour) {
  return RGB(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
             static_cast<unsigned>(colour.blue()));
}
