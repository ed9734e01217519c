#include "terminal/commands/order_command_watch.h"

#include "remote/order_result.h"
#include "remote/remote_order.h"
#include "terminal/commands/command_words.h"

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
  result_ = tags_.value(kTagResult);  // behind the status, since it is stored before that
}

/// The status has no value for a cancel.
bool OrderWatch::isCancelled() const {
  if (const auto result = resultOfStatus(result_, status_)) return result->outcome == RunOutcome::cancelled;
  if (const auto code = program_.exitCode()) return *code == static_cast<int>(ExitCode::cancelled);
  return status_ == kStatusFailed && isCancelAsked_;
}

/// A run has come to its end. What it came to the tags tell, or the exit code where no such tag was written.
Answer OrderWatch::finished(const std::string& volume, std::int32_t method) const {
  const std::string with = " on " + volume + " with " + numberAndWord(method);
  const auto result = resultOfStatus(result_, status_);
  if (result && result->grade == RunGrade::partial) {
    return {ExitCode::failed, "Partial: " + overwrittenText(result->account) + " of free space erased" + with +
                                  kMayRemain + ". " + kStaysPending};
  }
  if (result && result->grade == RunGrade::nothing) {
    return {ExitCode::finished, std::string(kNothingOverwritten) + ' ' + kStaysPending};
  }
  if (program_.exitCode() == static_cast<int>(ExitCode::failed)) {
    return {ExitCode::failed,
            "Failed: calvero could not write everything on " + volume + kMayRemain + ". " + kStaysPending};
  }
  return {ExitCode::finished, "Finished: free space erased" + with + ". " + kStaysPending};
}

Answer OrderWatch::result(const std::string& volume, std::int32_t method) const {
  const std::string meaning = std::string(kMayRemain) + ". ";
  if (status_ == kStatusFinished) return finished(volume, method);
  if (isCancelled()) {
    return {ExitCode::cancelled, "Cancelled: the run on " + volume + " was not completed. " + kStaysPending};
  }
  if (status_ == kStatusFailed) {
    const auto result = resultOfStatus(result_, status_);
    const std::string cause = result ? causeText(result->cause, volume) : "";
    const std::string gone = "the volume or the filler files on " + volume + " are gone";
    return {ExitCode::failed, "Failed: " + (cause.empty() ? gone : cause) + meaning + kStaysPending};
  }
  return {ExitCode::failed,
          "Failed: calvero ended without a status (" + program_.ending() + ") on " + volume + meaning + kStaysPending};
}

}  // namespace calvero
