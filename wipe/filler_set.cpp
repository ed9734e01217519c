#include <utility>

#include "app/app_delegate.h"
#include "ports/controls.h"
#include "ports/files.h"
#include "ports/system_log.h"
#include "wipe/filler_names.h"
#include "wipe/lost_volume.h"

namespace calvero {
namespace {

/// A volume that claims absurd space would be asked for millions of files more that it cannot give.
constexpr int kMostFailuresInARow = 16;

}  // namespace

std::uint64_t AppDelegate::getNumbOfFiles(const WipeRun& run) const {
  return volumeOf(run).freeBytes() / fixed_.scale.fillerBytes;
}

void AppDelegate::createFile(WipeRun& run) {
  const auto volumePath = volumePathOf(run);
  if (run.applicationEnding != 0) return;
  if (!volumePath) {
    reportUnknownError(run);
    return;
  }
  makeFillerDirectory(run, *volumePath);
  const auto directory = run.directory();
  run.numTempFiles = getNumbOfFiles(run);
  // One file more than fit: it stands for the remainder of the free space, and is written to its full size like the
  // others, until the volume is full.
  int failuresInARow = 0;
  for (std::uint64_t i = 0; i <= run.numTempFiles; ++i) {
    if (run.terminateThread != 0) return;
    if (run.abortErasing != 0) {
      run.screen.apply([](Controls& controls) { controls.selectPage(Page::volume); });
      return;
    }
    const std::string& path = run.filePathsArray.emplace_back(fillerFilePath(*volumePath, i));
    // One that could not be made is found missing at its turn.
    failuresInARow = makeFillerFile(run, directory.get(), path) ? 0 : failuresInARow + 1;
    if (failuresInARow == kMostFailuresInARow && !run.stopRequested()) {
      reportUnknownError(run);
      return;
    }
  }
}

bool AppDelegate::makeFillerFile(WipeRun& run, FillerDirectory* directory, const std::string& path) {
  if (directory == nullptr) return false;
  const Error error = directory->createEmptyFile(path);
  if (error.failed() && !run.stopRequested()) run.noteFault(error);
  return !error.failed();
}

void AppDelegate::followLastFile(WipeRun& run, FillEnd lastEnd) {
  const auto directory = run.directory();
  if (lastEnd != FillEnd::atItsSize || !directory || run.stopRequested()) return;
  // Where what is written takes no space, as with compression, the volume would never be full.
  const bool mayHoldMore = run.counters.bytesCovered < volumeOf(run).capacityBytes();
  if (!mayHoldMore || directory->availableBytes().value_or(0) == 0) return;
  const auto volumePath = volumePathOf(run);
  if (!volumePath) return;
  const std::string path = fillerFilePath(*volumePath, run.filePathsArray.size());
  if (makeFillerFile(run, directory.get(), path)) run.filePathsArray.push_back(path);
}

void AppDelegate::makeFillerDirectory(WipeRun& run, const std::string& volumePath) {
  Error error;
  std::shared_ptr<FillerDirectory> directory =
      ports_.files.createFillerDirectory(volumePath, fillerDirectoryPath(volumePath), error);
  if (!directory) {
    ports_.log.line(error.text());
    // It could be made when the volume was chosen, so a lost volume was lost under the run.
    if (meansLostVolume(error.code)) {
      run.noteFault(error);
    } else {
      run.noteRefusal(error);
    }
    return;
  }
  run.setDirectory(directory);
  run.counters.bytesFreeAtStart = directory->availableBytes().value_or(volumeOf(run).freeBytes());
  // A cancel that came while the directory was being made has found none to remove.
  if (run.stopRequested()) directory->remove();
}

}  // namespace calvero
