#include "terminal/commands/cancel_command.h"

#include "platform/suite/suite_folder.h"
#include "remote/remote_order.h"
#include "terminal/commands/command_list.h"
#include "terminal/commands/command_runs.h"
#include "terminal/commands/order_command_watch.h"
#include "terminal/stop_signals.h"
#include "terminal/text.h"

namespace calvero {
namespace {

/// A run looks for the request once in `kCancelPollInterval`, and then gives its space back.
constexpr std::chrono::seconds kTimeToFollow = kCancelPollInterval + std::chrono::seconds(60);

/// A run that is notified ends at once, and only then is it known that the tag is not needed.
constexpr std::chrono::seconds kTimeToFollowTheNotification{20};

/// Why nothing could follow a request; empty when something could. Without a run the notification would end whatever
/// else is under way in the session, and the tag the order's next run.
std::string whyNothingCouldFollow(const PendingOrder& order, const RunLookup& hasRun) {
  if (!order.exists()) return "There is no order to cancel";
  if (hasRun(order)) return "";
  const std::string name = printable(order.volume);
  if (!order.isPending()) return "The order for " + name + " is not pending and has no run";
  if (order.hasEnded()) return "The run on " + name + " has ended already";
  return "The order for " + name + " has no run to cancel; calvero-cli clear removes the order";
}

/// False when a signal has ended the wait.
bool waitForTheEnd(CancelWatch& watch, AsioEventLoop& loop, std::chrono::seconds limit) {
  bool isStopped = false;
  const StopSignals signals(loop, [&isStopped] { isStopped = true; });
  loop.startTimer(kTagLookInterval, TimerKind::repeating, [&watch] { watch.look(); });
  loop.serveUntil([&] { return watch.hasEnded() || isStopped; }, limit);
  return watch.hasEnded() || !isStopped;
}

}  // namespace

AskedToEnd cancelOrder(OrderTags& tags, const RunLookup& hasRun, const std::function<bool()>& notify) {
  AskedToEnd asked;
  asked.answer = changeOrder(tags, [&](const PendingOrder& order) -> OrderChange {
    if (const std::string why = whyNothingCouldFollow(order, hasRun); !why.empty()) {
      return {{ExitCode::refused, why}, {}};
    }
    return {
        {ExitCode::finished, "The run on " + printable(order.volume) + " is asked to end; it does so within a minute."},
        {{kTagCancel, "1"}}};
  });
  if (asked.answer.exitCode == ExitCode::finished && notify) asked.isNotified = notify();
  return asked;
}

void takeBackRequest(OrderTags& tags, const ClaimLookup& isClaimed, const std::string& volume) {
  changeOrder(tags, [&](const PendingOrder& order) -> OrderChange {
    if (order.cancel != "1" || order.volume != volume || isClaimed()) return {};
    return {{}, {{kTagCancel, "0"}}};
  });
}

bool CancelWatch::look() {
  const bool isClaimed = isClaimed_();  // before the tags, which the run writes before it ends
  const bool isUnderWay = isUnderWay_(before_);
  wasUnderWay_ = wasUnderWay_ || isUnderWay;
  try {
    status_ = tags_.value(kTagStatus);
  } catch (const TagStoreFailure&) {
    return ended_;  // the next look may succeed
  }
  // The kernel may keep the volume locked for a program that has left, until its medium answers.
  ended_ = !isClaimed && (hasNewStatus() || (wasUnderWay_ && !isUnderWay));
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
  OrderRuns runs;
  const RunLookup isUnderWay = [&runs](const PendingOrder& order) { return runs.isUnderWay(order); };
  const RunLookup hasRun = [&runs](const PendingOrder& order) { return runs.isCarriedOut(order); };
  const ClaimLookup isClaimed = [&runs] { return runs.claim().isHeldByAnother(); };
  const PendingOrder before = readPendingOrder(tags);
  const AskedToEnd asked = cancelOrder(tags, hasRun, request.notify);
  const ExitCode code = give(asked.answer);
  if (code != ExitCode::finished || (!request.wait && !asked.isNotified)) return code;
  CancelWatch watch(tags, isUnderWay, isClaimed, before);
  const bool isOver = waitForTheEnd(watch, runs.loop(), request.wait ? kTimeToFollow : kTimeToFollowTheNotification);
  if (watch.hasEnded()) takeBackRequest(tags, isClaimed, before.volume);
  if (!request.wait && !watch.hasEnded()) return code;
  if (!isOver) return give({ExitCode::failed, "No longer waiting; the run has been asked to end"});
  return give(watch.result());
}

}  // namespace calvero
