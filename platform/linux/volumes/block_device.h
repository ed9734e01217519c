#pragma once

#include <sys/types.h>

#include <string>

namespace calvero {

/// Whether the disk of a block device can be taken away by its user: a removable medium, or a disk on USB. `sysfs` is
/// where the kernel's device tree is mounted. False where that does not tell.
bool isOnRemovableDisk(dev_t device, const std::string& sysfs);

/// A text that no other disk has had since the system was started, unlike the device number, which the next stick gets
/// again. Empty where the kernel does not tell (before Linux 5.15).
std::string diskSequence(dev_t device, const std::string& sysfs);

}  // namespace calvero
