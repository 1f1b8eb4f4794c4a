#pragma once

// The windows that are open, as a person sees them stacked.

#include <QList>
#include <QObject>
#include <QPointer>

class QWidget;

/// Whether the window is a list of suggestions for what a person types.
bool IsCompletion(const QWidget* window);

/// Watches all events of the process: keeps the open windows in the order in which they were shown,
/// and counts the events. What only belongs to a control, such as a dropped list or a tooltip, is
/// no window.
class WindowStack : public QObject {
 public:
  WindowStack();
  ~WindowStack() override;

  /// Top first.
  QList<QWidget*> All() const;
  /// The window that has the keyboard, as a list of suggestions never does; null when none is open.
  QWidget* Top() const;
  /// The window that keeps a person away from `window`; null when there is none.
  QWidget* CoverOf(const QWidget* window) const;

  /// Events delivered so far, those of the watching itself aside.
  quint64 EventCount() const { return eventCount_; }
  /// Events of this object are not counted.
  void Ignore(const QObject* object) { ignored_ = object; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QList<QPointer<QWidget>> shown_;
  quint64 eventCount_ = 0;
  const QObject* ignored_ = nullptr;
};
