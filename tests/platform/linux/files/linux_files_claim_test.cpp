#include <fcntl.h>
#include <linux/fs.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <array>

#include "platform/linux/system/descriptor.h"
#include "tests/platform/linux/files/linux_files_test_volume.h"

namespace calvero::testing {
namespace {

namespace fs = std::filesystem;

class FillerDirectoryClaim : public FillerVolume {
 protected:
  void makeLeftDirectory(mode_t mode = S_IRWXU) const {
    fs::create_directory(directory_);
    ASSERT_EQ(::chmod(directory_.c_str(), mode), 0);
  }
  static bool setAttributes(const std::string& path, int attributes) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    return ::ioctl(file.get(), FS_IOC_SETFLAGS, &attributes) == 0;
  }
  [[nodiscard]] mode_t modeOf(const std::string& path) const {
    struct stat found = {};
    EXPECT_EQ(::stat(path.c_str(), &found), 0);
    return found.st_mode & 07777;
  }
};

TEST_F(FillerDirectoryClaim, MakesADirectoryThatOnlyItsOwnerMayEnter) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr) << error_.text();
  EXPECT_EQ(modeOf(directory_), 0700U);
}

TEST_F(FillerDirectoryClaim, ClosesALeftDirectoryToOthers) {
  makeLeftDirectory(0777);
  const auto directory = create();
  ASSERT_NE(directory, nullptr) << error_.text();
  EXPECT_EQ(modeOf(directory_), 0700U);
}

TEST_F(FillerDirectoryClaim, SetsTheModesWhateverTheUmaskOfTheCaller) {
  for (const mode_t mask : {0777U, 0700U, 0U}) {
    const mode_t before = ::umask(mask);
    const auto directory = create();
    const bool isMade = directory && !directory->createEmptyFile(pathOf(".temp0")).failed();
    ::umask(before);
    ASSERT_TRUE(isMade) << error_.text();
    EXPECT_EQ(modeOf(directory_), 0700U);
    EXPECT_EQ(modeOf(pathOf(".temp0")), 0600U);
  }
}

TEST_F(FillerDirectoryClaim, TakesOverADirectoryThatItsOwnerMayNotEnter) {
  for (const mode_t mode : {0000U, 0500U, 0077U}) {
    makeLeftDirectory(mode);
    ASSERT_EQ(::chown(directory_.c_str(), kAnotherUser, static_cast<gid_t>(-1)), 0);
    ASSERT_EQ(::chmod(volume_.c_str(), 01777), 0);
    const auto isTaken = asAnotherUser([this, mode] {
      const bool isAccepted = !check().failed() && modeOf(directory_) == mode;
      return isAccepted && create() != nullptr && modeOf(directory_) == 0700U;
    });
    if (!isTaken) GTEST_SKIP() << "needs the right to become another user";
    EXPECT_TRUE(*isTaken);
    fs::remove(directory_);
  }
}

TEST_F(FillerDirectoryClaim, SaysOfALeftDirectoryThatMayNotBeChangedThatItIsLocked) {
  makeLeftDirectory();
  for (const int attribute : {FS_IMMUTABLE_FL, FS_APPEND_FL}) {
    if (!setAttributes(directory_, attribute)) GTEST_SKIP() << "this file system has no such attribute";
    EXPECT_EQ(check().code, ErrorCode::locked);
    EXPECT_EQ(check().path, directory_);
    EXPECT_EQ(create(), nullptr);
    EXPECT_EQ(error_.code, ErrorCode::locked);
    EXPECT_EQ(error_.path, directory_);
    setAttributes(directory_, 0);
  }
  writeFile(pathOf(".temp0"), "old");
  setAttributes(pathOf(".temp0"), FS_IMMUTABLE_FL);
  EXPECT_EQ(create(), nullptr);
  EXPECT_EQ(error_.code, ErrorCode::locked);
  EXPECT_EQ(error_.path, pathOf(".temp0"));
  setAttributes(pathOf(".temp0"), 0);
}

TEST_F(FillerDirectoryClaim, RefusesASymbolicLinkAndLeavesWhatItLeadsTo) {
  const std::string target = volume_ + "/target";
  fs::create_directory(target);
  writeFile(target + "/.temp0", kPreciousText);
  fs::create_symlink(target, directory_);
  expectRefused(ErrorCode::notOurs, "it is a symbolic link");
  EXPECT_TRUE(fs::is_symlink(directory_));
  EXPECT_EQ(readFile(target + "/.temp0"), kPreciousText);
}

TEST_F(FillerDirectoryClaim, RefusesAPlainFile) {
  writeFile(directory_, kPreciousText);
  expectRefused(ErrorCode::notOurs, "it is not a folder");
  EXPECT_EQ(readFile(directory_), kPreciousText);
}

TEST_F(FillerDirectoryClaim, RefusesAFifoWithoutWaitingForItsReader) {
  ASSERT_EQ(::mkfifo(directory_.c_str(), 0600), 0);
  expectRefused(ErrorCode::notOurs, "it is not a folder");
  EXPECT_TRUE(fs::is_fifo(directory_));
}

TEST_F(FillerDirectoryClaim, RefusesAnotherUsersDirectory) {
  makeLeftDirectory(0777);
  writeFile(pathOf(".temp0"), kPreciousText);
  if (::chown(directory_.c_str(), kAnotherUser, static_cast<gid_t>(-1)) != 0) {
    GTEST_SKIP() << "needs the right to give a directory to another user";
  }
  expectRefused(ErrorCode::notOurs, "it belongs to another user");
  EXPECT_EQ(readFile(pathOf(".temp0")), kPreciousText);
  EXPECT_EQ(modeOf(directory_), 0777U);
}

TEST_F(FillerDirectoryClaim, RefusesAnotherUsersDirectoryThatItCannotOpen) {
  ASSERT_EQ(::chmod(volume_.c_str(), 01777), 0);
  makeLeftDirectory(0);
  const auto refused = asAnotherUser([this] {
    return check().code == ErrorCode::notOurs && create() == nullptr && error_.code == ErrorCode::notOurs;
  });
  if (!refused) GTEST_SKIP() << "needs the right to become another user";
  EXPECT_TRUE(*refused);
}

TEST_F(FillerDirectoryClaim, RefusesAMountPointEvenOfTheSameFileSystem) {
  const std::string target = volume_ + "/target";
  fs::create_directory(target);
  writeFile(target + "/.temp0", kPreciousText);
  makeLeftDirectory();
  const ScopedMount bind(target, directory_, "", MS_BIND);
  if (!bind.done()) GTEST_SKIP() << "needs the right to mount";
  expectRefused(ErrorCode::notOurs, "it is a mount point");
  EXPECT_EQ(readFile(target + "/.temp0"), kPreciousText);
}

TEST_F(FillerDirectoryClaim, RefusesAnotherFileSystemMountedThere) {
  makeLeftDirectory();
  const ScopedMount other("none", directory_, "tmpfs", 0, "size=1m,mode=0700");
  if (!other.done()) GTEST_SKIP() << "needs the right to mount";
  writeFile(pathOf(".temp0"), kPreciousText);
  expectRefused(ErrorCode::notOurs, "it is a mount point");
  EXPECT_EQ(readFile(pathOf(".temp0")), kPreciousText);
}

TEST_F(FillerDirectoryClaim, AVolumeThatIsABindMountItselfIsTaken) {
  const std::string second = top_ + "/second";
  fs::create_directory(second);
  const ScopedMount bind(volume_, second, "", MS_BIND);
  if (!bind.done()) GTEST_SKIP() << "needs the right to mount";
  Error error;
  EXPECT_NE(files_.createFillerDirectory(second, second + "/.filler", error), nullptr) << error.text();
}

TEST_F(FillerDirectoryClaim, RemovesWhatAnInterruptedRunLeft) {
  makeLeftDirectory();
  writeFile(pathOf(".temp0"), "old");
  fs::create_hard_link(precious_, pathOf(".temp1"));
  fs::create_symlink(precious_, pathOf(".temp2"));
  ASSERT_EQ(::mkfifo(pathOf(".temp3").c_str(), 0600), 0);
  fs::create_directory(pathOf("empty folder"));
  const auto directory = create();
  ASSERT_NE(directory, nullptr) << error_.text();
  EXPECT_TRUE(fs::is_empty(directory_));
  EXPECT_TRUE(preciousIsUntouched());
}

TEST_F(FillerDirectoryClaim, RefusesADirectoryThatHoldsAFolderWithFilesBeforeAnythingIsRemoved) {
  makeLeftDirectory(0755);
  for (int number = 0; number < 50; ++number) writeFile(pathOf(".temp" + std::to_string(number)), "old");
  fs::create_directory(pathOf("holiday"));
  writeFile(pathOf("holiday/picture"), kPreciousText);
  expectRefused(ErrorCode::notOurs, "it holds a folder with files");
  EXPECT_EQ(readFile(pathOf("holiday/picture")), kPreciousText);
  EXPECT_TRUE(fs::exists(pathOf(".temp0")));
  EXPECT_TRUE(fs::exists(pathOf(".temp49")));
  EXPECT_EQ(modeOf(directory_), 0755U);
}

TEST_F(FillerDirectoryClaim, RefusesADirectoryThatHoldsAFileThatNoRunMakes) {
  for (const char* name : {"letter", ".temp", ".temp1~", ".temporary", "temp1", ".temp-1", ".Temp1"}) {
    SCOPED_TRACE(name);
    makeLeftDirectory(0755);
    writeFile(pathOf(".temp0"), "old");
    writeFile(pathOf(name), kPreciousText);
    expectRefused(ErrorCode::notOurs, "it holds other files");
    EXPECT_EQ(LinuxFiles::bytesInLeftDirectory(volume_, directory_), 0U);
    EXPECT_EQ(readFile(pathOf(name)), kPreciousText);
    EXPECT_TRUE(fs::exists(pathOf(".temp0")));
    EXPECT_EQ(modeOf(directory_), 0755U);
    fs::remove_all(directory_);
  }
}

TEST_F(FillerDirectoryClaim, RefusesADirectoryThatHoldsALinkThatNoRunMakes) {
  makeLeftDirectory();
  fs::create_symlink(precious_, pathOf("link"));
  expectRefused(ErrorCode::notOurs, "it holds other files");
  EXPECT_TRUE(fs::is_symlink(pathOf("link")));
}

TEST_F(FillerDirectoryClaim, TakesOverWhatFileSystemsMakeOfARemovedFileThatIsOpen) {
  makeLeftDirectory();
  for (const char* name : {".fuse_hidden0000000a00000001", ".nfs00000000000a"}) writeFile(pathOf(name), "old");
  ASSERT_NE(create(), nullptr) << error_.text();
  EXPECT_TRUE(fs::is_empty(directory_));
}

TEST_F(FillerDirectoryClaim, RefusesADirectoryThatHoldsAMountPoint) {
  makeLeftDirectory();
  fs::create_directory(pathOf("inside"));
  const ScopedMount inside("none", pathOf("inside"), "tmpfs", 0, "size=1m");
  if (!inside.done()) GTEST_SKIP() << "needs the right to mount";
  expectRefused(ErrorCode::notOurs, "it leads to another volume");
}

TEST_F(FillerDirectoryClaim, CheckingALeftDirectoryChangesNothing) {
  makeLeftDirectory(0750);
  writeFile(pathOf(".temp0"), "old");
  EXPECT_FALSE(check().failed());
  EXPECT_EQ(modeOf(directory_), 0750U);
  EXPECT_EQ(readFile(pathOf(".temp0")), "old");
}

TEST_F(FillerDirectoryClaim, TheLockEndsWithTheProcessThatHeldIt) {
  std::array<int, 2> ready{};
  ASSERT_EQ(::pipe2(ready.data(), O_CLOEXEC), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    const auto directory = create();
    const char created = directory ? '1' : '0';
    if (::write(ready[1], &created, 1) == 1) ::pause();
    ::_exit(1);
  }
  char created = '0';
  EXPECT_EQ(::read(ready[0], &created, 1), 1);
  EXPECT_EQ(created, '1');
  EXPECT_EQ(create(), nullptr);
  EXPECT_EQ(error_.code, ErrorCode::busy);
  EXPECT_EQ(check().code, ErrorCode::busy);
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  EXPECT_FALSE(check().failed());
  EXPECT_NE(create(), nullptr) << error_.text();
  ::close(ready[0]);
  ::close(ready[1]);
}

TEST_F(FillerDirectoryClaim, AVolumeThatMayNotBeWrittenIsReported) {
  ASSERT_EQ(::chmod(volume_.c_str(), 0555), 0);
  const auto isRefused = [this] {
    return check().code == ErrorCode::notPermitted && create() == nullptr && error_.code == ErrorCode::notPermitted;
  };
  if (::geteuid() == 0) {
    const auto refused = asAnotherUser(isRefused);
    if (!refused) GTEST_SKIP() << "needs the right to become another user";
    EXPECT_TRUE(*refused);
  } else {
    EXPECT_TRUE(isRefused());
  }
  EXPECT_FALSE(fs::exists(directory_));
}

TEST_F(FillerDirectoryClaim, AReadOnlyVolumeIsReported) {
  for (const bool left : {false, true}) {
    if (left) makeLeftDirectory();
    const ScopedMount self(volume_, volume_, "", MS_BIND);
    if (!self.done()) GTEST_SKIP() << "needs the right to mount";
    ASSERT_EQ(::mount("", volume_.c_str(), "", MS_REMOUNT | MS_BIND | MS_RDONLY, ""), 0);
    EXPECT_EQ(check().code, ErrorCode::readOnly);
    EXPECT_EQ(create(), nullptr);
    EXPECT_EQ(error_.code, ErrorCode::readOnly);
  }
}

}  // namespace
}  // namespace calvero::testing
