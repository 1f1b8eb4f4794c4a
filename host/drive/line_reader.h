#pragma once

// Lines of a pipe or file as they come in.

#include <QByteArray>
#include <QSocketNotifier>
#include <functional>
#include <optional>

/// Hands over each line without its line end, then nothing at the end of the input. A last line
/// that has no line end counts.
class LineReader {
 public:
  using Take = std::function<void(std::optional<QByteArray>)>;
  LineReader(int descriptor, Take take);

 private:
  void Read();
  void TakeWholeLines();

  int descriptor_;
  Take take_;
  QByteArray buffer_;
  QSocketNotifier notifier_;
};
