#pragma once

#include <pthread.h>

#include <array>
#include <csignal>

namespace calvero {

/// The signals that ask a program to end: Ctrl-C, Ctrl-\, the service manager, the end of the terminal.
inline constexpr std::array kStopSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

/// What would end the process in the middle of a run and says nothing about it: a closed pipe or a limit of file sizes
/// shows in the call that meets it; timers, limits of processor time and signals between other programs are not meant
/// for it. A clean-up must not be skipped for any of them.
inline constexpr std::array kIgnoredSignals{SIGPIPE,   SIGXFSZ, SIGXCPU, SIGALRM, SIGUSR1,  SIGUSR2,
                                            SIGVTALRM, SIGPROF, SIGPOLL, SIGPWR,  SIGSTKFLT};

/// What a program that is started in place of this one, or by it, finds. A forked child gets it by itself.
inline void restoreIgnoredSignals() {
  for (const int signal : kIgnoredSignals) std::signal(signal, SIG_DFL);
}

/// For the length of the process. Call once, before threads are started.
inline void ignoreSignals() {
  for (const int signal : kIgnoredSignals) std::signal(signal, SIG_IGN);
  ::pthread_atfork(nullptr, nullptr, restoreIgnoredSignals);
}

}  // namespace calvero
