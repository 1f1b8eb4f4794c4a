#include "host/drive/window_stack.h"

#include <QApplication>
#include <QEvent>
#include <QVariant>
#include <QWidget>

namespace {

bool IsWindowOfItsOwn(const QWidget* widget) {
  if (IsCompletion(widget)) return true;
  return widget->isWindow() && widget->windowType() != Qt::ToolTip &&
         widget->windowType() != Qt::Desktop && !widget->inherits("QComboBoxPrivateContainer");
}

}  // namespace

bool IsCompletion(const QWidget* window) {
  return window->property("windowKind").toString() == QLatin1String("completion");
}

WindowStack::WindowStack() { QCoreApplication::instance()->installEventFilter(this); }

WindowStack::~WindowStack() { QCoreApplication::instance()->removeEventFilter(this); }

QList<QWidget*> WindowStack::All() const {
  QList<QWidget*> windows;
  for (auto window = shown_.crbegin(); window != shown_.crend(); ++window) {
    if (*window != nullptr && (*window)->isVisible()) windows << *window;
  }
  return windows;
}

QWidget* WindowStack::Top() const {
  for (QWidget* window : All()) {
    if (!IsCompletion(window)) return window;
  }
  return nullptr;
}

QWidget* WindowStack::CoverOf(const QWidget* window) const {
  for (QWidget* other : All()) {
    if (other == window) return nullptr;
    if (other->isModal() || other->windowType() == Qt::Popup) return other;
  }
  return nullptr;
}

bool WindowStack::eventFilter(QObject* object, QEvent* event) {
  if (object != ignored_) ++eventCount_;
  if (event->type() != QEvent::Show && event->type() != QEvent::Hide) return false;
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || !IsWindowOfItsOwn(widget)) return false;
  shown_.removeAll(nullptr);
  shown_.removeAll(widget);
  if (event->type() == QEvent::Show) shown_ << widget;
  return false;
}
