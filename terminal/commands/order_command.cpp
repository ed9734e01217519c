#include "terminal/commands/order_command.h"

#include <optional>
#include <system_error>

#include "platform/suite/suite_folder.h"
#include "remote/remote_order.h"
#include "terminal/commands/command_list.h"
#include "terminal/commands/command_runs.h"
#include "terminal/commands/methods_command.h"
#include "terminal/commands/order_command_watch.h"
#include "terminal/commands/wipe_command_report.h"
#include "terminal/stop_signals.h"
#include "terminal/text.h"
#include "terminal/volume_choice.h"

namespace calvero {
namespace {

/// Why an order that is in the store already stands in the way; empty when none does. What has ended may be replaced,
/// though it is still pending; a run that goes on may not, though its order was called off.
std::string whyTheEarlierOrderStands(const PendingOrder& earlier, const RunLookup& isUnderWay) {
  const std::string name = earlier.volume.empty() ? "a volume" : printable(earlier.volume);
  if (isUnderWay(earlier)) {
    return "The order for " + name + " is under way; wait until it has ended, or cancel it with calvero-cli cancel";
  }
  if (!earlier.isPending() || earlier.hasEnded()) return "";
  return "An order for " + name + " is pending and has not ended; calvero-cli clear removes it";
}

/// An old status or request must not be taken for one of this run. What makes it an order comes last, for readers that
/// see one value after the other.
std::vector<TagValue> tagsOf(const NewOrder& order) {
  return {{kTagResult, ""},
          {kTagStatus, ""},
          {kTagCancel, ""},
          {kTagDrive, order.volume},
          {kTagAlgo, std::to_string(order.method + 1)},
          {kTagMountPath, order.mountPath},
          {kTagVolumeUuid, order.volumeUuid},
          {kTagNamed, order.volume},
          {kTagOnline, "1"}};
}

class OrderCommand {
 public:
  explicit OrderCommand(const OrderRequest& request, std::int32_t method) : request_(request) {
    order_.method = method;
  }

  ExitCode run() {
    if (const Answer refusal = findVolume(); refusal.exitCode != ExitCode::finished) return give(refusal);
    const auto program = findWindowProgram();
    if (!program) {
      return give({ExitCode::failed,
                   "The program calvero, which carries out orders, is neither beside calvero-cli "
                   "nor in a folder of PATH; nothing was ordered"});
    }
    order_.program = *program;
    std::optional<StopSignals> signals;  // from before the start: a signal ends the wait, not the word about the run
    if (request_.wait) signals.emplace(runs_.loop(), [this] { isStopped_ = true; });
    const auto isUnderWay = [this](const PendingOrder& earlier) { return !runs_.keepOut(earlier); };
    const auto start = [this](const std::string& path) { return startDetached(path, runs_.claim().descriptor()); };
    const PlacedOrder placed = placeOrder(order_, tags_, isUnderWay, start);
    isClaimed_ = runs_.claim().descriptor() >= 0;
    runs_.claim().handOver();
    const ExitCode code = give(placed.answer);
    return placed.program && request_.wait ? wait(*placed.program) : code;
  }

 private:
  Answer findVolume() {
    const auto volumes = offeredVolumes(runs_.app());
    const VolumeChoice choice = chooseVolume(request_.volume, volumes);
    if (!choice.index) return {ExitCode::refused, choice.refusal};
    const MountedVolume& volume = volumes[*choice.index];
    order_.volume = volume.name;
    order_.mountPath = volume.mountPath;
    order_.volumeUuid = volume.uuid;
    if (const std::string others = ambiguityOf(request_.volume, volume, volumes); !others.empty()) {
      return {ExitCode::refused, others};
    }
    const Error error = runs_.check(volume.name);
    if (!error.failed()) return {};
    WipeReport report;
    report.volume = volume.name;
    report.mountPath = volume.mountPath;
    return {ExitCode::refused, refusalLine(report, error)};
  }

  ExitCode wait(StartedProgram& program) {
    OrderWatch watch(tags_, program, [this] { return isClaimed_ && !runs_.claim().isHeldByAnother(); });
    bool hasEnded = false;
    const auto look = [&] { hasEnded = watch.hasEnded(); };
    runs_.loop().startTimer(kTagLookInterval, TimerKind::repeating, look);
    const auto isOver = [&] { return hasEnded || isStopped_; };
    if (request_.timeoutSeconds) {
      runs_.loop().serveUntil(isOver, std::chrono::seconds(*request_.timeoutSeconds));
    } else {
      runs_.loop().runUntil(isOver);
    }
    if (hasEnded) return give(watch.result(volumeOf(order_), order_.method));
    const std::string why =
        isStopped_ ? "No longer waiting" : "Not ended within " + std::to_string(*request_.timeoutSeconds) + " s";
    return give({ExitCode::failed, why + ": the run on " + volumeOf(order_) +
                                       " goes on; calvero-cli status shows it, calvero-cli cancel ends it"});
  }

  const OrderRequest& request_;
  NewOrder order_;
  StoredOrderTags tags_{tagStorePath()};
  OrderRuns runs_;
  bool isClaimed_ = false;  ///< by the started program
  bool isStopped_ = false;
};

}  // namespace

std::string volumeOf(const NewOrder& order) {
  return printable(order.volume) + " (" + printable(order.mountPath) + ")";
}

PlacedOrder placeOrder(const NewOrder& order, OrderTags& tags, const RunLookup& isUnderWay, const Starter& start) {
  const Answer answer = changeOrder(tags, [&](const PendingOrder& earlier) -> OrderChange {
    const std::string obstacle = whyTheEarlierOrderStands(earlier, isUnderWay);
    if (!obstacle.empty()) return {{ExitCode::refused, obstacle}, {}};
    return {{ExitCode::finished, "Ordered: free space of " + volumeOf(order) + ", " + numberAndWord(order.method) +
                                     ". calvero-cli status shows the run, calvero-cli cancel ends it, and "
                                     "calvero-cli clear removes the order afterwards."},
            tagsOf(order)};
  });
  if (answer.exitCode != ExitCode::finished) return {answer, nullptr};
  try {
    return {answer, start(order.program)};
  } catch (const std::system_error& error) {
    const Answer failure{ExitCode::failed, "The program calvero cannot be started: " + printable(error.what()) +
                                               "; the order is called off"};
    return {changeOrder(tags, [&](const PendingOrder&) { return OrderChange{failure, {{kTagOnline, "0"}}}; }), nullptr};
  }
}

ExitCode orderCommand(const OrderRequest& request) {
  const auto method = methodNamed(request.method, orderableMethods());
  if (!method) {
    return give({ExitCode::wrongUsage, "There is no method \"" + printable(request.method) + "\"; choose one of " +
                                           validMethods(orderableMethods())});
  }
  return OrderCommand(request, *method).run();
}

}  // namespace calvero
