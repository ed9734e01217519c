#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "platform/terminal/commands/order_command_pending.h"

namespace calvero {

/// Asks the run of the order to end, by the tag and by `notify` where there is one. Refused when nothing could follow
/// that: no order, or one whose run has ended. Throws TagStoreFailure.
Answer cancelOrder(OrderTags& tags, const RunLookup& isUnderWay, const std::function<void()>& notify);

/// Follows a run that was asked to end.
class CancelWatch {
 public:
  /// `before`: the order as it was when the run was asked. The tags must outlive the watch.
  CancelWatch(OrderTags& tags, RunLookup isUnderWay, PendingOrder before)
      : tags_(tags), isUnderWay_(std::move(isUnderWay)), before_(std::move(before)) {}

  /// Whether the run has ended, in one look.
  bool hasEnded(std::chrono::steady_clock::duration now);

  /// What the looks so far came to.
  [[nodiscard]] Answer result() const;

 private:
  [[nodiscard]] bool hasNewStatus() const { return before_.status.empty() && !status_.empty(); }

  OrderTags& tags_;
  const RunLookup isUnderWay_;
  const PendingOrder before_;
  std::string status_;
  bool wasUnderWay_ = false;
  std::optional<std::chrono::steady_clock::duration> quietSince_;
  bool ended_ = false;
};

}  // namespace calvero
