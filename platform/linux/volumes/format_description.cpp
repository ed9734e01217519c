#include "platform/linux/volumes/format_description.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/linux/system/last_part.h"
#include "platform/linux/volumes/mount_table.h"
#include "platform/linux/volumes/volume_label.h"

namespace calvero {

namespace {

using namespace std::string_view_literals;

// libmount calls these pseudo file systems, but a user's files are behind them. A plain "fuse" may be anything.
constexpr std::array kStoringDespiteLibmount = {"autofs"sv, "fuse"sv, "vboxsf"sv, "virtiofs"sv};

// Beside what libmount leaves out: made-up files, and images of installed packages.
constexpr std::array kNotStoring = {"cramfs"sv,        "erofs"sv,           "functionfs"sv,
                                    "fuse.bindfs"sv,   "fuse.kio-fuse"sv,   "fuse.portal"sv,
                                    "fuse.snapfuse"sv, "fuse.squashfuse"sv, "fuse.squashfuse_ll"sv,
                                    "pidfs"sv,         "ramfs"sv,           "romfs"sv,
                                    "squashfs"sv,      "tmpfs"sv,           "xenfs"sv};

constexpr std::array kUnions = {"aufs"sv, "fuse.fuse-overlayfs"sv, "overlay"sv, "unionfs"sv};

// Beside what libmount knows.
constexpr std::array kNetwork = {
    "afs"sv,          "beegfs"sv,         "ceph"sv,         "coda"sv,           "davfs"sv,
    "fuse.ceph"sv,    "fuse.davfs"sv,     "fuse.gcsfuse"sv, "fuse.glusterfs"sv, "fuse.google-drive-ocamlfuse"sv,
    "fuse.juicefs"sv, "fuse.onedriver"sv, "fuse.rclone"sv,  "fuse.s3fs"sv,      "lustre"sv,
    "orangefs"sv,     "pvfs2"sv,          "smb3"sv};

struct CommonName {
  std::string_view type;
  std::string_view name;
};

constexpr std::array<CommonName, 32> kCommonNames = {{
    {"9p", "9P"},
    {"apfs", "APFS"},
    {"autofs", "Unknown (autofs)"},
    {"bcachefs", "Bcachefs"},
    {"btrfs", "Btrfs"},
    {"ceph", "CephFS"},
    {"cifs", "SMB"},
    {"davfs", "WebDAV"},
    {"exfat", "exFAT"},
    {"f2fs", "F2FS"},
    {"fuse.davfs", "WebDAV"},
    {"fuse.exfat", "exFAT"},
    {"fuse.exfat-fuse", "exFAT"},
    {"fuse.ntfs", "NTFS"},
    {"fuse.ntfs-3g", "NTFS"},
    {"fuse.rclone", "rclone"},
    {"fuse.sshfs", "SSHFS"},
    {"hfs", "Mac OS Standard"},
    {"hfsplus", "Mac OS Extended (Journaled)"},
    {"iso9660", "ISO 9660"},
    {"jfs", "JFS"},
    {"msdos", "FAT"},
    {"nfs", "NFS"},
    {"nfs4", "NFS"},
    {"ntfs", "NTFS"},
    {"ntfs3", "NTFS"},
    {"smb3", "SMB"},
    {"smbfs", "SMB"},
    {"udf", "UDF"},
    {"vfat", "FAT32"},
    {"xfs", "XFS"},
    {"zfs", "ZFS"},
}};

template <std::size_t size>
bool contains(const std::array<std::string_view, size>& types, const std::string& type) {
  return std::find(types.begin(), types.end(), type) != types.end();
}

bool isHelpersFolder(const Mount& mount) {
  const std::string_view path = mount.path;
  // Early document portals are of the plain type; AppImages carry the program's own name as their type.
  if (mount.type == "fuse" && path.starts_with("/run/user/")) return true;
  return isFuse(mount) && std::string_view(lastPart(mount.path)).starts_with(".mount_");
}

std::string commonName(const std::string& type) {
  const auto known =
      std::find_if(kCommonNames.begin(), kCommonNames.end(), [&](const auto& k) { return k.type == type; });
  return known == kCommonNames.end() ? type : std::string(known->name);
}

}  // namespace

bool storesUserFiles(const Mount& mount) {
  if (contains(kUnions, mount.type)) return mount.path == "/";
  if (contains(kNotStoring, mount.type) || isHelpersFolder(mount)) return false;
  return !mount.pseudo || contains(kStoringDespiteLibmount, mount.type);
}

bool isNetworkFileSystem(const Mount& mount) {
  if (mount.network || contains(kNetwork, mount.type)) return true;
  return mount.type == "fuse" && mount.source.find("://") != std::string::npos;
}

bool isFuse(const Mount& mount) {
  return mount.type == "fuse" || mount.type == "fuseblk" || mount.type.starts_with("fuse.");
}

bool isAutomount(const Mount& mount) {
  return mount.type == "autofs";
}

bool isDescribedByDevice(const Mount& mount) {
  return mount.type == "vfat" || mount.type == "fuseblk";
}

std::string formatDescription(const Mount& mount, const DeviceContent& content) {
  if (mount.type == "vfat" && content.version.starts_with("FAT")) return content.version;
  if (mount.type == "fuseblk" && !content.type.empty()) return commonName(content.type);
  return commonName(mount.type);
}

}  // namespace calvero
