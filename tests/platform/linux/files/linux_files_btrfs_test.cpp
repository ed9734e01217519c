#include <fcntl.h>
#include <linux/btrfs.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "platform/linux/files/linux_files.h"
#include "tests/platform/linux/volumes/mounted_images.h"

namespace calvero::testing {
namespace {

namespace fs = std::filesystem;

/// Filler directories on a mounted Btrfs, which commits only when it is told to.
class FillersOnBtrfs : public MountedImages {
 protected:
  void SetUp() override {
    MountedImages::SetUp();
    if (IsSkipped()) return;
    volume_ = makeFolder("volume");
    directory_ = volume_ + "/.filler";
    device_ = makeFileSystem({"mkfs.btrfs", "-q"}, 128);
    ASSERT_TRUE(device_ && mount(device_->path(), volume_, "btrfs", 0, "commit=300"));
  }
  std::unique_ptr<FillerDirectory> create() { return files_.createFillerDirectory(volume_, directory_, error_); }
  std::unique_ptr<FillerFile> newFile(FillerDirectory& directory) {
    EXPECT_FALSE(directory.createEmptyFile(directory_ + "/.temp0").failed());
    return directory.openForWriting(directory_ + "/.temp0", error_);
  }
  static int attributesOf(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    int flags = 0;
    EXPECT_EQ(::ioctl(file.get(), FS_IOC_GETFLAGS, &flags), 0) << path;
    return flags;
  }
  static void addAttribute(const std::string& path, int attribute) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    int flags = attributesOf(path) | attribute;
    EXPECT_EQ(::ioctl(file.get(), FS_IOC_SETFLAGS, &flags), 0) << path;
  }
  static void writeAndFlush(FillerFile& file) {
    const std::array<std::uint8_t, 4096> data{};
    EXPECT_EQ(file.pwrite(data.data(), data.size(), 0).bytes, 4096);
    EXPECT_FALSE(file.fsync().failed());
  }
  /// The number of the transaction that is under way: it grows with the first change after each commit.
  [[nodiscard]] std::uint64_t generation() const {
    const Descriptor root(::open(volume_.c_str(), O_RDONLY | O_CLOEXEC));
    btrfs_ioctl_fs_info_args about = {};
    about.flags = BTRFS_FS_INFO_FLAG_GENERATION;
    EXPECT_EQ(::ioctl(root.get(), BTRFS_IOC_FS_INFO, &about), 0);
    return about.generation;
  }
  void syncVolume() const {
    const Descriptor root(::open(volume_.c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(::syncfs(root.get()), 0);
  }
  [[nodiscard]] bool makeSubvolume(const std::string& path) const {
    return runProgram({"btrfs", "subvolume", "create", path});
  }
  void expectRefused(const std::string& detail) {
    EXPECT_EQ(create(), nullptr);
    for (const Error& error : {error_, files_.checkFillerDirectory(volume_, directory_),
                               files_.removeFillerDirectory(volume_, directory_)}) {
      EXPECT_EQ(error.code, ErrorCode::notOurs) << error.text();
      EXPECT_EQ(error.detail, detail);
    }
  }

  std::string volume_;
  std::string directory_;
  std::unique_ptr<LoopDevice> device_;
  LinuxFiles files_;
  Error error_;
};

TEST_F(FillersOnBtrfs, AreWrittenInPlace) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr) << error_.text();
  ASSERT_NE(newFile(*directory), nullptr) << error_.text();
  EXPECT_NE(attributesOf(directory_ + "/.temp0") & FS_NOCOW_FL, 0);
}

TEST_F(FillersOnBtrfs, AreWrittenInPlaceAndWholeWhereTheVolumeCompressesItsFiles) {
  addAttribute(volume_, FS_COMPR_FL);
  const auto directory = create();
  ASSERT_NE(directory, nullptr) << error_.text();
  ASSERT_NE(newFile(*directory), nullptr) << error_.text();
  EXPECT_EQ(attributesOf(directory_ + "/.temp0") & (FS_NOCOW_FL | FS_COMPR_FL), FS_NOCOW_FL);
}

TEST_F(FillersOnBtrfs, AreCommittedWithTheWholeFileSystemAtEvery128thFlush) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr) << error_.text();
  const auto file = newFile(*directory);
  ASSERT_NE(file, nullptr) << error_.text();
  syncVolume();
  writeAndFlush(*file);
  const std::uint64_t first = generation();
  for (int flushes = 1; flushes < 128; ++flushes) {
    writeAndFlush(*file);
    ASSERT_EQ(generation(), first) << "a commit after " << flushes << " flushes";
  }
  writeAndFlush(*file);
  EXPECT_EQ(generation(), first + 1);
}

TEST_F(FillersOnBtrfs, AreNotLaidOutInAnotherSubvolume) {
  ASSERT_TRUE(makeSubvolume(directory_));
  expectRefused("it is on another file system");
}

TEST_F(FillersOnBtrfs, AreNotLaidOutWhereASubvolumeIsLeft) {
  fs::create_directory(directory_);
  ASSERT_TRUE(makeSubvolume(directory_ + "/inside"));
  expectRefused("it leads to another volume");
}

}  // namespace
}  // namespace calvero::testing
