#include "host/drive/line_reader.h"

#include <unistd.h>

#include <cerrno>

namespace {

constexpr int kChunk = 64 * 1024;
// A longer line is no request; it is handed over in pieces, each of which is refused.
constexpr int kLongestLine = 16 * 1024 * 1024;

}  // namespace

LineReader::LineReader(int descriptor, Take take)
    : descriptor_(descriptor),
      take_(std::move(take)),
      notifier_(descriptor, QSocketNotifier::Read) {
  QObject::connect(&notifier_, &QSocketNotifier::activated, [this] { Read(); });
}

// Called only when there is something to read, so that it never blocks.
void LineReader::Read() {
  QByteArray chunk(kChunk, Qt::Uninitialized);
  const ssize_t count = read(descriptor_, chunk.data(), kChunk);
  if (count < 0 && (errno == EINTR || errno == EAGAIN)) return;
  if (count > 0) {
    buffer_ += chunk.left(count);
    return TakeWholeLines();
  }
  notifier_.setEnabled(false);
  if (!buffer_.isEmpty()) take_(buffer_);
  take_(std::nullopt);
}

void LineReader::TakeWholeLines() {
  qsizetype start = 0;
  for (qsizetype end = buffer_.indexOf('\n'); end >= 0; end = buffer_.indexOf('\n', start)) {
    take_(buffer_.mid(start, end - start));
    start = end + 1;
  }
  buffer_.remove(0, start);
  if (buffer_.size() > kLongestLine) take_(std::exchange(buffer_, {}));
}
