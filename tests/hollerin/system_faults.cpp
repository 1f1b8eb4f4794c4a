#include "hollerin/system_faults.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <utility>

namespace {

struct State {
  bool active = false;
  FaultPlan plan;
  int calls = 0;
  std::string trace;
  int writes = 0;
  bool renamed = false;
  bool failedBehindRename = false;
};
State state;

/// Counts and notes a call of the watched functions; true when it must fail, with errno set.
bool FaultIsDue(char call) {
  if (!state.active) return false;
  ++state.calls;
  state.trace += call;
  if (state.calls == state.plan.killAtCall && call != 'w') raise(SIGKILL);
  if (state.calls != state.plan.failAtCall) return false;
  state.failedBehindRename = state.renamed;
  errno = state.plan.error;
  return true;
}

}  // namespace

PlannedFaults::PlannedFaults(const FaultPlan& plan) {
  state = {};
  state.plan = plan;
  state.active = true;
}
PlannedFaults::~PlannedFaults() { state.active = false; }
int PlannedFaults::Calls() const { return state.calls; }
std::string PlannedFaults::Trace() const { return state.trace; }
bool PlannedFaults::FailedBehindRename() const { return state.failedBehindRename; }

extern "C" {

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  if (FaultIsDue('o')) return -1;
  return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

ssize_t write(int descriptor, const void* bytes, size_t size) {
  if (FaultIsDue('w')) return -1;
  if (state.active) {
    if (state.plan.interrupt && ++state.writes % 2 == 1) {
      errno = EINTR;
      return -1;
    }
    if (state.plan.mostPerWrite > 0) {
      size = std::min(size, static_cast<size_t>(state.plan.mostPerWrite));
    }
    if (state.calls == state.plan.killAtCall) {
      syscall(SYS_write, descriptor, bytes, size / 2);
      raise(SIGKILL);
    }
  }
  return syscall(SYS_write, descriptor, bytes, size);
}

int fsync(int descriptor) {
  return FaultIsDue('s') ? -1 : static_cast<int>(syscall(SYS_fsync, descriptor));
}

int fchmod(int descriptor, mode_t mode) noexcept {
  return FaultIsDue('c') ? -1 : static_cast<int>(syscall(SYS_fchmod, descriptor, mode));
}

// Under another name here, which would hide the structure called flock.
int LockFile(int descriptor, int operation) noexcept __asm__("flock");
int LockFile(int descriptor, int operation) noexcept {
  if (state.active && state.plan.beforeLock) std::exchange(state.plan.beforeLock, nullptr)();
  return FaultIsDue('l') ? -1 : static_cast<int>(syscall(SYS_flock, descriptor, operation));
}

int rename(const char* from, const char* to) noexcept {
  if (FaultIsDue('r')) return -1;
  const long result = syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0);
  state.renamed = state.renamed || result == 0;
  return static_cast<int>(result);
}

}  // extern "C"
