#include "platform/terminal/commands/clear_command.h"

#include "platform/suite/suite_folder.h"
#include "platform/terminal/commands/command_list.h"
#include "platform/terminal/commands/command_runs.h"
#include "platform/terminal/text.h"
#include "remote/remote_order.h"

namespace calvero {

Answer clearOrder(OrderTags& tags, const RunLookup& isUnderWay) {
  const PendingOrder order = readPendingOrder(tags);
  if (!order.volume.empty() && isUnderWay(order.volume)) {
    return {ExitCode::refused, "A run on " + printable(order.volume) +
                                   " is under way; wait until it has ended, or cancel it with calvero-cli cancel"};
  }
  // Nothing is written for nothing: that would make a store.
  if (!order.exists() && !order.hasEnded() && order.cancel.empty() && order.method.empty()) {
    return {ExitCode::finished, "There is no order."};
  }
  // The store forgets no tag; an empty value means as little as none.
  tags.store({{kTagOnline, "0"}, {kTagDrive, ""}, {kTagAlgo, ""}, {kTagCancel, ""}, {kTagStatus, ""}});
  return {ExitCode::finished, order.exists() ? "The order for " + printable(order.volume) + " is removed."
                                             : "What was left of an order is removed."};
}

ExitCode clearCommand() {
  StoredOrderTags tags(tagStorePath());
  return give(clearOrder(tags, [](const std::string& volume) { return MountedRuns().isUnderWay(volume); }));
}

}  // namespace calvero
