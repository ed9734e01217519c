#include "platform/terminal/commands/command_runs.h"

#include <algorithm>

namespace calvero {

Error MountedRuns::check(const std::string& volume) {
  const auto& names = app_.volumes().volumeNameArray;
  const auto found = std::ranges::find(names, volume);
  if (found == names.end()) return {ErrorCode::notFound, "look up", volume, "it is not mounted"};
  app_.setCurrentSelection(static_cast<std::size_t>(found - names.begin()));
  return app_.checkSelectedVolume();
}

}  // namespace calvero
