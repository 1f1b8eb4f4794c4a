#include "host/drive/idle_watch.h"

#include "host/drive/window_stack.h"
#include "platform/qt/path_completion.h"

namespace {

// Posted events, timers that are due and what the window system reports come in different turns.
constexpr int kQuietTurns = 4;
constexpr qint64 kLongestWaitForSuggestions = 3000;  // Milliseconds.

}  // namespace

IdleWatch::IdleWatch(WindowStack& windows, std::function<void()> idle)
    : windows_(windows), idle_(std::move(idle)) {
  windows_.Ignore(&timer_);
  timer_.setInterval(0);
  QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
}

void IdleWatch::Start() {
  quietTurns_ = 0;
  seen_ = windows_.EventCount();
  started_.start();
  timer_.start();
}

void IdleWatch::Look() {
  const quint64 count = windows_.EventCount();
  const bool waits =
      PathCompletion::IsAnyBusy() && !started_.hasExpired(kLongestWaitForSuggestions);
  quietTurns_ = count == seen_ && !waits ? quietTurns_ + 1 : 0;
  seen_ = count;
  if (quietTurns_ < kQuietTurns) return;
  quietTurns_ = 0;
  idle_();
}
