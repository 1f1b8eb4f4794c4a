#pragma once

// Requests in, replies out: the drive port without its pipes.

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <functional>
#include <memory>
#include <optional>

#include "host/drive/entry_runner.h"
#include "host/drive/idle_watch.h"
#include "host/drive/request.h"
#include "host/drive/verbs.h"
#include "host/drive/window_stack.h"

class QEventLoop;

/// Carries out one request after the other and answers each when the event queue is idle again.
/// Lives in the event loop of Run, inside which the dialogs have their own.
class Session : public QObject {
 public:
  /// `write` gets every reply and event, in order.
  Session(Environment& environment, std::function<void(const QJsonObject&)> write);

  /// Takes a request; it is carried out when those before it are answered.
  void TakeLine(const QByteArray& line);
  /// No further request will come.
  void TakeEnd();

  /// Runs until the end; false when a window refused to be cancelled.
  bool Run();

 private:
  struct Pending {
    std::function<QJsonObject()> finish;
    QString error;
    int level = 0;       // Depth of event loops in which the action was begun.
    bool acting = true;  // The action has not returned.
    bool delayed = false;
    bool activated = false;  // The top window was given the focus once.
  };

  void Schedule();
  void Next();
  void Handle(const QByteArray& line);
  void CarryOut(const Request& request);
  void Act(const Plan& plan, const std::shared_ptr<Pending>& pending);
  void OnIdle();
  bool ActivateTop() const;
  void Answer();
  void Write(QJsonObject fields);
  void WriteError(const QString& error);
  void BeginEnding(bool answer);
  void GoOnEnding();

  Environment& environment_;
  std::function<void(const QJsonObject&)> write_;
  EntryRunner entries_;
  WindowStack windows_;
  DriveContext context_;
  IdleWatch idle_;
  QList<std::optional<QByteArray>> queue_;  // An entry without a line is the end of the input.
  std::shared_ptr<Pending> pending_;
  QEventLoop* loop_ = nullptr;
  bool ending_ = false;
  bool answerEnd_ = false;
  bool ended_ = false;
  QWidget* lastClosed_ = nullptr;
  int closings_ = 0;
};
