#pragma once

#include <string>

#include "app/app_delegate.h"
#include "platform/suite/order_claim.h"
#include "platform/suite/suite_folder.h"
#include "terminal/commands/command_ports.h"
#include "terminal/commands/order_command_pending.h"

namespace calvero {

/// Asks for the runs under way: of the order, by its claim, and others, by the lock on the volume. Event loop thread.
class OrderRuns {
 public:
  /// As RunLookup.
  bool isUnderWay(const PendingOrder& order) { return claim_.isHeldByAnother() || isHeld(order.volume); }

  /// Whether a run of the order itself is under way. A wipe that somebody else has begun on its volume is none.
  bool isCarriedOut(const PendingOrder& order);

  /// From now on no run of the order begins. False when one is under way. A run that has told its end is waited for,
  /// since it is about to end.
  bool keepOut(const PendingOrder& order);

  /// Whether the volume can be wiped now; `notFound` when it is not mounted.
  Error check(const std::string& volume);

  [[nodiscard]] const AppDelegate& app() const { return app_; }
  AsioEventLoop& loop() { return ports_.loop; }
  OrderClaim& claim() { return claim_; }

 private:
  /// A volume that is not mounted has no run.
  bool isHeld(const std::string& volume);

  OrderClaim claim_{tagStorePath()};
  CommandPorts ports_{Output::nowhere(), Answering::defaultButtons};
  AppDelegate app_{ports_.ports()};
};

}  // namespace calvero
