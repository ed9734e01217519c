#include <sys/stat.h>

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

#include "tests/platform/linux/files/linux_files_test_volume.h"

namespace calvero::testing {
namespace {

namespace fs = std::filesystem;

/// A volume that somebody changes between a look at it and the use of what was seen.
class ChangingVolume : public FillerVolume {
 protected:
  /// Makes a run's directory; each moment passes for the first time only.
  std::unique_ptr<FillerDirectory> createWith(FillerMoments moments) {
    for (auto* moment : {&moments.directoryOpened, &moments.contentsSeen, &moments.fileSeen}) {
      *moment = [change = std::exchange(*moment, {}), passed = false]() mutable {
        if (change && !std::exchange(passed, true)) change();
      };
    }
    return LinuxFiles(std::move(moments)).createFillerDirectory(volume_, directory_, error_);
  }
  /// Opens the filler file that is exchanged before it is opened.
  Error openChanged(const std::function<void()>& change) {
    const auto run = createWith({.directoryOpened = {}, .contentsSeen = {}, .fileSeen = change});
    EXPECT_FALSE(run->createEmptyFile(pathOf(".temp0")).failed());
    Error error;
    EXPECT_EQ(run->openForWriting(pathOf(".temp0"), error), nullptr);
    EXPECT_TRUE(preciousIsUntouched());
    return error;
  }
};

TEST_F(ChangingVolume, WhoseDirectoryTheRunBeforeRemovesBeforeItIsLockedGetsANewOne) {
  const auto run =
      createWith({.directoryOpened = [this] { fs::remove(directory_); }, .contentsSeen = {}, .fileSeen = {}});
  ASSERT_NE(run, nullptr) << error_.text();
  EXPECT_TRUE(fs::is_directory(directory_));
  EXPECT_FALSE(run->createEmptyFile(pathOf(".temp0")).failed());
}

TEST_F(ChangingVolume, WhoseDirectoryIsReplacedBeforeItIsLockedIsLockedWhereItsNameLeads) {
  const auto replace = [this] {
    fs::rename(directory_, volume_ + "/moved");
    fs::create_directory(directory_);
  };
  const auto run = createWith({.directoryOpened = replace, .contentsSeen = {}, .fileSeen = {}});
  ASSERT_NE(run, nullptr) << error_.text();
  EXPECT_EQ(check().code, ErrorCode::busy);
}

TEST_F(ChangingVolume, IntoWhoseLeftDirectorySomethingIsMovedBeforeItIsClosedToOthersKeepsIt) {
  fs::create_directory(directory_);
  writeFile(pathOf(".temp0"), "old");
  const auto moveIn = [this] { fs::rename(precious_, pathOf("precious")); };
  EXPECT_EQ(createWith({.directoryOpened = {}, .contentsSeen = moveIn, .fileSeen = {}}), nullptr);
  EXPECT_EQ(error_.code, ErrorCode::notOurs);
  EXPECT_EQ(readFile(pathOf("precious")), kPreciousText);
}

TEST_F(ChangingVolume, WhoseFillerFileBecomesAnotherBeforeItIsOpenedKeepsThat) {
  const Error error = openChanged([this] {
    fs::remove(pathOf(".temp0"));
    fs::create_hard_link(precious_, pathOf(".temp0"));
  });
  EXPECT_EQ(error.code, ErrorCode::notOurs);
  EXPECT_EQ(error.detail, "it has a second name");
}

TEST_F(ChangingVolume, WhoseFillerFileBecomesALinkBeforeItIsOpenedIsNotFollowed) {
  const Error error = openChanged([this] {
    fs::remove(pathOf(".temp0"));
    fs::create_symlink(precious_, pathOf(".temp0"));
  });
  EXPECT_TRUE(error.failed());
}

}  // namespace
}  // namespace calvero::testing
