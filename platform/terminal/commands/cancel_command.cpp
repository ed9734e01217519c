#include "platform/terminal/commands/cancel_command.h"

#include "platform/suite/suite_folder.h"
#include "platform/terminal/commands/command_list.h"
#include "platform/terminal/commands/command_runs.h"
#include "platform/terminal/commands/order_command_watch.h"
#include "platform/terminal/stop_signals.h"
#include "platform/terminal/text.h"
#include "remote/remote_order.h"

namespace calvero {
namespace {

/// From the end of a run's filler directory to its status: a message is shown in between.
constexpr std::chrono::seconds kTimeForTheStatus{15};

/// A run looks for the request once in `kCancelPollInterval`, and then gives its space back.
constexpr std::chrono::seconds kTimeToFollow = kCancelPollInterval + std::chrono::seconds(60);

ExitCode waitForTheEnd(OrderTags& tags, MountedRuns& runs, const RunLookup& isUnderWay, const PendingOrder& before) {
  CancelWatch watch(tags, isUnderWay, before);
  bool isStopped = false;
  bool hasEnded = false;
  const auto look = [&] { hasEnded = watch.hasEnded(std::chrono::steady_clock::now().time_since_epoch()); };
  const StopSignals signals(runs.loop(), [&isStopped] { isStopped = true; });
  runs.loop().startTimer(kTagLookInterval, TimerKind::repeating, look);
  runs.loop().serveUntil([&] { return hasEnded || isStopped; }, kTimeToFollow);
  if (isStopped && !hasEnded) return give({ExitCode::failed, "No longer waiting; the run has been asked to end"});
  return give(watch.result());
}

}  // namespace

Answer cancelOrder(OrderTags& tags, const RunLookup& isUnderWay, const std::function<void()>& notify) {
  const PendingOrder order = readPendingOrder(tags);
  if (!order.exists()) return {ExitCode::refused, "There is no order to cancel"};
  const std::string name = printable(order.volume);
  if (!isUnderWay(order.volume)) {
    if (!order.isPending) return {ExitCode::refused, "The order for " + name + " is not pending and has no run"};
    // The notification would end whatever else a window is doing, and the tag the order's next run.
    if (order.hasEnded()) return {ExitCode::refused, "The run on " + name + " has ended already"};
  }
  tags.store({{kTagCancel, "1"}});
  if (notify) notify();
  return {ExitCode::finished, "The run on " + name + " is asked to end; it does so within a minute."};
}

bool CancelWatch::hasEnded(std::chrono::steady_clock::duration now) {
  const bool isUnderWay = isUnderWay_(before_.volume);
  try {
    status_ = tags_.value(kTagStatus);
  } catch (const TagStoreFailure&) {
    return ended_;  // the next look may succeed
  }
  if (isUnderWay) {
    wasUnderWay_ = true;
    quietSince_.reset();
  } else if (wasUnderWay_ && !quietSince_) {
    quietSince_ = now;
  }
  // Where an old status was left in the store, a new one cannot be told from it.
  const auto patience = before_.status.empty() ? kTimeForTheStatus : std::chrono::seconds(0);
  ended_ = hasNewStatus() || (quietSince_ && now - *quietSince_ >= patience);
  return ended_;
}

Answer CancelWatch::result() const {
  const std::string name = printable(before_.volume);
  if (!ended_) {
    return {ExitCode::failed, wasUnderWay_ ? "The run on " + name + " was asked to end and has not ended yet"
                                           : "No run has followed the request to end the order for " + name +
                                                 "; calvero-cli clear removes it"};
  }
  if (!hasNewStatus()) return {ExitCode::finished, "The run on " + name + " has ended."};
  return {ExitCode::finished, status_ == kStatusFinished ? "Finished: the run on " + name + " had come to its end."
                                                         : "Cancelled: the run on " + name + " was not completed."};
}

ExitCode cancelCommand(const CancelRequest& request) {
  StoredOrderTags tags(tagStorePath());
  MountedRuns runs;
  const RunLookup isUnderWay = [&runs](const std::string& volume) { return runs.isUnderWay(volume); };
  const PendingOrder before = readPendingOrder(tags);
  const ExitCode code = give(cancelOrder(tags, isUnderWay, request.notify));
  return request.wait && code == ExitCode::finished ? waitForTheEnd(tags, runs, isUnderWay, before) : code;
}

}  // namespace calvero
