#include "host/stores.h"

#include <QDir>

#include "hollerin/hollerin.h"
#include "host/exit_status.h"
#include "host/machine_file.h"

namespace {

constexpr std::array<const char*, kStoreCount> kNames = {"config", "master", "history", "fourth"};
constexpr std::array<const char*, kStoreCount> kFiles = {"config.xml", "master.xml", "history.xml",
                                                         "layout.xml"};

/// Puts the defaults in where the store has no value of its own: in a new one, and in one that an
/// earlier version wrote, which knew fewer values.
void LayUnder(INTERNAL_IFC::IConfigDataMgr& defaults, HOLLERIN::Store& store) {
  for (const auto& [section, keys] : dynamic_cast<HOLLERIN::Store&>(defaults).GetValues()) {
    const auto own = store.GetValues().find(section);
    for (const auto& [key, value] : keys) {
      if (own == store.GetValues().end() || !own->second.contains(key)) {
        store.Write(section, key, value);
      }
    }
  }
}

}  // namespace

const std::array<const char*, kStoreCount>& Stores::Names() { return kNames; }

StoreId Stores::Find(const QString& name) {
  int id = 0;
  while (id < kStoreCount && name != QLatin1String(kNames[static_cast<std::size_t>(id)])) ++id;
  return static_cast<StoreId>(id);
}

Stores::Stores(const QString& folder) : folder_(folder) {}

QString Stores::Path(StoreId id) const { return folder_ + '/' + QLatin1String(kFiles[id]); }

int Stores::Lock(QString& error) {
  if (!QDir().mkpath(folder_)) {
    error = QStringLiteral("The data folder %1 cannot be made.").arg(folder_);
    return kExitFile;
  }
  lock_ = std::make_unique<QLockFile>(folder_ + "/quarrow.lock");
  // Only a lock whose process is gone is stale; a dialog may stay open for days.
  lock_->setStaleLockTime(0);
  if (lock_->tryLock(0)) return kExitDone;
  if (lock_->error() != QLockFile::LockFailedError) {
    error = QStringLiteral("The data folder %1 cannot be written to.").arg(folder_);
    return kExitFile;
  }
  qint64 process = 0;
  QString host;
  QString program;
  lock_->getLockInfo(&process, &host, &program);
  error = QStringLiteral("The data folder %1 is in use by process %2 on %3 (%4).")
              .arg(folder_)
              .arg(process)
              .arg(host, program);
  return kExitInUse;
}

bool Stores::Open(QString& error) {
  for (int i = 0; i < kStoreCount; ++i) {
    const auto id = static_cast<StoreId>(i);
    HOLLERIN::OpenReport report;
    stores_[id] = HOLLERIN::OpenStore(Path(id).toStdWString(), report);
    const QString reason = QString::fromStdWString(report.reason);
    if (stores_[id] == nullptr) {
      error = QStringLiteral("%1 cannot be opened: %2").arg(Path(id), reason);
      return false;
    }
    if (report.putAside.empty()) continue;
    damages_ << QStringLiteral("%1 is damaged: %2\nIt was put aside as %3; the defaults are used.")
                    .arg(Path(id), reason, QString::fromStdWString(report.putAside));
  }
  return true;
}

bool Stores::LayDefaults(bool portable, QString& error) {
  BRISQUEL::StoreHandle defaults;
  if (FAILED(HOLLERIN::LoadMainDefaultConfiguration(&defaults))) {
    error = QStringLiteral("The default configuration cannot be loaded.");
    return false;
  }
  LayUnder(*defaults, *stores_[kConfig]);
  if (FAILED(HOLLERIN::CreateDefaultMasterConfiguration(&defaults, portable))) {
    error = QStringLiteral("The default master configuration cannot be loaded.");
    return false;
  }
  LayUnder(*defaults, *stores_[kMaster]);
  return true;
}

void Stores::SetThrowRule(const ThrowRule& rule) {
  const StoreId id = Find(QString::fromStdString(rule.store));
  if (id != kStoreCount) throwing_[id] = std::make_shared<ThrowingStore>(stores_[id], rule.call);
}

void Stores::ArmThrowRule() {
  for (const auto& store : throwing_) {
    if (store != nullptr) store->Arm();
  }
}

BRISQUEL::StoreHandle Stores::Handle(StoreId id) const {
  if (throwing_[id] != nullptr) return throwing_[id];
  return stores_[id];
}

QStringList Stores::Save(std::initializer_list<StoreId> ids) const {
  QStringList failed;
  for (const StoreId id : ids) {
    if (FAILED(stores_[id]->Save())) failed << QLatin1String(kNames[id]);
  }
  return failed;
}

QStringList Stores::SaveAll() const { return Save({kConfig, kMaster, kHistory, kFourth}); }

QStringList Stores::SaveAfter(BRISQUEL::Status status) const {
  return status == 0 ? SaveAll() : Save({kMaster, kHistory, kFourth});
}
