#pragma once

#include <asio/signal_set.hpp>
#include <functional>

namespace calvero {

class AsioEventLoop;

/// From its creation on, the signals of kStopSignals no longer end the process but run `action` on the event loop
/// thread, each time one arrives. A signal that the process was started to ignore (nohup) stays ignored.
class StopSignals {
 public:
  StopSignals(AsioEventLoop& loop, std::function<void()> action);

 private:
  void wait();

  asio::signal_set signals_;
  std::function<void()> action_;
};

}  // namespace calvero
