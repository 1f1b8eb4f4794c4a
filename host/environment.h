#pragma once

// What every command works with: the machine, the data folder with its stores, and the log.

#include <memory>
#include <utility>

#include "host/arguments.h"
#include "host/machine_file.h"
#include "host/stores.h"

class Environment {
 public:
  explicit Environment(const Arguments& arguments);

  /// Reads the machine file, if one is named, and makes it the machine in use; before the toolkit
  /// starts. Returns an exit status; the reason of a failure goes to standard error.
  int ReadMachine();
  /// Logical pixels per inch for the toolkit; 0 leaves those of the screen.
  int Dpi() const;

  /// Takes the data folder, opens the stores and sets the sibling libraries up; after the toolkit
  /// has started. Returns an exit status, as ReadMachine.
  int Start();

  const Arguments& GetArguments() const { return arguments_; }
  Stores& GetStores() { return stores_; }
  HOLLERIN::MemoryLog& GetLog() { return *log_; }

  /// From now on nothing is opened or played outside of the program; what would have been is
  /// recorded.
  void StayInside();
  /// What was recorded since the last call.
  Outside TakeOutside() { return std::exchange(*outside_, {}); }

  /// Writes to standard error and to the log.
  void Report(const QString& text);
  /// Reports stores that could not be saved; whether all were.
  bool ReportSaved(const QStringList& failed);
  /// Registers the application with the desktop as the confirmed configuration wants; reports a
  /// failure.
  void ApplyShellSettings();
  /// Whether no store has failed to be saved so far.
  bool AllSaved() const { return allSaved_; }

 private:
  std::wstring LanguageFile() const;
  void SetUp();

  Arguments arguments_;
  Stores stores_;
  std::shared_ptr<const MachineFile> machine_;
  std::shared_ptr<Outside> outside_ = std::make_shared<Outside>();
  std::shared_ptr<HOLLERIN::MemoryLog> log_;
  bool allSaved_ = true;
};

/// Writes a line to standard error, after the program's name.
void PrintError(const QString& text);
/// Writes UTF-8 text to standard output; false when that failed.
bool Print(const QString& text);
