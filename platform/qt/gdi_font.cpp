#include <QApplication>
#include <QFontMetrics>
#include <algorithm>

#include "platform/qt/gdi_types.h"
#include "platform/qt/peer.h"

namespace {

constexpr std::int64_t kMaxPixels = 1000;

/// Qt measures fonts by their characters; the cell is found by trying.
void SetCellHeight(QFont& font, int height) {
  for (int pixels = height; pixels >= 1; --pixels) {
    font.setPixelSize(pixels);
    if (QFontMetrics(font).height() <= height) return;
  }
}

}  // namespace

CFont::CFont() = default;
CFont::~CFont() = default;
CFont::CFont(const CFont&) = default;
CFont& CFont::operator=(const CFont&) = default;
CFont::CFont(std::shared_ptr<const Implementation> implementation)
    : implementation_(std::move(implementation)) {}

BOOL CFont::CreateFontIndirect(const LOGFONTW& description) {
  QFont font = QApplication::font();
  if (!description.lfFaceName.empty()) {
    font.setFamilies({ToQt(description.lfFaceName), font.family()});
  }
  font.setWeight(static_cast<QFont::Weight>(std::clamp<LONG>(description.lfWeight, 1, 1000)));
  if (description.lfQuality == ANTIALIASED_QUALITY) {
    font.setStyleStrategy(QFont::PreferAntialias);
  }
  const std::int64_t height = description.lfHeight;
  if (height > 0) SetCellHeight(font, static_cast<int>(std::min(height, kMaxPixels)));
  if (height < 0) font.setPixelSize(static_cast<int>(std::min(-height, kMaxPixels)));
  *this = FromQtFont(font);
  return TRUE;
}

BOOL CFont::CreateDialogFont() {
  *this = FromQtFont(QApplication::font());
  return TRUE;
}

int CFont::GetHeight() const { return QFontMetrics(ToQtFont(*this)).height(); }

CFont FromQtFont(const QFont& font) {
  return CFont(std::make_shared<const CFont::Implementation>(CFont::Implementation{font}));
}
