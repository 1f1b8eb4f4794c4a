#include "host/drive/session.h"

#include <QApplication>
#include <QEventLoop>
#include <QThread>
#include <QWidget>

#include "host/drive/request_error.h"
#include "host/environment.h"

namespace {

// A window that is still there after so many attempts to close it never goes.
constexpr int kMostClosings = 5;

int LoopLevel() { return QThread::currentThread()->loopLevel(); }

QJsonObject ToEvent(const EntryResult& result) {
  QJsonObject event = {{"event", "returned"}, {"entry", result.entry}, {"status", result.status}};
  if (!result.error.isEmpty()) event["error"] = result.error;
  return event;
}

}  // namespace

Session::Session(Environment& environment, std::function<void(const QJsonObject&)> write)
    : environment_(environment),
      write_(std::move(write)),
      entries_(environment),
      context_{environment, entries_, windows_,
               [this](const EntryResult& result) { write_(ToEvent(result)); }},
      idle_(windows_, [this] { OnIdle(); }) {
  environment_.StayInside();
}

void Session::TakeLine(const QByteArray& line) {
  queue_ << line;
  Schedule();
}

void Session::TakeEnd() {
  queue_ << std::nullopt;
  Schedule();
}

bool Session::Run() {
  QEventLoop loop;
  loop_ = &loop;
  Schedule();
  if (!ended_) loop.exec();
  loop_ = nullptr;
  return closings_ < kMostClosings;
}

// Requests begin in an event of their own, as an action may stay inside a nested event loop for a
// long time.
void Session::Schedule() {
  QMetaObject::invokeMethod(
      this, [this] { Next(); }, Qt::QueuedConnection);
}

void Session::Next() {
  if (pending_ != nullptr || ending_ || queue_.isEmpty()) return;
  const std::optional<QByteArray> line = queue_.takeFirst();
  if (line) {
    Handle(*line);
  } else {
    BeginEnding(false);
  }
}

void Session::Handle(const QByteArray& line) {
  const ParsedRequest parsed = ParseRequest(line);
  if (!parsed.request) {
    WriteError(parsed.error);
  } else if (parsed.request->verb == QLatin1String("quit")) {
    return BeginEnding(true);
  } else {
    try {
      CarryOut(*parsed.request);
    } catch (const RequestError& refused) {
      WriteError(refused.text);
    }
  }
  Schedule();
}

void Session::CarryOut(const Request& request) {
  const Plan plan = MakePlan(context_, request);
  if (!plan.act) return Write(plan.finish());
  const auto pending = std::make_shared<Pending>();
  pending->finish = plan.finish;
  pending->level = LoopLevel();
  if (request.wait) {
    pending_ = pending;
    if (plan.delay > 0) {
      pending->delayed = true;
      QTimer::singleShot(plan.delay, this, [pending] { pending->delayed = false; });
    }
    idle_.Start();
  } else {
    Write({});
    Schedule();
  }
  Act(plan, pending);
}

void Session::Act(const Plan& plan, const std::shared_ptr<Pending>& pending) {
  try {
    plan.act();
  } catch (const RequestError& refused) {
    pending->error = refused.text;
    if (pending != pending_) PrintError(refused.text);
  }
  pending->acting = false;
}

// An action that has opened no event loop of its own is still at work, whatever the queue says.
void Session::OnIdle() {
  if (ending_) {
    QMetaObject::invokeMethod(
        this, [this] { GoOnEnding(); }, Qt::QueuedConnection);
    return;
  }
  if (pending_ == nullptr) return idle_.Stop();
  if (pending_->delayed || (pending_->acting && LoopLevel() <= pending_->level)) return;
  if (!pending_->activated && ActivateTop()) {
    pending_->activated = true;
    return;
  }
  Answer();
}

// Off screen no window manager gives the focus back to a window when one in front of it closes.
bool Session::ActivateTop() const {
  QWidget* top = windows_.Top();
  if (top == nullptr || top->isActiveWindow() || QApplication::activePopupWidget() != nullptr) {
    return false;
  }
  top->activateWindow();
  return true;
}

void Session::Answer() {
  idle_.Stop();
  const std::shared_ptr<Pending> pending = std::move(pending_);
  pending_ = nullptr;
  try {
    if (!pending->error.isEmpty()) throw RequestError(pending->error);
    Write(pending->finish ? pending->finish() : QJsonObject());
  } catch (const RequestError& refused) {
    WriteError(refused.text);
  }
  Schedule();
}

void Session::Write(QJsonObject fields) {
  fields["ok"] = true;
  write_(fields);
}

void Session::WriteError(const QString& error) { write_({{"ok", false}, {"error", error}}); }

void Session::BeginEnding(bool answer) {
  ending_ = true;
  answerEnd_ = answer;
  idle_.Start();
}

// One window at a time: cancelling one may open another.
void Session::GoOnEnding() {
  if (ended_) return;
  QWidget* top = windows_.Top();
  if (top == nullptr && entries_.Running()) return;
  closings_ = top != nullptr && top == lastClosed_ ? closings_ + 1 : 0;
  lastClosed_ = top;
  if (top != nullptr && closings_ < kMostClosings) {
    top->close();
    return;
  }
  ended_ = true;
  idle_.Stop();
  if (answerEnd_) Write({});
  loop_->quit();
}
