#include "host/drive/drive_command.h"

#include <unistd.h>

#include <QJsonDocument>
#include <cerrno>
#include <csignal>

#include "host/drive/line_reader.h"
#include "host/drive/session.h"
#include "host/environment.h"
#include "host/exit_status.h"

namespace {

bool WriteAll(const QByteArray& bytes) {
  qsizetype done = 0;
  while (done < bytes.size()) {
    const ssize_t count = write(STDOUT_FILENO, bytes.constData() + done,
                                static_cast<std::size_t>(bytes.size() - done));
    if (count < 0 && errno != EINTR) return false;
    if (count > 0) done += count;
  }
  return true;
}

}  // namespace

int RunDrive(Environment& environment) {
  // A reader that has gone is noticed by the failed write.
  std::signal(SIGPIPE, SIG_IGN);
  bool heard = true;
  std::function<void()> giveUp;
  Session session(environment, [&](const QJsonObject& reply) {
    if (!heard) return;
    heard = WriteAll(QJsonDocument(reply).toJson(QJsonDocument::Compact) + '\n');
    if (!heard) giveUp();
  });
  giveUp = [&session] { session.TakeEnd(); };
  LineReader reader(STDIN_FILENO, [&session](std::optional<QByteArray> line) {
    if (line) {
      session.TakeLine(*line);
    } else {
      session.TakeEnd();
    }
  });
  if (!session.Run()) {
    PrintError(QStringLiteral("A window refused to be cancelled."));
    // Its event loop is still on the stack and would never return.
    _exit(kExitLibrary);
  }
  return environment.ReportSaved(environment.GetStores().SaveAll()) ? kExitDone : kExitFile;
}
