#pragma once

#include <sys/statvfs.h>

#include <cstdint>

namespace calvero {

struct Mount;

/// Whether this process can fill the free blocks of a mounted file system that others may not. Only ext2, ext3, ext4
/// and F2FS keep such blocks; other file systems may count as free what nobody can fill (15 % of an empty Btrfs).
bool mayUseReservedBlocks(const Mount& mount);

/// Bytes of free space that ext4 keeps to itself and gives to nobody, though it tells of them as free.
std::uint64_t bytesKeptByFileSystem(const Mount& mount, const struct statvfs& statistics);

/// Bytes that this process can fill on the mounted file system, by what it tells.
std::uint64_t fillableBytes(const Mount& mount, const struct statvfs& statistics);

}  // namespace calvero
