#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/volumes/kernel_paths.h"
#include "platform/linux/volumes/mount_table.h"
#include "platform/linux/volumes/volume_knowledge.h"
#include "ports/disk_lookup.h"
#include "ports/mounted_volumes.h"

namespace calvero {

/// Volumes and their names. A volume keeps its name from the first list that it is in until the first list without it,
/// so that a name leads back to the volume that a person pointed at, whatever came and went since.
class LinuxVolumes : public MountedVolumes, public DiskLookup, public VolumeKnowledge {
 public:
  /// Space on a mounted volume, in bytes, that the next run takes back from what an interrupted one left there.
  using ReclaimableBytes = std::function<std::uint64_t(const std::string& mountPath)>;

  explicit LinuxVolumes(ReclaimableBytes reclaimableBytes, KernelPaths paths = {});

  /// Empty when the mount table cannot be read. Automounters are not looked into: that would mount something. All
  /// volumes are asked at the same time, and what does not answer within two seconds is listed without its figures and
  /// named by its folder.
  std::vector<MountedVolume> mountedVolumes() override;
  std::optional<bool> isReadOnly(const std::string& mountPath) override;

  /// Reads the mount table and at most one file of the device tree; never waits for a disk or a network.
  std::optional<std::string> mountPath(const std::string& name) override;

  Error whyNotListed(const std::string& mountPath, const FileIdentity& root) override;
  Error whyTooThin(const std::string& mountPath) override;

 private:
  /// What stays the same for as long as one file system is mounted at one place, and is different for the next one.
  struct Identity {
    dev_t device = 0;
    std::string type;
    std::string source;
    std::string path;
    std::string diskSequence;

    bool operator==(const Identity&) const = default;
  };
  struct Named {
    Identity identity;
    std::string name;
  };

  [[nodiscard]] Identity identityOf(const Mount& mount) const;
  [[nodiscard]] bool isEmergencyReadOnly(const std::string& mountPath) const;
  [[nodiscard]] std::optional<Identity> listedUnder(const std::string& name);
  [[nodiscard]] std::optional<Identity> listedAt(const std::string& mountPath);

  void giveNames(std::vector<MountedVolume>& volumes, std::vector<Identity> identities,
                 const std::vector<std::string>& labels);

  const ReclaimableBytes reclaimableBytes_;
  const KernelPaths paths_;
  std::mutex mutex_;  // guards what is named; not held while the system is asked
  std::vector<Named> named_;
};

}  // namespace calvero
