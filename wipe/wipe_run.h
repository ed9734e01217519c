#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "methods/method_choice.h"
#include "ports/clock.h"
#include "ports/error.h"
#include "volumes/volume_table.h"
#include "wipe/run_account.h"
#include "wipe/run_screen.h"

namespace calvero {

class FillerDirectory;

/// How the writing of one filler file ended.
enum class FillEnd : std::uint8_t {
  atItsSize,  ///< the volume had room for every pass of it
  early,      ///< full, failed, stopped, or nothing to write
};

/// Who tells an order its status: the worker of a finished run, or a cancel that came before it did.
enum class StatusTeller : std::uint8_t { none, worker, cancel };

/// Figures that the worker publishes while it writes, for whoever looks. They may lag behind each other by one block.
struct RunCounters {
  std::atomic<std::uint64_t> bytesCovered{0};  ///< bytes of the volume that received every pass
  std::atomic<std::uint64_t> bytesWritten{0};  ///< bytes written, all passes counted
  std::atomic<std::uint64_t> bytesFreeAtStart{0};
  std::atomic<std::uint64_t> bytesNotHeld{0};  ///< of those covered, whose space was lost before the end
  std::atomic<std::int32_t> passes{0};         ///< passes of the method, once a file is written with it
};

// A stop request must never wait for a lock that a stuck worker holds.
static_assert(std::atomic<std::uint8_t>::is_always_lock_free);

/// One wipe, from the moment it can be started to the end of its last thread.
///
/// The controller holds the current run; each thread of a run shares its own. A stop request is written into the run
/// it is meant for, so a worker that was told to stop stays told however late it looks, and the next run starts with
/// flags of its own. Members without a note of their own belong to the worker while it lives, and to the event loop
/// thread before and after.
struct WipeRun {
  WipeRun(EventLoop& eventLoop, Controls& controls, Alerts& alerts);
  ~WipeRun();

  // Stop flags, polled by the worker and the clock. `abortErasing` also marks a finished run as over.
  std::atomic<std::uint8_t> abortErasing{0};
  std::atomic<std::uint8_t> terminateThread{0};
  std::atomic<std::uint8_t> volumeEjected{0};

  std::uint64_t numTempFiles = 0;           ///< whole filler files that the free space holds
  std::vector<std::string> filePathsArray;  ///< the filler file set, in creation order
  ChosenMethod method;                      ///< of the file that is being written, or was last
  VolumeSelection volume;                   ///< the volume as it was listed when the run started; unset before
  std::string elapsed_time;                 ///< the clock thread's last text; kept for its name
  /// Set before the run's threads start, and never again: whoever tells the run's time counts from here.
  std::optional<Clock::Duration> startedAt;

  RunCounters counters;
  std::atomic<RunOutcome> outcome{RunOutcome::none};
  std::atomic<StatusTeller> statusTeller{StatusTeller::none};
  std::atomic<std::uint8_t> workerEnded{0};
  std::atomic<std::uint8_t> notKeptTold{0};  ///< a cancel cleans up beside the worker, and one of them tells
  /// The application has been asked to end: no further step of this run is taken.
  std::atomic<std::uint8_t> applicationEnding{0};

  /// The screen as this run's threads may use it.
  RunScreen screen;

  [[nodiscard]] bool stopRequested() const { return abortErasing != 0 || terminateThread != 0; }
  /// Notes the outcome unless one stands already.
  void end(RunOutcome how);
  /// Whether the status of an ordered run is `teller`'s to tell: the first one to ask has it for good. Any thread.
  [[nodiscard]] bool claimStatus(StatusTeller teller);
  /// Notes the outcome and raises the stop flags. False when the run has told its end already. `stored` is called after
  /// each of the three, for who wants to see that they come in their order. Any thread.
  bool cancel(const std::function<void()>& stored = [] {});

  /// The filler directory while the run has one, else null. Any thread.
  [[nodiscard]] std::shared_ptr<FillerDirectory> directory() const;
  void setDirectory(std::shared_ptr<FillerDirectory> directory);

  /// Why the filler directory could not be made, although it could when the volume was chosen: another run may have
  /// come first. Then nothing was created, and the first file is found missing. Any thread.
  void noteRefusal(const Error& refusal);
  [[nodiscard]] Error refusal() const;

  /// Counts a filler file that could not be created or opened, a write that failed for another reason than a full
  /// volume, a flush that failed, a directory or removal that failed with the volume lost, and what the program could
  /// not go on with; remembers the first. A run with a fault may have left data readable, whatever its outcome. Any
  /// thread.
  void noteFault(const Error& fault);
  [[nodiscard]] Error firstFault() const;
  [[nodiscard]] std::uint64_t faults() const;

  /// Notes what became of the directory's removal; the last attempt counts. Any thread.
  void noteRemoval(const Error& result);
  /// Why the directory is still there after its removal; success where it is gone. Any thread.
  [[nodiscard]] Error remains() const;

  /// Notes a fault after which going on would do harm, and ends the run as failed: it stops as if it were told to.
  void failBy(const Error& fault);
  /// What `failBy` was told, or that the clean-up met a file system that has turned read-only: the flush that failed
  /// just before knew of an error only. Success where the run was ended by neither. Any thread.
  [[nodiscard]] Error cause() const;

  /// Any thread.
  [[nodiscard]] RunAccount account() const;

 private:
  mutable std::mutex mutex_;  // guards the members below; never held across a call to the outside
  std::shared_ptr<FillerDirectory> directory_;
  Error refusal_;
  Error remains_;
  Error firstFault_;
  Error cause_;
  std::uint64_t faults_ = 0;
};

using RunPtr = std::shared_ptr<WipeRun>;

}  // namespace calvero
