#include "host/settings_library.h"

#include <dlfcn.h>

#include <QFileInfo>
#include <QString>
#include <QStringList>

#include "host/folders.h"

const BRISQUEL::EntryPoints* LoadSettingsLibrary(QString& error) {
  static const BRISQUEL::EntryPoints* loaded = nullptr;
  if (loaded != nullptr) return loaded;
  const QStringList candidates = LibraryCandidates();
  for (const QString& path : candidates) {
    if (!QFileInfo::exists(path)) continue;
    void* library = dlopen(path.toLocal8Bit().constData(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
      error = QStringLiteral("The settings library cannot be loaded: %1").arg(dlerror());
      return nullptr;
    }
    using Lookup = const BRISQUEL::EntryPoints* (*)();
    const auto lookup = reinterpret_cast<Lookup>(dlsym(library, "BrisquelEntryPoints"));
    loaded = lookup != nullptr ? lookup() : nullptr;
    if (loaded == nullptr) error = QStringLiteral("%1 is not the settings library.").arg(path);
    return loaded;
  }
  error = QStringLiteral("The settings library is in none of the places %1.")
              .arg(candidates.join(QStringLiteral(", ")));
  return nullptr;
}
