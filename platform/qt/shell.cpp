#include "platform/shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "platform/machine.h"
#include "platform/qt/peer.h"

bool OpenInDesktop(const std::wstring& nativePath) {
  if (GetMachine().Opens(nativePath)) return true;
  const QString path = QFileInfo(ToQt(nativePath)).absoluteFilePath();
  return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}
