#pragma once

#include <array>
#include <csignal>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QSocketNotifier;

namespace calvero {

class EventDispatch;

/// From its creation on, the signals of kStopSignals no longer end the process but run `action` on the thread that
/// created it, each time one arrives. A signal that the process was started to ignore (nohup) stays ignored. One object
/// at a time; it needs a QCoreApplication.
class QuitSignals {
 public:
  QuitSignals(const EventDispatch& dispatch, std::function<void()> action);
  ~QuitSignals();
  QuitSignals(const QuitSignals&) = delete;
  QuitSignals& operator=(const QuitSignals&) = delete;

  /// Whether one has arrived, though its action may never run.
  [[nodiscard]] bool wasSent() const;

 private:
  void takeOver(int signal);
  void serveOne();

  const EventDispatch& dispatch_;
  const std::function<void()> action_;
  std::array<int, 2> pipe_{};  // a byte for each signal
  std::unique_ptr<QSocketNotifier> notifier_;
  std::vector<std::pair<int, struct sigaction>> replaced_;
};

}  // namespace calvero
