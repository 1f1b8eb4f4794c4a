#pragma once

// Faults of the system, made to order. This program has its own open, write, fsync, rename and
// the like, which do what the system's do until a fault is due; the libraries that it loads call
// them instead of the system's.

#include <functional>
#include <string>

struct FaultPlan {
  int failAtCall = 0;  ///< This call, counted from 1, fails with `error`; 0 for none.
  int error = 0;
  int killAtCall = 0;      ///< The process kills itself at this call, half done if it is a write.
  int mostPerWrite = 0;    ///< Writes take no more bytes than this; 0 for any number.
  bool interrupt = false;  ///< Every other write is interrupted by a signal.
  std::function<void()> beforeLock;  ///< What another process does before the first lock.
};

/// The plan holds, and calls are counted, for as long as the object lives.
class PlannedFaults {
 public:
  explicit PlannedFaults(const FaultPlan& plan);
  ~PlannedFaults();
  PlannedFaults(const PlannedFaults&) = delete;
  PlannedFaults& operator=(const PlannedFaults&) = delete;

  int Calls() const;
  /// The calls in order: (o)pen, (w)rite, f(s)ync, f(c)hmod, f(l)ock, (r)ename.
  std::string Trace() const;
  /// Whether the call that failed came behind the renaming.
  bool FailedBehindRename() const;
};
