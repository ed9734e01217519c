#pragma once

#include <string>

#include "platform/linux/system/file_identity.h"
#include "ports/error.h"

namespace calvero {

/// What the list of volumes knows of the place of one of them. Any thread; never waits for a disk for longer than a
/// volume's timeout.
class VolumeKnowledge {
 public:
  virtual ~VolumeKnowledge() = default;

  /// `notFound` when `root`, an open folder that `mountPath` has led to, is not the root of the volume that was listed
  /// there last: it has been unmounted since, or another is mounted in its place. Nothing for a path at which none was
  /// listed. While `root` stays open its mount number cannot be given to another.
  virtual Error whyNotListed(const std::string& mountPath, const FileIdentity& root) = 0;

  /// `thinStorage` when the storage below the volume mounted there cannot take what is free on it.
  virtual Error whyTooThin(const std::string& mountPath) = 0;
};

}  // namespace calvero
