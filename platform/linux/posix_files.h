#pragma once

#include <utility>

#include "platform/linux/filler_moments.h"
#include "ports/files.h"

namespace calvero {

class PosixFiles : public Files {
 public:
  explicit PosixFiles(FillerMoments moments = {}) : moments_(std::move(moments)) {}

  bool exists(const std::string& path) override;
  Error checkFillerDirectory(const std::string& volumePath, const std::string& directoryPath) override;
  std::unique_ptr<FillerDirectory> createFillerDirectory(const std::string& volumePath,
                                                         const std::string& directoryPath, Error& error) override;
  Error removeFillerDirectory(const std::string& volumePath, const std::string& directoryPath) override;

  /// Space that the next run takes back from what an interrupted one left: it counts as available, or the next run's
  /// files would be too few. 0 where there is no such directory, which takes one system call to find out, or where a
  /// run could not take it over.
  static std::uint64_t bytesInLeftDirectory(const std::string& volumePath, const std::string& directoryPath);

 private:
  const FillerMoments moments_;
};

}  // namespace calvero
