#pragma once

/// How the program ends.
enum ExitStatus {
  kExitDone = 0,
  kExitNotConfirmed = 1,  ///< A dialog was cancelled, or the value asked for does not exist.
  kExitUsage = 2,         ///< The command line or the machine file is wrong.
  kExitInUse = 3,         ///< Another copy of the program uses the data folder.
  kExitFile = 4,          ///< A file cannot be read or written.
  kExitLibrary = 5,       ///< The settings library cannot be loaded, or failed.
};
