#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/loop.h>
#include <sched.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/linux/system/descriptor.h"
#include "tests/scoped_folder.h"

namespace calvero::testing {

/// Runs a program to its end; whether it succeeded.
inline bool runProgram(std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t quiet;
  ::posix_spawn_file_actions_init(&quiet);
  for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
    ::posix_spawn_file_actions_addopen(&quiet, stream, "/dev/null", O_WRONLY, 0);
  }
  pid_t program = 0;
  const bool started = ::posix_spawnp(&program, arguments[0], &quiet, nullptr, arguments.data(), environ) == 0;
  ::posix_spawn_file_actions_destroy(&quiet);
  int status = 0;
  return started && ::waitpid(program, &status, 0) == program && status == 0;
}

/// A user namespace's root may mount, but no devices.
inline bool isRootOfTheMachine() {
  constexpr ino_t kInitialUserNamespace = 0xEFFFFFFD;
  struct stat status = {};
  return ::geteuid() == 0 && ::stat("/proc/self/ns/user", &status) == 0 && status.st_ino == kInitialUserNamespace;
}

/// An image file as a block device, given back with the last of its users: this object and its mounts.
class LoopDevice {
 public:
  explicit LoopDevice(const std::string& image) {
    const Descriptor file(::open(image.c_str(), O_RDWR | O_CLOEXEC));
    const Descriptor control(::open("/dev/loop-control", O_RDWR | O_CLOEXEC));
    constexpr int kAttempts = 16;  // another process may take the free device first
    for (int attempt = 0; attempt < kAttempts && !device_.isOpen(); ++attempt) {
      path_ = "/dev/loop" + std::to_string(::ioctl(control.get(), LOOP_CTL_GET_FREE));
      Descriptor candidate(::open(path_.c_str(), O_RDWR | O_CLOEXEC));
      loop_config configuration = {};
      configuration.fd = static_cast<std::uint32_t>(file.get());
      configuration.info.lo_flags = LO_FLAGS_AUTOCLEAR;
      if (::ioctl(candidate.get(), LOOP_CONFIGURE, &configuration) == 0) device_ = std::move(candidate);
    }
  }

  [[nodiscard]] bool isOpen() const { return device_.isOpen(); }
  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] dev_t number() const {
    struct stat status = {};
    return ::fstat(device_.get(), &status) == 0 ? status.st_rdev : 0;
  }

 private:
  Descriptor device_;
  std::string path_;
};

/// Real file systems in images in memory, mounted where no other process sees them.
class MountedImages : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!isRootOfTheMachine()) GTEST_SKIP() << "only root can mount images";
    const bool isolated = ::unshare(CLONE_NEWNS) == 0 &&
                          ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                          ::mount("images", folder_.path().c_str(), "tmpfs", 0, nullptr) == 0;
    if (!isolated) GTEST_SKIP() << "mounts are not allowed here";
    if (::access("/dev/loop-control", W_OK) != 0) GTEST_SKIP() << "there are no loop devices";
  }
  void TearDown() override {
    while (!mounts_.empty()) unmount(mounts_.back());
    ::umount2(folder_.path().c_str(), MNT_DETACH);
  }

  /// A new file system on a loop device, made by mkfs with `words`.
  std::unique_ptr<LoopDevice> makeFileSystem(std::vector<std::string> words, std::uint64_t mebibytes) {
    const std::string image = folder_.path() + "/image" + std::to_string(++images_);
    Descriptor(::open(image.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    std::filesystem::resize_file(image, mebibytes << 20U);
    words.push_back(image);
    if (!runProgram(words)) return nullptr;
    auto device = std::make_unique<LoopDevice>(image);
    return device->isOpen() ? std::move(device) : nullptr;
  }
  std::string makeFolder(const std::string& name) { return folder_.make(name); }
  bool mount(const std::string& source, const std::string& path, const char* type, unsigned long flags = 0,
             const std::string& options = "") {
    if (::mount(source.c_str(), path.c_str(), type, flags, options.c_str()) != 0) return false;
    mounts_.push_back(path);
    return true;
  }
  /// Notes a mount that a program made.
  void noteMount(const std::string& path) { mounts_.push_back(path); }
  void unmount(const std::string path) {
    ::umount2(path.c_str(), MNT_DETACH);
    std::erase(mounts_, path);
  }

 private:
  const ScopedFolder folder_;
  std::vector<std::string> mounts_;
  int images_ = 0;
};

}  // namespace calvero::testing
