#include "terminal/commands/clear_command.h"

#include "platform/suite/suite_folder.h"
#include "remote/remote_order.h"
#include "terminal/commands/command_list.h"
#include "terminal/commands/command_runs.h"
#include "terminal/text.h"

namespace calvero {

Answer clearOrder(OrderTags& tags, const RunLookup& isUnderWay) {
  return changeOrder(tags, [&](const PendingOrder& order) -> OrderChange {
    // Nothing is written for nothing: that would make a store.
    if (!order.exists() && !order.hasEnded() && order.cancel.empty() && order.method.empty()) {
      return {{ExitCode::finished, "There is no order."}, {}};
    }
    const std::string name = printable(order.volume);
    if (isUnderWay(order)) {
      return {{ExitCode::refused,
               "A run on " + name + " is under way; wait until it has ended, or cancel it with calvero-cli cancel"},
              {}};
    }
    // The store forgets no tag; an empty value means as little as none.
    return {{ExitCode::finished,
             order.exists() ? "The order for " + name + " is removed." : "What was left of an order is removed."},
            {{kTagOnline, "0"},
             {kTagDrive, ""},
             {kTagAlgo, ""},
             {kTagCancel, ""},
             {kTagResult, ""},
             {kTagStatus, ""},
             {kTagNamed, ""},
             {kTagMountPath, ""},
             {kTagVolumeUuid, ""}}};
  });
}

ExitCode clearCommand() {
  StoredOrderTags tags(tagStorePath());
  OrderRuns runs;
  return give(clearOrder(tags, [&runs](const PendingOrder& order) { return !runs.keepOut(order); }));
}

}  // namespace calvero
