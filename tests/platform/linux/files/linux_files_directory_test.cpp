#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/sysmacros.h>

#include <array>
#include <csignal>
#include <string>

#include "platform/linux/process/process_limits.h"
#include "platform/linux/system/file_identity.h"
#include "tests/platform/linux/files/linux_files_test_volume.h"
#include "tests/platform/linux/files/scoped_open_file_limit.h"

namespace calvero::testing {
namespace {

namespace fs = std::filesystem;

class FillerDirectoryFiles : public FillerVolume {
 protected:
  void SetUp() override {
    run_ = create();
    ASSERT_NE(run_, nullptr) << error_.text();
  }
  void expectNotOpened(const std::string& detail) {
    Error error;
    EXPECT_EQ(run_->openForWriting(pathOf(".temp0"), error), nullptr);
    EXPECT_EQ(error.code, ErrorCode::notOurs) << error.text();
    EXPECT_EQ(error.detail, detail);
    EXPECT_TRUE(preciousIsUntouched());
  }
  /// Whatever was planted is replaced by an empty file of our own.
  void expectReplaced() {
    EXPECT_FALSE(run_->createEmptyFile(pathOf(".temp0")).failed());
    struct stat found = {};
    ASSERT_EQ(::lstat(pathOf(".temp0").c_str(), &found), 0);
    EXPECT_TRUE(S_ISREG(found.st_mode));
    EXPECT_EQ(found.st_mode & 07777, 0600U);
    EXPECT_EQ(found.st_size, 0);
    EXPECT_EQ(found.st_nlink, 1U);
    EXPECT_TRUE(preciousIsUntouched());
  }

  std::unique_ptr<FillerDirectory> run_;
};

TEST_F(FillerDirectoryFiles, CreatesAnEmptyFileForTheOwnerAlone) {
  expectReplaced();
}

TEST_F(FillerDirectoryFiles, UnlinksAHardLinkInsteadOfTruncatingIt) {
  fs::create_hard_link(precious_, pathOf(".temp0"));
  expectReplaced();
}

TEST_F(FillerDirectoryFiles, UnlinksASymbolicLinkInsteadOfFollowingIt) {
  fs::create_symlink(precious_, pathOf(".temp0"));
  expectReplaced();
}

TEST_F(FillerDirectoryFiles, UnlinksALinkToNowhereInsteadOfCreatingItsTarget) {
  fs::create_symlink(volume_ + "/new", pathOf(".temp0"));
  expectReplaced();
  EXPECT_FALSE(fs::exists(volume_ + "/new"));
}

TEST_F(FillerDirectoryFiles, UnlinksAFifoInsteadOfWaitingForItsReader) {
  ASSERT_EQ(::mkfifo(pathOf(".temp0").c_str(), 0600), 0);
  expectReplaced();
}

TEST_F(FillerDirectoryFiles, LeavesAFolderOfThatName) {
  fs::create_directory(pathOf(".temp0"));
  EXPECT_EQ(run_->createEmptyFile(pathOf(".temp0")).code, ErrorCode::exists);
  EXPECT_TRUE(fs::is_directory(pathOf(".temp0")));
}

TEST_F(FillerDirectoryFiles, UsesOnlyTheLastPartOfAPath) {
  EXPECT_FALSE(run_->createEmptyFile("/elsewhere/.temp0").failed());
  EXPECT_TRUE(fs::exists(pathOf(".temp0")));
  EXPECT_TRUE(run_->exists(".temp0"));
}

TEST_F(FillerDirectoryFiles, DoesNotOpenAHardLinkThatTookTheFilesPlace) {
  fs::create_hard_link(precious_, pathOf(".temp0"));
  expectNotOpened("it has a second name");
}

TEST_F(FillerDirectoryFiles, DoesNotOpenASymbolicLinkThatTookTheFilesPlace) {
  fs::create_symlink(precious_, pathOf(".temp0"));
  expectNotOpened("it is not a regular file");
}

TEST_F(FillerDirectoryFiles, DoesNotWaitForTheReaderOfAFifoThatTookTheFilesPlace) {
  ASSERT_EQ(::mkfifo(pathOf(".temp0").c_str(), 0600), 0);
  expectNotOpened("it is not a regular file");
}

TEST_F(FillerDirectoryFiles, DoesNotOpenAFolderThatTookTheFilesPlace) {
  fs::create_directory(pathOf(".temp0"));
  expectNotOpened("it is not a regular file");
}

TEST_F(FillerDirectoryFiles, DoesNotOpenADeviceThatTookTheFilesPlace) {
  if (::mknod(pathOf(".temp0").c_str(), S_IFCHR | 0600, makedev(1, 3)) != 0) {
    GTEST_SKIP() << "needs the right to make a device";
  }
  expectNotOpened("it is not a regular file");
}

TEST_F(FillerDirectoryFiles, DoesNotOpenAnotherFileThatTookTheFilesPlace) {
  fs::rename(precious_, pathOf(".temp0"));
  Error error;
  EXPECT_EQ(run_->openForWriting(pathOf(".temp0"), error), nullptr);
  EXPECT_EQ(error.detail, "it is not empty");
  EXPECT_EQ(readFile(pathOf(".temp0")), kPreciousText);
}

TEST_F(FillerDirectoryFiles, DoesNotOpenAFileThatIsMountedOverTheFillerFile) {
  writeFile(volume_ + "/nothing in it", "");
  ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp0")).failed());
  const ScopedMount bind(volume_ + "/nothing in it", pathOf(".temp0"), "", MS_BIND);
  if (!bind.done()) GTEST_SKIP() << "needs the right to mount";
  expectNotOpened("it is a mount point");
}

TEST_F(FillerDirectoryFiles, GoesOnInARenamedDirectory) {
  fs::rename(directory_, volume_ + "/renamed");
  fs::create_directory(directory_);
  EXPECT_FALSE(run_->createEmptyFile(pathOf(".temp0")).failed());
  EXPECT_TRUE(fs::exists(volume_ + "/renamed/.temp0"));
  EXPECT_TRUE(fs::is_empty(directory_));
}

TEST_F(FillerDirectoryFiles, RemovesOnlyTheNameOfALinkInTheFilesPlace) {
  fs::create_symlink(precious_, pathOf(".temp0"));
  EXPECT_FALSE(run_->removeItem(pathOf(".temp0")).failed());
  fs::create_hard_link(precious_, pathOf(".temp1"));
  EXPECT_FALSE(run_->removeItem(pathOf(".temp1")).failed());
  EXPECT_FALSE(run_->exists(pathOf(".temp0")));
  EXPECT_FALSE(run_->exists(pathOf(".temp1")));
  EXPECT_TRUE(preciousIsUntouched());
}

TEST_F(FillerDirectoryFiles, RemovesAFifoWithoutOpeningIt) {
  ASSERT_EQ(::mkfifo(pathOf(".temp0").c_str(), 0600), 0);
  EXPECT_FALSE(run_->removeItem(pathOf(".temp0")).failed());
  EXPECT_TRUE(fs::is_empty(directory_));
}

TEST_F(FillerDirectoryFiles, CountsTheSpaceOfALeftDirectoryThatNoRunHolds) {
  fill(*run_, pathOf(".temp0"), 65536);
  fill(*run_, pathOf(".temp1"), 65536);
  fs::create_hard_link(precious_, pathOf(".temp2"));
  EXPECT_EQ(LinuxFiles::bytesInLeftDirectory(volume_, directory_), 0U) << "a run holds it";
  run_.reset();
  EXPECT_EQ(LinuxFiles::bytesInLeftDirectory(volume_, directory_), 2 * 65536U);
  fs::rename(directory_, volume_ + "/renamed");
  EXPECT_EQ(LinuxFiles::bytesInLeftDirectory(volume_, directory_), 0U) << "there is none";
  fs::create_directory_symlink(volume_ + "/renamed", directory_);
  EXPECT_EQ(LinuxFiles::bytesInLeftDirectory(volume_, directory_), 0U) << "it is a link";
}

TEST_F(FillerDirectoryFiles, LeavesTheNamesOfWhatItCannotHoldAtTheLimitOfOpenFiles) {
  for (const char* name : {".temp0", ".temp1", ".temp2", ".temp3"}) fill(*run_, pathOf(name), 65536);
  {
    const ScopedOpenFileLimit limit(2, kSpareDescriptors);
    for (const char* name : {".temp0", ".temp1", ".temp2", ".temp3"}) {
      EXPECT_FALSE(run_->removeItem(pathOf(name)).failed());
    }
    EXPECT_FALSE(run_->createEmptyFile(pathOf(".temp4")).failed()) << "the last descriptors are not for holding";
  }
  for (const char* name : {".temp0", ".temp1"}) EXPECT_FALSE(run_->exists(pathOf(name)));
  for (const char* name : {".temp2", ".temp3"}) EXPECT_TRUE(run_->exists(pathOf(name)));
  run_->releaseSpace();
  for (const char* name : {".temp2", ".temp3"}) EXPECT_FALSE(run_->exists(pathOf(name)));
  EXPECT_EQ(run_->bytesNotKept(), 0U);
}

TEST_F(FillerDirectoryFiles, HoldsByADescriptorAtTheSecondAttemptWhatItHeldByItsName) {
  fill(*run_, pathOf(".temp0"), 65536);
  {
    const ScopedOpenFileLimit limit(0);
    ASSERT_FALSE(run_->removeItem(pathOf(".temp0")).failed());
    ASSERT_TRUE(run_->exists(pathOf(".temp0")));
  }
  EXPECT_FALSE(run_->removeItem(pathOf(".temp0")).failed());
  EXPECT_FALSE(run_->exists(pathOf(".temp0")));
  run_->releaseSpace();
  EXPECT_EQ(run_->bytesNotKept(), 0U) << "nobody else removed the name";
}

TEST_F(FillerDirectoryFiles, TellsTheSpaceOfAHeldNameWhoseFileWasCutShort) {
  fill(*run_, pathOf(".temp0"), 65536);
  {
    const ScopedOpenFileLimit limit(0);
    ASSERT_FALSE(run_->removeItem(pathOf(".temp0")).failed());
  }
  fs::resize_file(pathOf(".temp0"), 4096);
  run_->releaseSpace();
  EXPECT_EQ(run_->bytesNotKept(), 65536U);
}

TEST_F(FillerDirectoryFiles, HoldsARemovedFileWithADescriptorThatCannotWrite) {
  fill(*run_, pathOf(".temp0"), 65536);
  const auto identity = identityAt(AT_FDCWD, pathOf(".temp0").c_str());
  ASSERT_TRUE(identity.has_value());
  ASSERT_FALSE(run_->removeItem(pathOf(".temp0")).failed());
  int held = 0;
  for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
    const int descriptor = std::stoi(entry.path().filename());
    const auto found = identityOf(descriptor);
    if (!found || !found->isSameFile(*identity)) continue;
    ++held;
    EXPECT_EQ(::fcntl(descriptor, F_GETFL) & O_ACCMODE, O_RDONLY);
  }
  EXPECT_EQ(held, 1);
}

TEST_F(FillerDirectoryFiles, ReportsAFileThatCannotBeMadeForWantOfDescriptors) {
  const ScopedOpenFileLimit limit(0);
  EXPECT_EQ(run_->createEmptyFile(pathOf(".temp0")).code, ErrorCode::noHandles);
}

TEST_F(FillerDirectoryFiles, HoldsNoEmptyFile) {
  ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp0")).failed());
  const ScopedOpenFileLimit limit(0);
  EXPECT_FALSE(run_->removeItem(pathOf(".temp0")).failed());
  EXPECT_EQ(run_->bytesNotKept(), 0U);
}

/// A volume of its own with 8 MiB, whose free space nobody else changes.
class FillerSpace : public FillerVolume {
 protected:
  static constexpr std::size_t kFileBytes = 2U << 20U;

  FillerSpace() : mount_("none", volume_, "tmpfs", 0, "size=8m,mode=0755") {}
  void SetUp() override {
    if (!mount_.done()) GTEST_SKIP() << "needs the right to mount";
    run_ = create();
    ASSERT_NE(run_, nullptr) << error_.text();
    freeAtStart_ = freeBytes();
  }
  [[nodiscard]] std::uint64_t freeBytes() const {
    struct statvfs found = {};
    EXPECT_EQ(::statvfs(volume_.c_str(), &found), 0);
    return found.f_bavail * found.f_frsize;
  }

  ScopedMount mount_;
  std::unique_ptr<FillerDirectory> run_;
  std::uint64_t freeAtStart_ = 0;
};

TEST_F(FillerSpace, OfARemovedFileStaysTakenUntilItIsReleased) {
  ASSERT_EQ(fill(*run_, pathOf(".temp0"), kFileBytes), kFileBytes);
  ASSERT_FALSE(run_->removeItem(pathOf(".temp0")).failed());
  EXPECT_FALSE(run_->exists(pathOf(".temp0")));
  EXPECT_LE(freeBytes(), freeAtStart_ - kFileBytes);
  run_->releaseSpace();
  EXPECT_EQ(freeBytes(), freeAtStart_);
}

TEST_F(FillerSpace, ReleasedOnceIsKeptAgainForTheNextFile) {
  run_->releaseSpace();
  ASSERT_EQ(fill(*run_, pathOf(".temp0"), kFileBytes), kFileBytes);
  ASSERT_FALSE(run_->removeItem(pathOf(".temp0")).failed());
  EXPECT_LE(freeBytes(), freeAtStart_ - kFileBytes);
}

TEST_F(FillerSpace, IsGivenBackWithTheDirectory) {
  for (const bool removed : {true, false}) {
    ASSERT_EQ(fill(*run_, pathOf(".temp0"), kFileBytes), kFileBytes);
    ASSERT_FALSE(run_->removeItem(pathOf(".temp0")).failed());
    if (removed) {
      EXPECT_FALSE(run_->remove().failed());
    } else {
      run_.reset();
    }
    EXPECT_GE(freeBytes(), freeAtStart_);
    run_ = create();
    ASSERT_NE(run_, nullptr) << error_.text();
  }
}

TEST_F(FillerSpace, IsNotKeptForAWorkerThatComesAfterTheRemoval) {
  ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp0")).failed());
  Error error;
  auto file = run_->openForWriting(pathOf(".temp0"), error);
  ASSERT_NE(file, nullptr) << error.text();
  ASSERT_FALSE(run_->remove().failed());
  const std::array<std::uint8_t, 4096> data{};
  EXPECT_EQ(file->pwrite(data.data(), data.size(), 0).bytes, 4096);
  file.reset();
  EXPECT_EQ(run_->removeItem(pathOf(".temp0")).code, ErrorCode::notFound);
  EXPECT_GE(freeBytes(), freeAtStart_);
}

TEST_F(FillerSpace, RunsOutAsAFullVolume) {
  ASSERT_LT(fill(*run_, pathOf(".temp0"), 16U << 20U), 16U << 20U) << "a short write is returned as it is";
  ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp1")).failed());
  Error error;
  const auto file = run_->openForWriting(pathOf(".temp1"), error);
  ASSERT_NE(file, nullptr) << error.text();
  const std::array<std::uint8_t, 4096> data{};
  const WriteResult result = file->pwrite(data.data(), data.size(), 0);
  EXPECT_EQ(result.bytes, -1);
  EXPECT_EQ(result.error.code, ErrorCode::full);
}

TEST_F(FillerSpace, ThatTheLimitOfFileSizesForbidsIsToldInTheSystemsWords) {
  ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp0")).failed());
  Error error;
  const auto file = run_->openForWriting(pathOf(".temp0"), error);
  ASSERT_NE(file, nullptr) << error.text();
  rlimit before = {};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto signalBefore = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit none = {.rlim_cur = 0, .rlim_max = before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &none), 0);
  const std::array<std::uint8_t, 4096> data{};
  const WriteResult result = file->pwrite(data.data(), data.size(), 0);
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
  std::signal(SIGXFSZ, signalBefore);
  EXPECT_EQ(result.error.text(), "pwrite " + pathOf(".temp0") + ": File too large");
}

TEST_F(FillerSpace, OfAVolumeThatTurnsReadOnlyIsReportedAsSuch) {
  ASSERT_FALSE(run_->createEmptyFile(pathOf(".temp0")).failed());
  ASSERT_EQ(::mount("", volume_.c_str(), "", MS_REMOUNT | MS_RDONLY, ""), 0);
  Error error;
  EXPECT_EQ(run_->openForWriting(pathOf(".temp0"), error), nullptr);
  EXPECT_EQ(error.code, ErrorCode::readOnly);
  EXPECT_EQ(run_->removeItem(pathOf(".temp0")).code, ErrorCode::readOnly);
  EXPECT_EQ(run_->createEmptyFile(pathOf(".temp1")).code, ErrorCode::readOnly);
  EXPECT_EQ(run_->remove().code, ErrorCode::readOnly);
}

}  // namespace
}  // namespace calvero::testing
