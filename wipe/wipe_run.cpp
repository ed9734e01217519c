#include "wipe/wipe_run.h"

#include <utility>

#include "ports/files.h"

namespace calvero {

WipeRun::WipeRun(EventLoop& eventLoop, Controls& controls, Alerts& alerts) : screen(eventLoop, controls, alerts) {}

WipeRun::~WipeRun() = default;

void WipeRun::end(RunOutcome how) {
  RunOutcome expected = RunOutcome::none;
  outcome.compare_exchange_strong(expected, how);
}

bool WipeRun::claimStatus(StatusTeller teller) {
  StatusTeller first = StatusTeller::none;
  return statusTeller.compare_exchange_strong(first, teller) || first == teller;
}

bool WipeRun::cancel(const std::function<void()>& stored) {
  // In this order: a worker that sees the flags may note an outcome of its own at once, and one that saw only
  // `terminateThread` would clean up and report as if it had finished.
  const bool comesInTime = claimStatus(StatusTeller::cancel);
  if (comesInTime) end(RunOutcome::cancelled);
  stored();
  abortErasing = 1;
  stored();
  terminateThread = 1;
  stored();
  return comesInTime;
}

std::shared_ptr<FillerDirectory> WipeRun::directory() const {
  const std::scoped_lock lock(mutex_);
  return directory_;
}

void WipeRun::setDirectory(std::shared_ptr<FillerDirectory> directory) {
  const std::scoped_lock lock(mutex_);
  directory_.swap(directory);
}

void WipeRun::noteRefusal(const Error& refusal) {
  const std::scoped_lock lock(mutex_);
  refusal_ = refusal;
}

Error WipeRun::refusal() const {
  const std::scoped_lock lock(mutex_);
  return refusal_;
}

void WipeRun::noteRemoval(const Error& result) {
  const std::scoped_lock lock(mutex_);
  remains_ = result.code == ErrorCode::notFound ? Error{} : result;
}

Error WipeRun::remains() const {
  const std::scoped_lock lock(mutex_);
  return remains_;
}

void WipeRun::noteFault(const Error& fault) {
  const std::scoped_lock lock(mutex_);
  if (faults_++ == 0) firstFault_ = fault;
}

Error WipeRun::firstFault() const {
  const std::scoped_lock lock(mutex_);
  return firstFault_;
}

std::uint64_t WipeRun::faults() const {
  const std::scoped_lock lock(mutex_);
  return faults_;
}

void WipeRun::failBy(const Error& fault) {
  noteFault(fault);
  {
    const std::scoped_lock lock(mutex_);
    cause_ = fault;
  }
  end(RunOutcome::failed);
  abortErasing = 1;
}

Error WipeRun::cause() const {
  const std::scoped_lock lock(mutex_);
  return remains_.code == ErrorCode::readOnly ? remains_ : cause_;
}

RunAccount WipeRun::account() const {
  return {.freeAtStart = counters.bytesFreeAtStart,
          .covered = counters.bytesCovered,
          .notHeld = counters.bytesNotHeld,
          .faults = faults(),
          .passes = counters.passes,
          .directoryStays = remains().failed()};
}

}  // namespace calvero
