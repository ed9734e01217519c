#include "terminal/stop_signals.h"

#include <csignal>
#include <utility>

#include "platform/threads/stop_signals_blocked.h"
#include "terminal/asio_event_loop.h"

namespace calvero {
namespace {

bool isIgnored(int signal) {
  struct sigaction action {};
  return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

StopSignals::StopSignals(AsioEventLoop& loop, std::function<void()> action)
    : signals_(loop.context()), action_(std::move(action)) {
  for (const int signal : kStopSignals) {
    if (!isIgnored(signal)) signals_.add(signal);
  }
  wait();
}

void StopSignals::wait() {
  signals_.async_wait([this](const asio::error_code& error, int) {
    if (error) return;
    wait();  // first, since the action may serve further events itself
    action_();
  });
}

}  // namespace calvero
