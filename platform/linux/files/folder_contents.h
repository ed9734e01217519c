#pragma once

#include <atomic>
#include <cstdint>
#include <string>

#include "platform/linux/files/open_folder.h"
#include "ports/error.h"

namespace calvero {

/// Removes everything in `folder`, folders with their contents included. No link is followed, and a folder that leads
/// to another mount is left. What cannot be removed does not keep the rest from being removed; the first failure of
/// the last pass is returned. `path` is for reports only; `steps` counts what was removed.
Error emptyFolder(const OpenFolder& folder, const std::string& path, std::atomic<std::uint64_t>& steps);

/// Fails with `notOurs` when the folder holds what no run makes: a folder that is not empty, or a file that is not
/// named as filler files are. Whoever may rename in the volume's root could else have a folder of ours emptied into
/// which he himself may not write. Changes nothing.
Error checkLeftContents(const OpenFolder& folder, const std::string& path);

/// Space taken by those regular files in the folder that have no name elsewhere.
std::uint64_t allocatedBytesOfFiles(const OpenFolder& folder);

}  // namespace calvero
