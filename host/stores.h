#pragma once

// The four stores of one data folder.

#include <QLockFile>
#include <QString>
#include <QStringList>
#include <array>
#include <memory>

#include "hollerin/application.h"
#include "host/throwing_store.h"
#include "ifc/brisquel.h"

struct ThrowRule;

enum StoreId { kConfig, kMaster, kHistory, kFourth, kStoreCount };

/// Opens the stores for this process alone and saves them.
class Stores {
 public:
  /// "config", "master", "history", "fourth".
  static const std::array<const char*, kStoreCount>& Names();
  /// kStoreCount for another name.
  static StoreId Find(const QString& name);

  /// Nothing is opened yet.
  explicit Stores(const QString& folder);

  /// Makes the folder and takes it for this process. 0, or an exit status with the reason in
  /// `error`: who has the folder, or why it cannot be used.
  int Lock(QString& error);
  /// Opens the four stores. False with the reason in `error` when one can be neither read nor put
  /// aside. A damaged file is put aside and named in Damages().
  bool Open(QString& error);
  /// Gives the config and master stores the shipped default of every value that they do not hold.
  /// False when the defaults cannot be made.
  bool LayDefaults(bool portable, QString& error);
  /// Makes a store raise an exception, as seen by the settings library.
  void SetThrowRule(const ThrowRule& rule);
  void ArmThrowRule();

  HOLLERIN::Store& Get(StoreId id) const { return *stores_[id]; }
  /// The store as it is handed to the settings library.
  BRISQUEL::StoreHandle Handle(StoreId id) const;
  QString Folder() const { return folder_; }
  QString Path(StoreId id) const;
  const QStringList& Damages() const { return damages_; }

  /// Saves those stores whose files hold other values. Names of the stores that cannot be written.
  QStringList Save(std::initializer_list<StoreId> ids) const;
  QStringList SaveAll() const;
  /// Saves what stays when an entry point has returned with that status: all of it when the user
  /// confirmed; otherwise all but the configuration, which was put back.
  QStringList SaveAfter(BRISQUEL::Status status) const;

 private:
  QString folder_;
  std::unique_ptr<QLockFile> lock_;
  std::array<std::shared_ptr<HOLLERIN::Store>, kStoreCount> stores_;
  std::array<std::shared_ptr<ThrowingStore>, kStoreCount> throwing_;
  QStringList damages_;
};
