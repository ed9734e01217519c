#pragma once

#include <string>

namespace calvero {

struct DeviceContent;
struct Mount;

/// Whether a user's files are stored there. Left out: what the kernel or a helper program makes up, what is in memory
/// (every tmpfs), images of installed packages, and views of files that another mount stores. An overlay counts only as
/// the root: there it is all that a container or a live system has. Read-only and network file systems count.
bool storesUserFiles(const Mount& mount);

/// Whether the file system is another machine's, so that a look inside may wait for the network.
bool isNetworkFileSystem(const Mount& mount);

/// Whether a program of the user serves the file system.
bool isFuse(const Mount& mount);

/// Whether the place is an automounter's: a look inside would mount something.
bool isAutomount(const Mount& mount);

/// Whether `formatDescription` needs to know what the device holds.
bool isDescribedByDevice(const Mount& mount);

/// The common name of the file system, e.g. "XFS", "FAT32"; a type without one is shown as it stands. Automounters are
/// "Unknown (autofs)", Windows shares "SMB".
std::string formatDescription(const Mount& mount, const DeviceContent& content);

}  // namespace calvero
