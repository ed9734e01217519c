#pragma once

#include <functional>
#include <string>

#include "terminal/commands/order_command_pending.h"

namespace calvero {

struct AskedToEnd {
  Answer answer;
  bool isNotified = false;
};

/// Asks the run of the order to end, by the tag and by `notify` where there is one. Refused, with nothing stored and
/// nobody notified, when `hasRun` knows of none. Throws TagStoreFailure.
AskedToEnd cancelOrder(OrderTags& tags, const RunLookup& hasRun, const std::function<bool()>& notify);

/// Whether a program holds the claim to the order: only such a program looks at the request.
using ClaimLookup = std::function<bool()>;

/// Once the run on that volume has ended: takes back a request that is still in the tag, since the run has followed the
/// notification or was faster, and the order's next run would be cancelled by it. Throws TagStoreFailure.
void takeBackRequest(OrderTags& tags, const ClaimLookup& isClaimed, const std::string& volume);

/// Follows a run that was asked to end.
class CancelWatch {
 public:
  /// `before`: the order as it was when the run was asked. The tags must outlive the watch.
  CancelWatch(OrderTags& tags, RunLookup isUnderWay, ClaimLookup isClaimed, PendingOrder before)
      : tags_(tags), isUnderWay_(std::move(isUnderWay)), isClaimed_(std::move(isClaimed)), before_(std::move(before)) {}

  /// Looks once; returns `hasEnded`.
  bool look();

  [[nodiscard]] bool hasEnded() const { return ended_; }
  /// What the looks so far came to.
  [[nodiscard]] Answer result() const;

 private:
  /// Where an old status was left in the store, a new one cannot be told from it.
  [[nodiscard]] bool hasNewStatus() const { return before_.status.empty() && !status_.empty(); }

  OrderTags& tags_;
  const RunLookup isUnderWay_;
  const ClaimLookup isClaimed_;
  const PendingOrder before_;
  std::string status_;
  bool wasUnderWay_ = false;
  bool ended_ = false;
};

}  // namespace calvero
