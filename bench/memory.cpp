// Peak resident size of the host program after every page was visited, beside that of a program
// that shows one empty Qt dialog.

#include <QtWidgets>
#include <cstdio>
#include <functional>

#include "platform/application.h"

namespace {

/// Kilobytes; 0 when the process is gone.
long PeakResidentSize(qint64 process) {
  QFile status(QString("/proc/%1/status").arg(process));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmHWM:")) return line.mid(6).trimmed().split(' ').first().toLong();
  }
  return 0;
}

/// The peak of a child program after `use` has used it.
long MeasureChild(const QString& program, const QStringList& arguments,
                  const std::function<void(QProcess&)>& use) {
  QProcess child;
  child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  child.start(program, arguments);
  if (!child.waitForStarted()) qFatal("%s cannot be started", qPrintable(program));
  use(child);
  const long peak = PeakResidentSize(child.processId());
  child.closeWriteChannel();
  child.waitForFinished();
  return peak;
}

QByteArray Ask(QProcess& host, const QByteArray& request) {
  host.write(request + "\n");
  while (!host.canReadLine()) {
    if (!host.waitForReadyRead()) qFatal("the host program ended early");
  }
  return host.readLine();
}

/// Visits all nodes of the tree; returns how many there are.
int VisitEveryPage(QProcess& host) {
  Ask(host, R"({"do":"open","entry":"OpenConfigDialog"})");
  const QJsonObject tree = QJsonDocument::fromJson(Ask(host, R"({"do":"tree"})")).object();
  const int rows = int(tree["nodes"].toArray().size());
  for (int row = 0; row < rows; ++row) {
    const QByteArray reply = Ask(host, R"({"do":"select","row":)" + QByteArray::number(row) + "}");
    if (!reply.contains(R"("ok":true)")) qFatal("%s", reply.constData());
  }
  return rows;
}

int ShowEmptyDialog() {
  QDialog dialog;
  dialog.resize(733, 438);
  dialog.show();
  QCoreApplication::processEvents();
  std::printf("shown\n");
  std::fflush(stdout);
  std::getchar();
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  ToolkitApplication toolkit(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.contains("--empty-dialog")) return ShowEmptyDialog();

  QTemporaryDir data;
  int pages = 0;
  const long host = MeasureChild(HOST_PROGRAM, {"drive", "--data", data.path()},
                                 [&](QProcess& child) { pages = VisitEveryPage(child); });
  const long empty = MeasureChild(QCoreApplication::applicationFilePath(), {"--empty-dialog"},
                                  [](QProcess& child) { child.waitForReadyRead(); });
  std::printf(
      "\nPeak resident size: host after %d pages %.1f MB, empty dialog %.1f MB, ratio %.2f\n",
      pages, double(host) / 1024, double(empty) / 1024, double(host) / double(empty));
  return 0;
}
