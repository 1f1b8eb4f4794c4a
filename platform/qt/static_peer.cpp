#include "platform/qt/static_peer.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include "platform/bcg.h"
#include "platform/qt/control_parts.h"

namespace {

DWORD Type(DWORD style) { return style & SS_TYPEMASK; }

ControlKind KindOf(DWORD style) {
  switch (Type(style)) {
    case SS_BITMAP:
      return ControlKind::Picture;
    case SS_BLACKFRAME:
    case SS_ETCHEDHORZ:
      return ControlKind::Frame;
    default:
      return ControlKind::Label;
  }
}

int Alignment(DWORD style) {
  const int vertical = (style & SS_CENTERIMAGE) != 0 ? Qt::AlignVCenter : Qt::AlignTop;
  if (Type(style) == SS_CENTER) return vertical | Qt::AlignHCenter;
  if (Type(style) == SS_RIGHT) return vertical | Qt::AlignRight;
  return vertical | Qt::AlignLeft;
}

/// A label that shows mnemonics with or without a buddy and keeps to what its style says.
class LabelWidget final : public QLabel {
 public:
  LabelWidget(DWORD style, QWidget* parent) : QLabel(parent), style_(style) {
    setTextFormat(Qt::PlainText);
    if (KindOf(style) == ControlKind::Frame) setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (!pixmap(Qt::ReturnByValue).isNull()) return PaintPicture(painter);
    switch (Type(style_)) {
      case SS_BITMAP:
        return;
      case SS_BLACKFRAME:
        return PaintFrame(painter);
      case SS_ETCHEDHORZ:
        return PaintRule(painter);
      default:
        return PaintText(painter);
    }
  }

  void mousePressEvent(QMouseEvent* event) override {
    auto* peer = PeerOf<StaticPeer>(this);
    if ((style_ & SS_NOTIFY) == 0 || event->button() != Qt::LeftButton || peer == nullptr) {
      return QLabel::mousePressEvent(event);
    }
    event->accept();
    NotifyCommand(*peer, STN_CLICKED);
  }

 private:
  void PaintPicture(QPainter& painter) {
    const QPixmap picture = pixmap(Qt::ReturnByValue);
    const bool centred = (style_ & SS_CENTERIMAGE) != 0;
    QRect place(QPoint(), picture.deviceIndependentSize().toSize());
    if (centred) place.moveCenter(rect().center());
    painter.drawPixmap(place.topLeft(), picture);
  }

  void PaintText(QPainter& painter) {
    int flags = Alignment(style_) | Qt::TextShowMnemonic;
    const bool severalLines = height() >= 2 * fontMetrics().lineSpacing();
    if (severalLines) flags |= Qt::TextWordWrap;
    style()->drawItemText(&painter, rect(), int(flags), palette(), isEnabled(), text(),
                          foregroundRole());
  }

  void PaintFrame(QPainter& painter) {
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }

  void PaintRule(QPainter& painter) {
    QStyleOptionFrame option;
    option.initFrom(this);
    option.rect = QRect(0, 0, width(), 2);
    option.frameShape = QFrame::HLine;
    option.state |= QStyle::State_Sunken;
    option.lineWidth = 1;
    style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, this);
  }

  DWORD style_;
};

}  // namespace

StaticPeer::StaticPeer(DWORD controlStyle, const std::wstring& initialText, QWidget* host) {
  style = controlStyle;
  widget = new LabelWidget(controlStyle, host);
  kind = KindOf(controlStyle);
  StaticPeer::SetText(initialText);
}

void StaticPeer::SetText(const std::wstring& newText) {
  text = newText;
  if (kind == ControlKind::Picture) return;
  QString shown = ToQt(newText);
  if ((style & SS_NOPREFIX) != 0) shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
  Label().setText(shown);
}

void StaticPeer::SetPicture(const QPixmap& picture) {
  // Drawn for 96 logical pixels per inch; it grows with the texts around it.
  const QSize size(globalUtils.ScaleByDPI(picture.width()),
                   globalUtils.ScaleByDPI(picture.height()));
  Label().setPixmap(size == picture.size()
                        ? picture
                        : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  SetPeerKind(*this, ControlKind::Picture);
}
