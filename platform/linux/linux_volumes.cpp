#include "platform/linux/linux_volumes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <chrono>
#include <system_error>

#include "platform/linux/block_device.h"
#include "platform/linux/format_description.h"
#include "platform/linux/patient_question.h"
#include "platform/linux/posix_error.h"
#include "platform/linux/reserved_blocks.h"
#include "platform/linux/volume_names.h"

namespace calvero {

namespace {

bool isFolder(const std::string& path) {
  PatientQuestion<bool> question([path] {
    struct statx found = {};
    const int result = ::statx(AT_FDCWD, path.c_str(), AT_NO_AUTOMOUNT | AT_SYMLINK_NOFOLLOW, STATX_TYPE, &found);
    return result == 0 && S_ISDIR(found.stx_mode);
  });
  return question.answerBy(endOfPatience()).value_or(true);  // a volume that hangs is listed all the same
}

std::optional<struct statvfs> statisticsOf(const std::string& mountPath) {
  struct statvfs statistics = {};
  if (retryInterrupted([&] { return ::statvfs(mountPath.c_str(), &statistics); }) != 0) return {};
  return statistics;
}

bool answersForItsLabel(const Mount& mount) {
  return !isNetworkFileSystem(mount) && !isFuse(mount) && !isAutomount(mount);
}

std::string nameOf(const std::string& label, const std::string& mountPath) {
  for (const std::string& name : {nameFromLabel(label), printableLabel(lastPartOf(mountPath))}) {
    if (!name.empty()) return name;
  }
  return printableLabel(mountPath);
}

}  // namespace

LinuxVolumes::LinuxVolumes(ReclaimableBytes reclaimableBytes, KernelPaths paths)
    : reclaimableBytes_(std::move(reclaimableBytes)), paths_(std::move(paths)) {}

std::vector<MountedVolume> LinuxVolumes::mountedVolumes() {
  std::vector<Mount> mounts;
  try {
    mounts = volumesAmong(readMountTable(paths_.mountTable), isFolder);
  } catch (const std::system_error&) {
    return {};
  }
  std::vector<PatientQuestion<Figures>> figures;
  for (const Mount& mount : mounts) {
    figures.emplace_back([mount, reclaimable = reclaimableBytes_] { return figuresOf(mount, reclaimable); });
  }
  const auto deadline = endOfPatience();
  std::vector<MountedVolume> volumes;
  std::vector<Identity> identities;
  std::vector<std::string> labels;
  for (std::size_t i = 0; i < mounts.size(); ++i) {
    identities.push_back(identityOf(mounts[i]));
    labels.push_back(describe(mounts[i], volumes.emplace_back()));
    const Figures answered = figures[i].answerBy(deadline).value_or(Figures{});
    volumes[i].availableBytes = answered.availableBytes;
    volumes[i].totalBytes = answered.totalBytes;
    volumes[i].readOnly = answered.readOnly;
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
  PatientQuestion<std::optional<bool>> question([mountPath]() -> std::optional<bool> {
    const auto statistics = statisticsOf(mountPath);
    if (!statistics) return {};
    return (statistics->f_flag & ST_RDONLY) != 0;
  });
  return question.answerBy(endOfPatience()).value_or(std::nullopt);
}

std::optional<std::string> LinuxVolumes::mountPath(const std::string& name) {
  const std::optional<Identity> identity = listedUnder(name);
  const std::vector<Mount> table = readMountTable(paths_.mountTable);
  if (!identity) return {};
  const Mount* mount = MountTree(table).reachedAt(identity->path);
  if (mount == nullptr || identityOf(*mount) != *identity) return {};
  return identity->path;
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

std::string LinuxVolumes::describe(const Mount& mount, MountedVolume& volume) {
  std::optional<std::string> label;
  if (answersForItsLabel(mount)) label = labelFromFileSystem(mount.path);
  const dev_t device = isNetworkFileSystem(mount) ? 0 : blockDeviceOf(mount.device, mount.source);
  DeviceContent content;
  if (device != 0 && (!label || isDescribedByDevice(mount))) content = deviceContents_.of(device, mount.source);

  volume.mountPath = mount.path;
  volume.formatDescription = formatDescription(mount, content);
  volume.local = !isNetworkFileSystem(mount);
  volume.removable = device != 0 && isOnRemovableDisk(device, paths_.sysfs);
  return nameOf(label.value_or(content.label), mount.path);
}

LinuxVolumes::Figures LinuxVolumes::figuresOf(const Mount& mount, const ReclaimableBytes& reclaimableBytes) {
  if (isAutomount(mount)) return {};  // asking it would mount something
  const auto statistics = statisticsOf(mount.path);
  if (!statistics) return {};
  const std::uint64_t freeBlocks = mayUseReservedBlocks(mount) ? statistics->f_bfree : statistics->f_bavail;
  return {.availableBytes = freeBlocks * statistics->f_frsize + reclaimableBytes(mount.path),
          .totalBytes = statistics->f_blocks * statistics->f_frsize,
          .readOnly = mount.emergencyReadOnly || (statistics->f_flag & ST_RDONLY) != 0};
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
