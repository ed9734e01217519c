#pragma once

#include <atomic>
#include <memory>
#include <mutex>

#include "platform/linux/files/filler_moments.h"
#include "platform/linux/files/filler_place.h"
#include "platform/linux/files/held_files.h"
#include "platform/linux/files/open_folder.h"
#include "platform/linux/files/volume_watch.h"
#include "ports/files.h"

namespace calvero {

class LinuxFillerDirectory : public FillerDirectory {
 public:
  /// `directory` is the locked and empty filler directory of `place`.
  LinuxFillerDirectory(FillerPlace place, OpenFolder directory, FillerMoments moments = {});

  Error createEmptyFile(const std::string& path) override;
  bool exists(const std::string& path) override;
  Error readAttributes(const std::string& path) override;
  std::unique_ptr<FillerFile> openForWriting(const std::string& path, Error& error) override;
  Error removeItem(const std::string& path) override;
  std::optional<std::uint64_t> availableBytes() override;
  std::uint64_t bytesNotKept() const override { return bytesNotKept_; }
  void releaseSpace() override;
  std::uint64_t cleanUpSteps() const override { return cleanUpSteps_; }
  Error remove() override;

 private:
  Error removeName();  // under removalMutex_
  void releaseNames();
  [[nodiscard]] bool stillHolds(const std::string& name, const FileIdentity& noted) const;

  FillerPlace place_;
  const FillerMoments moments_;
  const std::shared_ptr<VolumeWatch> watch_;  // shared with the open files
  OpenFolder directory_;                      // closing it drops the lock
  std::atomic<bool> closed_{false};
  std::atomic<std::uint64_t> bytesNotKept_{0};
  std::atomic<std::uint64_t> cleanUpSteps_{0};
  // Guards nameRemoved_, and that nobody removes the name of the next run's directory. A cancel and the worker remove
  // one after the other: each name removed under the other's reading costs both a failed call.
  std::mutex removalMutex_;
  bool nameRemoved_ = false;
  HeldFiles held_;
  HeldNames heldNames_;
};

}  // namespace calvero
