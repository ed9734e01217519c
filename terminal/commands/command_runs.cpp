#include "terminal/commands/command_runs.h"

#include <algorithm>

#include "ports/files.h"
#include "wipe/filler_names.h"

namespace calvero {
namespace {

/// Other commands hold the claim for a moment only.
constexpr std::chrono::seconds kClaimTimeout{1};

/// From a run's status to the end of its program: a message is shown in between.
constexpr std::chrono::seconds kProgramEndTimeout{10};

}  // namespace

bool OrderRuns::isCarriedOut(const PendingOrder& order) {
  const OrderClaim::Holder holder = claim_.take({});
  if (holder == OrderClaim::Holder::us) claim_.giveUp();
  // Where no claim can be made an order is carried out without one, and only the volume tells of its run.
  return holder == OrderClaim::Holder::another || (holder == OrderClaim::Holder::nobody && isHeld(order.volume));
}

bool OrderRuns::keepOut(const PendingOrder& order) {
  const auto timeout = order.hasEnded() ? kProgramEndTimeout : kClaimTimeout;
  return claim_.take(timeout) != OrderClaim::Holder::another && !isHeld(order.volume);
}

bool OrderRuns::isHeld(const std::string& volume) {
  const auto path = volume.empty() ? std::nullopt : app_.getVolumePath(volume);
  if (!path) return false;
  // The filler directory alone: a volume that has turned read-only under its run is held all the same.
  return ports_.ports().files.checkFillerDirectory(*path, fillerDirectoryPath(*path)).code == ErrorCode::busy;
}

Error OrderRuns::check(const std::string& volume) {
  const auto& names = app_.volumes().volumeNameArray;
  const auto found = std::ranges::find(names, volume);
  if (found == names.end()) return {ErrorCode::notFound, "look up", volume, "it is not mounted"};
  app_.setCurrentSelection(static_cast<std::size_t>(found - names.begin()));
  return app_.checkSelectedVolume();
}

}  // namespace calvero
