#pragma once

// Calls of the settings library's functions.

#include <QString>
#include <QStringList>
#include <optional>

#include "ifc/brisquel.h"

class Environment;

/// What came of a call.
struct EntryResult {
  QString entry;
  BRISQUEL::Status status = 0;
  QString error;  ///< What was raised instead of a status; empty when nothing was.
};

/// What is handed to a function beside the stores, as far as it takes it.
struct EntryArguments {
  int page = 4;         ///< The page that OpenConfigDialog shows first.
  bool active = false;  ///< Whether OpenSearchFilterList shows the filters as active.
};

class EntryRunner {
 public:
  explicit EntryRunner(Environment& environment) : environment_(environment) {}

  /// The functions that can be called.
  static QStringList Names();
  /// Loads the library. False with the reason in `error` when that fails.
  bool Load(QString& error);

  /// Calls the function and waits until it returns, then saves the stores as its status says. An
  /// exception that passes out of it becomes the error of the result; E_FAIL is its status then.
  EntryResult Run(const QString& entry, const EntryArguments& arguments);
  /// Whether a call is under way.
  bool Running() const { return running_; }

 private:
  BRISQUEL::Status Call(const QString& entry, const EntryArguments& arguments);

  Environment& environment_;
  const BRISQUEL::EntryPoints* library_ = nullptr;
  bool running_ = false;
};
