#include "host/folders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString ProgramFolder() {
  return QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).absolutePath();
}

QString BesideProgram(const char* relative) {
  return QDir::cleanPath(ProgramFolder() + '/' + QLatin1String(relative));
}

}  // namespace

QString DataFolder(const QString& wanted) {
  if (!wanted.isEmpty()) return QDir(wanted).absolutePath();
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/quarrow";
}

QString LanguageFolder(const QString& wanted) {
  if (!wanted.isEmpty()) return QDir(wanted).absolutePath();
  const char* const kInstalled = "../share/quarrow/lang";
  for (const char* candidate : {kInstalled, "lang", "../../lang", "../../../lang"}) {
    const QString folder = BesideProgram(candidate);
    if (QFileInfo::exists(folder + "/lang-en.xml")) return folder;
  }
  return BesideProgram(kInstalled);
}

QString ApplicationFolder(const QString& dataFolder) {
  if (QFileInfo::exists(dataFolder + "/master.revert.xml")) return dataFolder;
  return BesideProgram("../share/quarrow");
}

QStringList LibraryCandidates() {
  return {BesideProgram("libbrisquel.so"), BesideProgram("../lib/libbrisquel.so"),
          BesideProgram("../lib/quarrow/libbrisquel.so")};
}

std::wstring WithSeparator(const QString& folder) {
  return (folder.endsWith('/') ? folder : folder + '/').toStdWString();
}
