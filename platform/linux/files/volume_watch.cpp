#include "platform/linux/files/volume_watch.h"

#include <utility>

#include "platform/linux/system/file_identity.h"
#include "platform/linux/system/posix_error.h"

namespace calvero {

namespace {

using std::chrono::steady_clock;

/// Short against the time in which a lost volume is to be told, long against one write.
constexpr std::chrono::seconds kBetweenLooks{1};

}  // namespace

VolumeWatch::VolumeWatch(std::string volumePath, dev_t device) : volumePath_(std::move(volumePath)), device_(device) {}

bool VolumeWatch::isThere() {
  const auto found = identityBehind(volumePath_);
  // Any other failure to look is left to the volume itself: what it cannot do fails on its own.
  const bool isAway = found ? found->device != device_ : errorCodeOf(errno) == ErrorCode::notFound;
  if (isAway) wasAway_ = true;
  nextLook_ = steady_clock::now() + kBetweenLooks;
  return !wasAway_;
}

bool VolumeWatch::wasThereLately() {
  return steady_clock::now() < nextLook_.load() ? !wasAway_ : isThere();
}

}  // namespace calvero
