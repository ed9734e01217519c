#include "platform/linux/volumes/linux_volumes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <system_error>

#include "platform/linux/system/call_with_deadline.h"
#include "platform/linux/system/posix_error.h"
#include "platform/linux/volumes/backing_storage.h"
#include "platform/linux/volumes/block_device.h"
#include "platform/linux/volumes/format_description.h"
#include "platform/linux/volumes/reserved_blocks.h"
#include "platform/linux/volumes/volume_label.h"
#include "platform/linux/volumes/volume_names.h"
#include "platform/linux/volumes/volume_uuid.h"

namespace calvero {

namespace {

std::optional<struct statvfs> statisticsOf(const std::string& mountPath) {
  struct statvfs statistics = {};
  if (retryInterrupted([&] { return ::statvfs(mountPath.c_str(), &statistics); }) != 0) return {};
  return statistics;
}

bool answersForItsLabel(const Mount& mount) {
  return !isNetworkFileSystem(mount) && !isFuse(mount) && !isAutomount(mount);
}

/// Tells folders from files, however many of them hang: all that may be asked about are asked at once.
class FolderLookups {
 public:
  explicit FolderLookups(const std::vector<Mount>& table) {
    for (const Mount& mount : table) {
      if (mayBeAFile(mount)) calls_.try_emplace(mount.path, [path = mount.path] { return leadsToFolder(path); });
    }
  }

  /// A volume that does not answer is listed all the same.
  bool isFolder(const std::string& path, std::chrono::steady_clock::time_point deadline) {
    return calls_.at(path).resultBy(deadline).value_or(true);
  }

 private:
  static bool leadsToFolder(const std::string& path) {
    struct statx found = {};
    const int result = ::statx(AT_FDCWD, path.c_str(), AT_NO_AUTOMOUNT | AT_SYMLINK_NOFOLLOW, STATX_TYPE, &found);
    return result == 0 && S_ISDIR(found.stx_mode);
  }

  std::map<std::string, CallWithDeadline<bool>> calls_;
};

std::vector<Mount> mountsOfVolumes(const std::string& tablePath, std::chrono::steady_clock::time_point deadline) {
  const std::vector<Mount> table = readMountTable(tablePath);
  FolderLookups folders(table);
  return volumesAmong(table, [&](const std::string& path) { return folders.isFolder(path, deadline); });
}

struct Description {
  std::optional<std::string> label;
  std::string uuid;
  DeviceContent content;
};

struct Figures {
  std::uint64_t availableBytes = 0;
  std::uint64_t totalBytes = 0;
  bool readOnly = false;
};

dev_t deviceBehind(const Mount& mount) {
  return isNetworkFileSystem(mount) ? 0 : blockDeviceOf(mount.device, mount.source);
}

Description descriptionOf(const Mount& mount) {
  Description description;
  if (answersForItsLabel(mount)) {
    description.label = labelFromFileSystem(mount.path);
    description.uuid = uuidFromFileSystem(mount.path);
  }
  const dev_t device = deviceBehind(mount);
  const bool isAsked = device != 0 && (!description.label || isDescribedByDevice(mount));
  if (isAsked) description.content = contentOf(device, mount.source);
  if (description.uuid.empty()) description.uuid = description.content.uuid;
  return description;
}

Figures figuresOf(const Mount& mount, const LinuxVolumes::ReclaimableBytes& reclaimableBytes) {
  if (isAutomount(mount)) return {};  // asking it would mount something
  const auto statistics = statisticsOf(mount.path);
  if (!statistics) return {};
  return {.availableBytes = fillableBytes(mount, *statistics) + reclaimableBytes(mount.path),
          .totalBytes = statistics->f_blocks * statistics->f_frsize,
          .readOnly = mount.emergencyReadOnly || (statistics->f_flag & ST_RDONLY) != 0};
}

/// Btrfs, FUSE and network file systems show other device numbers than the table does, so the mount's own number tells.
bool isRootOf(const Mount& mount, const FileIdentity& root) {
  if (root.mountId != 0) return root.mountId == static_cast<std::uint64_t>(mount.id);
  return major(mount.device) == 0 || root.device == mount.device;
}

std::string nameOf(const std::string& label, const std::string& mountPath) {
  for (const std::string& name : {nameFromLabel(label), printableLabel(lastPartOf(mountPath))}) {
    if (!name.empty()) return name;
  }
  return printableLabel(mountPath);
}

/// What is asked of one volume. The label and the figures apart: a volume may answer for one of them only.
struct VolumeCalls {
  CallWithDeadline<Description> description;
  CallWithDeadline<Figures> figures;
};

}  // namespace

LinuxVolumes::LinuxVolumes(ReclaimableBytes reclaimableBytes, KernelPaths paths)
    : reclaimableBytes_(std::move(reclaimableBytes)), paths_(std::move(paths)) {}

std::vector<MountedVolume> LinuxVolumes::mountedVolumes() {
  const auto deadline = volumeDeadline();
  std::vector<Mount> mounts;
  try {
    // Half of the time, so that the volumes are left some to answer in.
    mounts = mountsOfVolumes(paths_.mountTable, deadline - kVolumeTimeout / 2);
  } catch (const std::system_error&) {
    return {};
  }
  std::vector<VolumeCalls> calls;
  for (const Mount& mount : mounts) {
    calls.push_back(
        {CallWithDeadline<Description>([mount] { return descriptionOf(mount); }),
         CallWithDeadline<Figures>([mount, bytes = reclaimableBytes_] { return figuresOf(mount, bytes); })});
  }
  std::vector<MountedVolume> volumes;
  std::vector<Identity> identities;
  std::vector<std::string> labels;
  for (std::size_t i = 0; i < mounts.size(); ++i) {
    const Mount& mount = mounts[i];
    const dev_t device = deviceBehind(mount);
    const Description told = calls[i].description.resultBy(deadline).value_or(Description{});
    const Figures figures = calls[i].figures.resultBy(deadline).value_or(Figures{});
    identities.push_back(identityOf(mount));
    labels.push_back(nameOf(told.label.value_or(told.content.label), mount.path));
    volumes.push_back({.name = {},
                       .mountPath = mount.path,
                       .formatDescription = formatDescription(mount, told.content),
                       .availableBytes = figures.availableBytes,
                       .totalBytes = figures.totalBytes,
                       .removable = device != 0 && isOnRemovableDisk(device, paths_.sysfs),
                       .local = !isNetworkFileSystem(mount),
                       .readOnly = figures.readOnly,
                       .label = labels.back(),
                       .uuid = told.uuid});
  }
  giveNames(volumes, std::move(identities), labels);
  return volumes;
}

bool LinuxVolumes::isEmergencyReadOnly(const std::string& mountPath) const {
  try {
    const std::vector<Mount> table = readMountTable(paths_.mountTable);
    const Mount* mount = MountTree(table).reachedAt(mountPath);
    return mount != nullptr && mount->emergencyReadOnly;
  } catch (const std::system_error&) {
    return false;
  }
}

std::optional<bool> LinuxVolumes::isReadOnly(const std::string& mountPath) {
  if (isEmergencyReadOnly(mountPath)) return true;
  CallWithDeadline<std::optional<bool>> call([mountPath]() -> std::optional<bool> {
    const auto statistics = statisticsOf(mountPath);
    if (!statistics) return {};
    return (statistics->f_flag & ST_RDONLY) != 0;
  });
  return call.resultBy(volumeDeadline()).value_or(std::nullopt);
}

std::optional<std::string> LinuxVolumes::mountPath(const std::string& name) {
  const std::optional<Identity> identity = listedUnder(name);
  const std::vector<Mount> table = readMountTable(paths_.mountTable);
  if (!identity) return {};
  const Mount* mount = MountTree(table).reachedAt(identity->path);
  if (mount == nullptr || identityOf(*mount) != *identity) return {};
  return identity->path;
}

Error LinuxVolumes::whyNotListed(const std::string& mountPath, const FileIdentity& root) {
  const std::optional<Identity> listed = listedAt(mountPath);
  if (!listed) return {};
  try {
    const std::vector<Mount> table = readMountTable(paths_.mountTable);
    const Mount* mount = MountTree(table).reachedAt(mountPath);
    if (mount != nullptr && identityOf(*mount) == *listed && isRootOf(*mount, root)) return {};
  } catch (const std::system_error& error) {
    return {ErrorCode::other, "look up", mountPath, error.what()};
  }
  return {ErrorCode::notFound, "open", mountPath, "it is not the volume that was listed there"};
}

Error LinuxVolumes::whyTooThin(const std::string& mountPath) {
  CallWithDeadline<std::string> call([mountPath, paths = paths_]() -> std::string {
    try {
      const std::vector<Mount> table = readMountTable(paths.mountTable);
      const Mount* mount = MountTree(table).reachedAt(mountPath);
      if (mount == nullptr) return {};
      // Space that is taken back from an interrupted run is allocated below already.
      const Figures figures = figuresOf(*mount, [](const std::string&) { return std::uint64_t{0}; });
      return whyStorageIsTooThin(*mount, figures.availableBytes, paths);
    } catch (const std::system_error&) {
      return {};
    }
  });
  const std::string why = call.resultBy(volumeDeadline()).value_or("");
  return why.empty() ? Error{} : Error{ErrorCode::thinStorage, "look below", mountPath, why};
}

LinuxVolumes::Identity LinuxVolumes::identityOf(const Mount& mount) const {
  return {.device = mount.device,
          .type = mount.type,
          .source = mount.source,
          .path = mount.path,
          .diskSequence = diskSequence(blockDeviceOf(mount.device, mount.source), paths_.sysfs)};
}

std::optional<LinuxVolumes::Identity> LinuxVolumes::listedUnder(const std::string& name) {
  const std::scoped_lock lock(mutex_);
  const auto found = std::find_if(named_.begin(), named_.end(), [&](const Named& named) { return named.name == name; });
  if (found == named_.end()) return {};
  return found->identity;
}

std::optional<LinuxVolumes::Identity> LinuxVolumes::listedAt(const std::string& mountPath) {
  const std::scoped_lock lock(mutex_);
  const auto found =
      std::find_if(named_.begin(), named_.end(), [&](const Named& named) { return named.identity.path == mountPath; });
  if (found == named_.end()) return {};
  return found->identity;
}

void LinuxVolumes::giveNames(std::vector<MountedVolume>& volumes, std::vector<Identity> identities,
                             const std::vector<std::string>& labels) {
  const std::scoped_lock lock(mutex_);
  std::vector<NameRequest> requests;
  for (std::size_t i = 0; i < volumes.size(); ++i) {
    const auto known =
        std::find_if(named_.begin(), named_.end(), [&](const Named& named) { return named.identity == identities[i]; });
    requests.push_back({labels[i], known == named_.end() ? std::string() : known->name});
  }
  named_.clear();
  const std::vector<std::string> names = uniqueNames(requests);
  for (std::size_t i = 0; i < volumes.size(); ++i) {
    volumes[i].name = names[i];
    named_.push_back({std::move(identities[i]), names[i]});
  }
}

}  // namespace calvero
