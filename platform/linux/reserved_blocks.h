#pragma once

namespace calvero {

struct Mount;

/// Whether this process can fill the free blocks of a mounted file system that others may not. Only ext2, ext3, ext4
/// and F2FS keep such blocks; other file systems may count as free what nobody can fill (15 % of an empty Btrfs).
bool mayUseReservedBlocks(const Mount& mount);

}  // namespace calvero
