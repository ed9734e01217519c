#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <map>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "ports/error.h"

namespace calvero::testing {

/// The calls of the file port that a test can make fail or be told about.
enum class FileCall {
  volumeExists,
  checkDirectory,
  createDirectory,
  createFile,
  exists,
  open,
  pwrite,
  fsync,
  removeItem,
  releaseSpace,
  removeDirectory,
  removeLeftDirectory,
};

/// Decides what happens at the Nth call of a kind. Calls are counted from 1, each kind for itself. Any thread.
class FaultScript {
 public:
  /// The `nth` call of `kind` fails with `code`, and does nothing.
  void failAt(FileCall kind, std::size_t nth, ErrorCode code) { add({kind, nth, nth, code}); }
  /// So does every later one.
  void failFrom(FileCall kind, std::size_t nth, ErrorCode code) {
    add({kind, nth, std::numeric_limits<std::size_t>::max(), code});
  }
  /// `hook` runs just before the `nth` call, on the caller's thread.
  void before(FileCall kind, std::size_t nth, std::function<void()> hook) {
    const std::scoped_lock lock(mutex_);
    hooks_[{kind, nth}] = std::move(hook);
  }
  /// The `nth` write stores only `bytes` bytes and says so.
  void shortWriteAt(std::size_t nth, std::size_t bytes) {
    const std::scoped_lock lock(mutex_);
    shortWrites_[nth] = bytes;
  }

  struct Verdict {
    ErrorCode code = ErrorCode::none;
    std::optional<std::size_t> shortBytes;
  };

  /// Counts a call, runs its hook and returns what shall happen to it.
  Verdict arrive(FileCall kind) {
    std::function<void()> hook;
    Verdict verdict;
    {
      const std::scoped_lock lock(mutex_);
      const std::size_t nth = ++counts_[kind];
      for (const Fault& fault : faults_) {
        if (fault.kind == kind && nth >= fault.first && nth <= fault.last) verdict.code = fault.code;
      }
      if (kind == FileCall::pwrite && shortWrites_.contains(nth)) verdict.shortBytes = shortWrites_[nth];
      if (const auto found = hooks_.find({kind, nth}); found != hooks_.end()) hook = found->second;
    }
    if (hook) hook();
    return verdict;
  }

  [[nodiscard]] std::size_t count(FileCall kind) const {
    const std::scoped_lock lock(mutex_);
    const auto found = counts_.find(kind);
    return found == counts_.end() ? 0 : found->second;
  }

 private:
  struct Fault {
    FileCall kind;
    std::size_t first;
    std::size_t last;
    ErrorCode code;
  };

  void add(Fault fault) {
    const std::scoped_lock lock(mutex_);
    faults_.push_back(fault);
  }

  mutable std::mutex mutex_;
  std::vector<Fault> faults_;
  std::map<std::pair<FileCall, std::size_t>, std::function<void()>> hooks_;
  std::map<std::size_t, std::size_t> shortWrites_;
  std::map<FileCall, std::size_t> counts_;
};

}  // namespace calvero::testing
