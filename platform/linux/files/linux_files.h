#pragma once

#include <utility>

#include "platform/linux/files/filler_moments.h"
#include "platform/linux/system/file_identity.h"
#include "ports/files.h"

namespace calvero {

class VolumeKnowledge;

class LinuxFiles : public Files {
 public:
  /// Takes every path for the volume that is meant.
  explicit LinuxFiles(FillerMoments moments = {}) : moments_(std::move(moments)) {}
  /// Looks whether a path still leads to the volume that was listed there, and whether that can be filled. `volumes`
  /// must outlive this object.
  explicit LinuxFiles(VolumeKnowledge& volumes) : volumes_(&volumes) {}

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
  [[nodiscard]] Error whyNotListed(const std::string& volumePath, const FileIdentity& root) const;
  [[nodiscard]] Error whyTooThin(const std::string& volumePath) const;

  const FillerMoments moments_;
  VolumeKnowledge* volumes_ = nullptr;
};

}  // namespace calvero
