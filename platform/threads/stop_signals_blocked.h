#pragma once

#include <pthread.h>
#include <signal.h>  // NOLINT(modernize-deprecated-headers): sigset_t is not in <csignal>

#include "platform/threads/signals.h"

namespace calvero {

/// Threads that are started while it lives never take one of kStopSignals. The kernel gives a signal to any thread that
/// would take it: only if no other thread does, the event loop's has it before whatever was typed behind it. To be used
/// on any thread.
class StopSignalsBlocked {
 public:
  StopSignalsBlocked() {
    sigset_t blocked;
    ::sigemptyset(&blocked);
    for (const int signal : kStopSignals) ::sigaddset(&blocked, signal);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before_);
  }
  StopSignalsBlocked(const StopSignalsBlocked&) = delete;
  StopSignalsBlocked& operator=(const StopSignalsBlocked&) = delete;
  ~StopSignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_{};
};

}  // namespace calvero
