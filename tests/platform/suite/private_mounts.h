#pragma once

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <string>

#include "tests/platform/suite/store_folder.h"

namespace calvero::testing {

/// A store on a small volume of its own, mounted where no other process sees it.
class StoreVolume : public StoreFolder {
 protected:
  void SetUp() override {
    const bool mayMount = ::geteuid() == 0 && ::unshare(CLONE_NEWNS) == 0 &&
                          ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                          ::mount("store", folder().c_str(), "tmpfs", 0, "size=512k,mode=700") == 0;
    if (!mayMount) GTEST_SKIP() << "only root can mount, and not everywhere";
  }
  void TearDown() override { ::umount2(folder().c_str(), MNT_DETACH); }

  void setReadOnly() const {
    ASSERT_EQ(::mount(nullptr, folder().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
  }
  void setWritable() const { ASSERT_EQ(::mount(nullptr, folder().c_str(), nullptr, MS_REMOUNT, nullptr), 0); }
  [[nodiscard]] std::string ballast() const { return folder() + "/ballast"; }
  /// Leaves no free byte.
  void fill() const {
    std::ofstream file(ballast(), std::ios::binary);
    while (file.write(std::string(1024, 'x').data(), 1024).flush()) {
    }
  }
  void makeRoom() const { std::filesystem::remove(ballast()); }
};

}  // namespace calvero::testing
