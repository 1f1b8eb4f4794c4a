#include "platform/application.h"

#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QFontDatabase>
#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QWheelEvent>
#include <clocale>

#include "platform/qt/last_input.h"

namespace {

constexpr int kOffscreenPoints = 9;

LastInput lastInput;

bool IsSet(const char* variable) { return !qEnvironmentVariableIsEmpty(variable); }

/// What has to be decided before the toolkit starts.
void PrepareEnvironment(int dpi) {
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  for (const char* factor : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"}) qunsetenv(factor);
  if (dpi != 0) qputenv("QT_FONT_DPI", QByteArray::number(dpi));
  if (!IsSet("DISPLAY") && !IsSet("WAYLAND_DISPLAY") && !IsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
}

/// Without a desktop there is no user's taste: everything looks the same on every machine.
void UseNeutralLook() {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setPalette(QApplication::style()->standardPalette());
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  font.setFamilies({QStringLiteral("DejaVu Sans"), font.family()});
  font.setPointSize(kOffscreenPoints);
  QApplication::setFont(font);
}

bool HasFocusInside(const QWidget& widget) {
  return widget.hasFocus() || widget.isAncestorOf(QApplication::focusWidget());
}

/// Sees every event of the process first.
class InputFilter : public QObject {
 public:
  bool eventFilter(QObject* object, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress:
        lastInput.byKey = true;
        return false;
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
        lastInput = {false, static_cast<QMouseEvent*>(event)->globalPosition().toPoint()};
        return false;
      case QEvent::Polish:
        RefuseFocusByWheel(object);
        return false;
      case QEvent::Wheel:
        return LeaveWheelToParent(object, event);
      default:
        return false;
    }
  }

 private:
  static bool IsGuarded(QObject* object) {
    return qobject_cast<QComboBox*>(object) != nullptr || qobject_cast<QSlider*>(object) != nullptr;
  }

  /// The toolkit would give some controls the focus by the wheel itself.
  static void RefuseFocusByWheel(QObject* object) {
    if (!IsGuarded(object)) return;
    auto* widget = static_cast<QWidget*>(object);
    if (widget->focusPolicy() == Qt::WheelFocus) widget->setFocusPolicy(Qt::StrongFocus);
  }

  /// A person who scrolls a page must not change the controls that pass under the pointer.
  static bool LeaveWheelToParent(QObject* object, QEvent* event) {
    if (!IsGuarded(object) || HasFocusInside(*static_cast<QWidget*>(object))) return false;
    HandOn(*static_cast<QWidget*>(object), *static_cast<QWheelEvent*>(event));
    event->accept();
    return true;
  }

  /// Offers the event to the parents, up to the first one that takes it.
  static void HandOn(const QWidget& from, const QWheelEvent& wheel) {
    const QWidget* below = &from;
    bool taken = false;
    while (!taken && !below->isWindow() && below->parentWidget() != nullptr) {
      QWidget* parent = below->parentWidget();
      QWheelEvent copy(parent->mapFromGlobal(wheel.globalPosition()), wheel.globalPosition(),
                       wheel.pixelDelta(), wheel.angleDelta(), wheel.buttons(), wheel.modifiers(),
                       wheel.phase(), wheel.inverted());
      QCoreApplication::sendEvent(parent, &copy);
      taken = copy.isAccepted();
      below = parent;
    }
  }
};

}  // namespace

const LastInput& GetLastInput() { return lastInput; }

struct ToolkitApplication::Implementation {
  Implementation(int& argc, char** argv) : application(argc, argv) {}

  QApplication application;
  InputFilter filter;
};

ToolkitApplication::ToolkitApplication(int& argc, char** argv, int dpi) {
  PrepareEnvironment(dpi);
  implementation_ = std::make_unique<Implementation>(argc, argv);
  // The toolkit adopts the user's locale; files keep their decimal point all the same.
  std::setlocale(LC_NUMERIC, "C");
  // Dialogs follow each other; the end of one is not the end of the program.
  QApplication::setQuitOnLastWindowClosed(false);
  if (QGuiApplication::platformName() == QLatin1String("offscreen")) UseNeutralLook();
  implementation_->application.installEventFilter(&implementation_->filter);
}

ToolkitApplication::~ToolkitApplication() = default;

void ToolkitApplication::ProcessEvents() {
  QCoreApplication::processEvents();
  // Widgets that were given up outside any event loop are only deleted inside one.
  QEventLoop turn;
  QMetaObject::invokeMethod(&turn, &QEventLoop::quit, Qt::QueuedConnection);
  turn.exec();
}
