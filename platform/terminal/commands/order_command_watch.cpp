#include "platform/terminal/commands/order_command_watch.h"

#include "remote/remote_order.h"

namespace calvero {
namespace {

constexpr const char* kStaysPending = "The order stays pending until calvero-cli clear.";

}  // namespace

bool OrderWatch::hasEnded() {
  const bool programEnded = program_.hasEnded();  // both before the tags, which the program writes before it ends
  const bool hasLeft = hasLeft_();
  try {
    readTags();
  } catch (const TagStoreFailure&) {
    if (programEnded) throw;
    return false;  // the next look may succeed
  }
  return programEnded || (hasLeft && !status_.empty());
}

void OrderWatch::readTags() {
  // Empty when the run was ordered: "1" is a request, "0" one that the run has followed.
  isCancelAsked_ = isCancelAsked_ || !tags_.value(kTagCancel).empty();
  status_ = tags_.value(kTagStatus);
}

/// The tags have no status for a cancel.
bool OrderWatch::isCancelled() const {
  if (const auto code = program_.exitCode()) return *code == static_cast<int>(ExitCode::cancelled);
  return status_ == kStatusFailed && isCancelAsked_;
}

Answer OrderWatch::result(const std::string& volume, std::int32_t method) const {
  const std::string meaning = "; deleted data may remain readable there. ";
  if (status_ == kStatusFinished) {
    if (program_.exitCode() == static_cast<int>(ExitCode::failed)) {
      return {ExitCode::failed, "Failed: calvero could not write everything on " + volume + meaning + kStaysPending};
    }
    return {ExitCode::finished,
            "Finished: free space erased on " + volume + " with " + numberAndWord(method) + ". " + kStaysPending};
  }
  if (isCancelled()) {
    return {ExitCode::cancelled, "Cancelled: the run on " + volume + " was not completed. " + kStaysPending};
  }
  if (status_ == kStatusFailed) {
    return {ExitCode::failed,
            "Failed: the volume or the filler files on " + volume + " are gone" + meaning + kStaysPending};
  }
  return {ExitCode::failed,
          "Failed: calvero ended without a status (" + program_.ending() + ") on " + volume + meaning + kStaysPending};
}

}  // namespace calvero
