#pragma once

// Tells when the event queue has run dry.

#include <QElapsedTimer>
#include <QTimer>
#include <functional>

class WindowStack;

/// Once started, calls back when several turns of the event loop in a row brought no event, and no
/// suggestions are on their way; those of a folder that hangs are not waited for very long. Goes on
/// calling at every such moment until stopped. Works inside any nested event loop.
class IdleWatch {
 public:
  IdleWatch(WindowStack& windows, std::function<void()> idle);
  void Start();
  void Stop() { timer_.stop(); }

 private:
  void Look();

  WindowStack& windows_;
  std::function<void()> idle_;
  QTimer timer_;
  QElapsedTimer started_;
  quint64 seen_ = 0;
  int quietTurns_ = 0;
};
