#include "platform/qt/posted_messages.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

QEvent::Type PostedMessageType() {
  static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
  return type;
}

class PostedMessage : public QEvent {
 public:
  PostedMessage(HWND window, const MessageArguments& arguments)
      : QEvent(PostedMessageType()), window_(window), arguments_(arguments) {}

  void Deliver() const {
    SendFromToolkit(window_, arguments_.message, arguments_.wParam, arguments_.lParam);
  }

 private:
  HWND window_;
  MessageArguments arguments_;
};

class MessageReceiver : public QObject {
 public:
  using QObject::QObject;
  bool event(QEvent* event) override {
    if (event->type() != PostedMessageType()) return QObject::event(event);
    static_cast<PostedMessage*>(event)->Deliver();
    return true;
  }
};

MessageReceiver* Receiver() {
  // Belongs to the application object, and is made anew for the next one.
  static QPointer<MessageReceiver> receiver;
  if (receiver == nullptr) receiver = new MessageReceiver(QCoreApplication::instance());
  return receiver;
}

}  // namespace

void QueueMessage(HWND window, const MessageArguments& arguments) {
  QCoreApplication::postEvent(Receiver(), new PostedMessage(window, arguments));
}
