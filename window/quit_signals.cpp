#include "window/quit_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <atomic>
#include <cerrno>
#include <system_error>

#include "platform/threads/stop_signals_blocked.h"
#include "window/event_dispatch.h"

namespace calvero {
namespace {

constexpr int kNone = -1;
std::atomic<int> writeEnd{kNone};
std::atomic<bool> isSent{false};
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

void noteSignal(int) {
  const int errorBefore = errno;
  isSent = true;
  const char note = 0;
  [[maybe_unused]] const auto written = ::write(writeEnd, &note, sizeof note);  // a full pipe holds notes enough
  errno = errorBefore;
}

}  // namespace

QuitSignals::QuitSignals(const EventDispatch& dispatch, std::function<void()> action)
    : dispatch_(dispatch), action_(std::move(action)) {
  if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0)
    throw std::system_error(errno, std::generic_category(), "pipe2");
  writeEnd = pipe_[1];
  isSent = false;
  notifier_ = std::make_unique<QSocketNotifier>(pipe_[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { serveOne(); });
  for (const int signal : kStopSignals) takeOver(signal);
}

QuitSignals::~QuitSignals() {
  for (const auto& [signal, before] : replaced_) ::sigaction(signal, &before, nullptr);
  notifier_.reset();
  writeEnd = kNone;
  for (const int end : pipe_) ::close(end);
}

bool QuitSignals::wasSent() const {
  return isSent;
}

void QuitSignals::takeOver(int signal) {
  struct sigaction before {};
  if (::sigaction(signal, nullptr, &before) != 0 || before.sa_handler == SIG_IGN) return;
  struct sigaction own {};
  own.sa_handler = noteSignal;
  own.sa_flags = SA_RESTART;
  if (::sigaction(signal, &own, nullptr) == 0) replaced_.emplace_back(signal, before);
}

/// One signal only: the next one calls again, also while the action serves events itself.
void QuitSignals::serveOne() {
  char note = 0;
  if (::read(pipe_[0], &note, sizeof note) == sizeof note) dispatch_.run(action_);
}

}  // namespace calvero
