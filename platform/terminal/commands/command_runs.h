#pragma once

#include <string>

#include "app/app_delegate.h"
#include "platform/terminal/commands/command_ports.h"

namespace calvero {

/// Asks the mounted volumes whether a run holds one of them. Event loop thread.
class MountedRuns {
 public:
  /// As RunLookup; a volume that is not mounted has no run.
  bool isUnderWay(const std::string& volume) { return check(volume).code == ErrorCode::busy; }
  /// Whether the volume can be wiped now; `notFound` when it is not mounted.
  Error check(const std::string& volume);

  [[nodiscard]] const AppDelegate& app() const { return app_; }
  AsioEventLoop& loop() { return ports_.loop; }

 private:
  CommandPorts ports_{Output::nowhere(), Answering::defaultButtons};
  AppDelegate app_{ports_.ports()};
};

}  // namespace calvero
