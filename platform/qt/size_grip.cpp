#include "platform/qt/size_grip.h"

#include <QEvent>
#include <QSizeGrip>

namespace {

class CornerGrip final : public QSizeGrip {
 public:
  explicit CornerGrip(QWidget& window) : QSizeGrip(&window) {
    setObjectName(QStringLiteral("sizeGrip"));
    resize(sizeHint());
    window.installEventFilter(this);
    lower();  // A button in the corner stays whole.
    Place();
    show();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == parent() && event->type() == QEvent::Resize) Place();
    return QSizeGrip::eventFilter(object, event);
  }

 private:
  void Place() {
    const QRect area = parentWidget()->rect();
    const bool mirrored = parentWidget()->isRightToLeft();
    move(mirrored ? 0 : area.width() - width(), area.height() - height());
  }
};

}  // namespace

void SetSizeGrip(QWidget& window, bool shown) {
  auto* grip = window.findChild<QSizeGrip*>(QStringLiteral("sizeGrip"), Qt::FindDirectChildrenOnly);
  if (shown && grip == nullptr) {
    new CornerGrip(window);  // Owned by the window.
  } else if (!shown) {
    delete grip;
  }
}
