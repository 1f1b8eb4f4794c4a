#include <QApplication>
#include <QFontMetrics>
#include <QTextOption>

#include "platform/qt/gdi_types.h"
#include "platform/qt/peer.h"

namespace {

/// "&" marks the next character, "&&" stands for one "&".
QString WithoutMarks(const QString& text) {
  QString shown;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == QLatin1Char('&') && ++i == text.size()) break;
    shown += text[i];
  }
  return shown;
}

int QtFlags(UINT format) {
  int flags = (format & DT_CENTER) != 0 ? Qt::AlignHCenter : Qt::AlignLeft;
  const bool single = (format & DT_SINGLELINE) != 0;
  flags |= single && (format & DT_VCENTER) != 0 ? Qt::AlignVCenter : Qt::AlignTop;
  if (single) {
    flags |= Qt::TextSingleLine;
  } else if ((format & DT_WORDBREAK) != 0) {
    flags |= Qt::TextWordWrap;
  }
  return flags;
}

QRect ToQtRect(const CRect& rect) { return {rect.left, rect.top, rect.Width(), rect.Height()}; }

std::unique_ptr<CDC::Implementation> BorrowPainter(QPainter& painter) {
  auto surface = std::make_unique<CDC::Implementation>();
  surface->painter = &painter;
  surface->font = painter.font();
  surface->textColour = painter.pen().color();
  return surface;
}

std::unique_ptr<CDC::Implementation> BeginPaint(CWnd* window) {
  auto surface = std::make_unique<CDC::Implementation>();
  surface->owned = std::make_unique<QPainter>();
  surface->painter = surface->owned.get();
  const Peer* peer = FindPeer(window->GetSafeHwnd());
  QWidget* widget = peer != nullptr ? peer->widget.data() : nullptr;
  if (widget != nullptr) surface->painter->begin(widget);
  surface->font = widget != nullptr ? widget->font() : QApplication::font();
  const QPalette palette = widget != nullptr ? widget->palette() : QApplication::palette();
  surface->textColour = palette.color(QPalette::WindowText);
  return surface;
}

}  // namespace

CDC::CDC(std::unique_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}

CDC::~CDC() = default;

void CDC::SelectFont(const CFont& font) { implementation_->font = ToQtFont(font); }

void CDC::SetTextColor(COLORREF colour) { implementation_->textColour = ToQt(colour); }

void CDC::DrawText(const CString& text, const CRect& rect, UINT format) {
  QPainter& painter = *implementation_->painter;
  if (!painter.isActive()) return;
  QString shown = WithoutMarks(ToQt(text.Str()));
  if ((format & DT_SINGLELINE) != 0 && (format & DT_END_ELLIPSIS) != 0) {
    shown = QFontMetrics(implementation_->font).elidedText(shown, Qt::ElideRight, rect.Width());
  }
  painter.setFont(implementation_->font);
  painter.setPen(implementation_->textColour);
  painter.drawText(ToQtRect(rect), QtFlags(format), shown);
}

void CDC::FillSolidRect(const CRect& rect, COLORREF colour) {
  if (implementation_->painter->isActive()) {
    implementation_->painter->fillRect(ToQtRect(rect), ToQt(colour));
  }
}

CSize CDC::GetTextExtent(const CString& text) const {
  const QFontMetrics metrics(implementation_->font);
  return {metrics.horizontalAdvance(WithoutMarks(ToQt(text.Str()))), metrics.height()};
}

CPaintDC::CPaintDC(CWnd* window) : CDC(BeginPaint(window)) {}

QtPainterDC::QtPainterDC(QPainter& painter) : CDC(BorrowPainter(painter)) { painter.save(); }

QtPainterDC::~QtPainterDC() { implementation_->painter->restore(); }
