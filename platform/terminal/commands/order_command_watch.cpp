#include "platform/terminal/commands/order_command_watch.h"

#include "remote/remote_order.h"

namespace calvero {
namespace {

/// From the status to the end of the program; a medium that hangs may keep it longer.
constexpr std::chrono::seconds kTimeForTheProgramToEnd{30};

constexpr const char* kStaysPending = "The order stays pending until calvero-cli clear.";

}  // namespace

bool OrderWatch::hasEnded(std::chrono::steady_clock::duration now) {
  const bool programEnded = program_.hasEnded();  // before the tags: it writes them before it ends
  try {
    readTags();
  } catch (const TagStoreFailure&) {
    if (programEnded) throw;
    return false;  // the next look may succeed
  }
  if (!status_.empty() && !statusSeenAt_) statusSeenAt_ = now;
  return programEnded || (statusSeenAt_ && now - *statusSeenAt_ >= kTimeForTheProgramToEnd);
}

void OrderWatch::readTags() {
  // Empty when the run was ordered: "1" is a request, "0" one that the run has followed.
  isCancelled_ = isCancelled_ || !tags_.value(kTagCancel).empty();
  status_ = tags_.value(kTagStatus);
}

Answer OrderWatch::result(const std::string& volume, std::int32_t method) const {
  const std::string meaning = "; deleted data may remain readable there. ";
  if (status_ == kStatusFinished) {
    return {ExitCode::finished,
            "Finished: free space erased on " + volume + " with " + numberAndWord(method) + ". " + kStaysPending};
  }
  if (status_ == kStatusFailed && isCancelled_) {
    return {ExitCode::cancelled, "Cancelled: the run on " + volume + " was not completed. " + kStaysPending};
  }
  if (status_ == kStatusFailed) {
    return {ExitCode::failed, "Failed: the volume or the filler files on " + volume +
                                  " are gone, or another program cancelled the run" + meaning + kStaysPending};
  }
  return {ExitCode::failed,
          "Failed: calvero ended without a status (" + program_.ending() + ") on " + volume + meaning + kStaysPending};
}

}  // namespace calvero
