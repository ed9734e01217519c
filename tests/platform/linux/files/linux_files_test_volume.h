#pragma once

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>

#include "platform/linux/files/linux_files.h"
#include "tests/scoped_folder.h"

namespace calvero::testing {

/// A mount that ends with the test. `done()` is false where the process may not mount.
class ScopedMount {
 public:
  ScopedMount(const std::string& source, std::string target, const char* type, unsigned long flags,
              const std::string& options = "")
      : target_(std::move(target)),
        done_(::mount(source.c_str(), target_.c_str(), type, flags, options.c_str()) == 0) {}
  ScopedMount(const ScopedMount&) = delete;
  ScopedMount& operator=(const ScopedMount&) = delete;
  ~ScopedMount() {
    if (done_) ::umount2(target_.c_str(), MNT_DETACH);
  }

  [[nodiscard]] bool done() const { return done_; }

 private:
  std::string target_;
  bool done_;
};

/// A folder that stands for a volume, and beside it a precious file that no run may touch.
class FillerVolume : public ::testing::Test {
 protected:
  FillerVolume() { plantPrecious(); }

  void plantPrecious() const { writeFile(precious_, kPreciousText); }
  [[nodiscard]] bool preciousIsUntouched() const { return readFile(precious_) == kPreciousText; }

  std::unique_ptr<FillerDirectory> create() {
    error_ = {};
    return files_.createFillerDirectory(volume_, directory_, error_);
  }
  Error check() { return files_.checkFillerDirectory(volume_, directory_); }
  /// Checking, taking over and removing all refuse the directory for this reason.
  void expectRefused(ErrorCode code, const std::string& detail) {
    EXPECT_EQ(create(), nullptr);
    for (const Error& error : {error_, check(), files_.removeFillerDirectory(volume_, directory_)}) {
      EXPECT_EQ(error.code, code) << error.text();
      EXPECT_EQ(error.detail, detail);
    }
  }

  /// The answer of `condition` in a process of another user; nothing where there can be no such process.
  std::optional<bool> asAnotherUser(const std::function<bool()>& condition) const {
    EXPECT_EQ(::chmod(top_.c_str(), 0755), 0);
    constexpr int kNotPermitted = 2;
    const pid_t child = ::fork();
    if (child == 0) {
      if (::setuid(kAnotherUser) != 0) ::_exit(kNotPermitted);
      ::_exit(condition() ? 0 : 1);
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == kNotPermitted) return std::nullopt;
    return WEXITSTATUS(status) == 0;
  }
  [[nodiscard]] std::string pathOf(const std::string& name) const { return directory_ + '/' + name; }
  static void writeFile(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
  }
  static std::string readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  /// Creates a filler file and writes `bytes` bytes to it; the bytes that were taken.
  static std::uint64_t fill(FillerDirectory& directory, const std::string& path, std::size_t bytes) {
    EXPECT_FALSE(directory.createEmptyFile(path).failed());
    Error error;
    const auto file = directory.openForWriting(path, error);
    if (!file) {
      ADD_FAILURE() << error.text();
      return 0;
    }
    const std::string data(bytes, 'x');
    const WriteResult result = file->pwrite(reinterpret_cast<const std::uint8_t*>(data.data()), bytes, 0);
    EXPECT_FALSE(file->fsync().failed());
    return result.bytes < 0 ? 0 : static_cast<std::uint64_t>(result.bytes);
  }

  static constexpr const char* kPreciousText = "precious";
  static constexpr uid_t kAnotherUser = 65533;

  const ScopedFolder folder_;
  const std::string top_ = folder_.path();
  const std::string volume_ = folder_.make("volume");
  const std::string directory_ = volume_ + "/.filler";
  const std::string precious_ = volume_ + "/precious";
  LinuxFiles files_;
  Error error_;
};

}  // namespace calvero::testing
