#include <algorithm>

#include "app/app_delegate.h"
#include "ports/controls.h"
#include "ports/files.h"
#include "wipe/block_plan.h"
#include "wipe/lost_volume.h"

namespace calvero {
namespace {

// A full volume is how a fill ends, and a cancel takes the file away under the writer: neither is a fault.
void noteFailedWrite(WipeRun& run, const Error& error) {
  if (error.failed() && error.code != ErrorCode::full && !run.stopRequested()) run.noteFault(error);
}

/// What had been taken was dropped. Where the reason lies under the volume each further write would drop more, the file
/// system's own metadata among it, until it cannot be mounted any more. Whether the run goes on.
bool survivesFlush(WipeRun& run, Error error) {
  if (!error.failed() || run.stopRequested()) return true;
  if (error.code == ErrorCode::full) error.code = ErrorCode::storageFull;
  const bool isUnderneath = error.code == ErrorCode::storageFull || error.code == ErrorCode::overQuota;
  if (isUnderneath || meansLostVolume(error.code)) {
    run.failBy(error);
    return false;
  }
  run.noteFault(error);
  return true;
}

/// Writes all passes of one block after the other, each flushed to the medium before the next.
class BlockWriter {
 public:
  BlockWriter(const AppDelegate& app, WipeRun& run, FillerFile& file)
      : app_(app), run_(run), file_(file), passes_(run.method.passes), method_(run.method.number) {
    run.counters.passes = passes_;
  }

  /// Every pass is attempted whatever became of the writes before. Whether all writes succeeded.
  bool writeBlock(std::uint64_t offset) {
    std::int64_t covered = passes_ > 0 ? kBlockBytes : 0;
    for (std::int32_t pass = 0; pass < passes_ && goesOn_; ++pass) {
      covered = std::min(covered, writePass(pass, offset, kBlockBytes));
    }
    noteCovered(covered);
    return covered >= 0;
  }

  /// Failed writes are passed over, and a stop request is heeded between two passes. Whether all writes succeeded.
  bool writeLastBlock(std::uint64_t offset, std::int32_t bytes) {
    std::int64_t covered = passes_ > 0 ? bytes : 0;
    for (std::int32_t pass = 0; pass < passes_; ++pass) {
      if (run_.abortErasing != 0) return false;
      covered = std::min(covered, writePass(pass, offset, bytes));
    }
    noteCovered(covered);
    return covered > 0;
  }

 private:
  /// Bytes written, or -1; none where the flush failed, since the system may have dropped them.
  std::int64_t writePass(std::int32_t pass, std::uint64_t offset, std::int32_t bytes) {
    current_ = app_.fillBuffer(current_, kBlockBytes, method_, pass);
    const WriteResult result = file_.pwrite(current_, static_cast<std::size_t>(bytes), offset);
    noteFailedWrite(run_, result.error);
    const Error flushed = file_.fsync();
    goesOn_ = survivesFlush(run_, flushed);
    if (result.bytes > 0) run_.counters.bytesWritten += static_cast<std::uint64_t>(result.bytes);
    return flushed.failed() ? std::min<std::int64_t>(result.bytes, 0) : result.bytes;
  }

  void noteCovered(std::int64_t bytes) {
    if (bytes > 0) run_.counters.bytesCovered += static_cast<std::uint64_t>(bytes);
  }

  const AppDelegate& app_;
  WipeRun& run_;
  FillerFile& file_;
  const std::int32_t passes_;
  const std::int32_t method_;
  const std::uint8_t* current_ = nullptr;
  bool goesOn_ = true;
};

}  // namespace

FillEnd AppDelegate::fillFilePath(WipeRun& run, const std::string& path, std::uint64_t size) {
  if (run.abortErasing != 0) {
    run.screen.apply([](Controls& controls) { controls.selectPage(Page::volume); });
    return FillEnd::early;
  }
  const auto directory = run.directory();
  if (!directory) return FillEnd::early;
  Error error;
  const auto file = directory->openForWriting(path, error);
  if (!file) {
    // Opening takes no space: no full volume refuses it, and nothing of this file will be covered.
    if (!run.stopRequested()) run.noteFault(error);
    return FillEnd::early;
  }

  const BlockPlan plan = blockPlan(size);
  // The one place where a run takes its method: a change during a file takes effect with the next one.
  run.method = {choice_.eraseMethodSelected, choice_.numPassSelected};
  BlockWriter writer(*this, run, *file);
  std::uint64_t block = 0;
  bool writeFailed = false;
  while (block + 1 < static_cast<std::uint64_t>(plan.count) && run.abortErasing != 1 && !writeFailed) {
    writeFailed = !writer.writeBlock(block * kBlockBytes);
    ++block;
  }
  const bool isLastWritten = writer.writeLastBlock(block * kBlockBytes, plan.lastBytes);
  return isLastWritten && !writeFailed ? FillEnd::atItsSize : FillEnd::early;
}

}  // namespace calvero
