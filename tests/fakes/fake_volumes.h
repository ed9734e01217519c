#pragma once

#include <algorithm>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "ports/disk_lookup.h"
#include "ports/mounted_volumes.h"
#include "tests/fakes/journal.h"

namespace calvero::testing {

/// The mount table. Any thread.
class FakeVolumes : public MountedVolumes, public DiskLookup {
 public:
  explicit FakeVolumes(Journal& journal) : journal_(journal) {}

  void add(MountedVolume volume) {
    const std::scoped_lock lock(mutex_);
    volumes_.push_back(std::move(volume));
  }
  void remove(const std::string& name) {
    const std::scoped_lock lock(mutex_);
    std::erase_if(volumes_, [&](const MountedVolume& volume) { return volume.name == name; });
  }
  /// The read-only flag of this mount path cannot be read.
  void hideReadOnlyFlag(const std::string& mountPath) {
    const std::scoped_lock lock(mutex_);
    unreadable_.insert(mountPath);
  }
  /// From now on the mount table cannot be read by a lookup.
  void breakLookup() {
    const std::scoped_lock lock(mutex_);
    lookupBroken_ = true;
  }

  std::vector<MountedVolume> mountedVolumes() override {
    journal_.add("mountedVolumes");
    const std::scoped_lock lock(mutex_);
    return volumes_;
  }

  std::optional<bool> isReadOnly(const std::string& mountPath) override {
    journal_.add("isReadOnly " + mountPath);
    const std::scoped_lock lock(mutex_);
    if (unreadable_.contains(mountPath)) return std::nullopt;
    for (const MountedVolume& volume : volumes_) {
      if (volume.mountPath == mountPath) return volume.readOnly;
    }
    return std::nullopt;
  }

  std::optional<std::string> mountPath(const std::string& name) override {
    journal_.add("lookUp " + name);
    const std::scoped_lock lock(mutex_);
    if (lookupBroken_) throw std::runtime_error("the mount table cannot be read");
    for (const MountedVolume& volume : volumes_) {
      if (volume.name == name) return volume.mountPath;
    }
    return std::nullopt;
  }

 private:
  Journal& journal_;
  std::mutex mutex_;
  std::vector<MountedVolume> volumes_;
  std::set<std::string> unreadable_;
  bool lookupBroken_ = false;
};

}  // namespace calvero::testing
