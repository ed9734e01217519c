#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/linux/files/linux_files.h"
#include "tests/platform/linux/volumes/mounted_images.h"

namespace calvero::testing {
namespace {

class AvailableBytes : public MountedImages {
 protected:
  /// Bytes that files on the volume take until it is full.
  static std::uint64_t fill(const std::string& folder) {
    const std::string zeros(1U << 20U, '\0');
    const int file = ::open((folder + "/fill").c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    std::uint64_t written = 0;
    for (ssize_t bytes = 0; (bytes = ::write(file, zeros.data(), zeros.size())) > 0;) {
      written += static_cast<std::uint64_t>(bytes);
    }
    ::close(file);
    return written;
  }
};

TEST_F(AvailableBytes, LeaveOutWhatExt4TellsAsFreeAndGivesToNobody) {
  constexpr std::uint64_t kMetadata = 1'000'000;  // ext4 keeps a fiftieth here, 2.6 MB
  const std::string path = makeFolder("volume");
  const auto device = makeFileSystem({"mkfs.ext4", "-q"}, 128);
  ASSERT_TRUE(device && mount(device->path(), path, "ext4"));
  Error error;
  const auto directory = LinuxFiles().createFillerDirectory(path, path + "/.filler", error);
  ASSERT_TRUE(directory) << error.text();
  const auto available = directory->availableBytes();
  ASSERT_TRUE(available);
  const std::uint64_t filled = fill(path);
  EXPECT_GE(*available, filled);
  EXPECT_LT(*available - filled, kMetadata);
  EXPECT_LT(*directory->availableBytes(), kMetadata);
}

}  // namespace
}  // namespace calvero::testing
