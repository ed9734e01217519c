#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ports/files.h"
#include "tests/coarse_clock.h"

namespace calvero::testing {

/// A file manager with one empty, writable volume, and a way to act on that volume behind the manager's back.
class FilesWorld {
 public:
  FilesWorld() = default;
  FilesWorld(const FilesWorld&) = delete;
  FilesWorld& operator=(const FilesWorld&) = delete;
  virtual ~FilesWorld() = default;

  virtual Files& files() = 0;
  virtual std::string volumePath() = 0;

  /// An empty directory, as an interrupted run of ours would leave it.
  virtual void plantDirectory(const std::string& path) = 0;
  /// Something that no run of ours made, under the filler directory's name.
  virtual void plantForeignDirectory(const std::string& path) = 0;
  virtual void plantFile(const std::string& path, std::uint64_t bytes) = 0;
  virtual void plantSymbolicLink(const std::string& path) = 0;
  virtual void plantFolder(const std::string& path) = 0;
  /// `path` becomes a second name of the file `existing` in the same directory.
  virtual void plantSecondName(const std::string& existing, const std::string& path) = 0;

  /// The directory gets another name in the same folder.
  virtual void rename(const std::string& directory, const std::string& path) = 0;
  /// Nothing is found under the volume's path any more, though what was open before stays so.
  virtual void takeVolumeAway() = 0;

  /// From now on no file can be opened beyond those that the run needs at one time.
  virtual void limitOpenFiles() = 0;
  virtual void removeFromOutside(const std::string& path) = 0;

  virtual bool directoryExists(const std::string& path) = 0;
  /// Size of a regular file; nothing when there is none of that name.
  virtual std::optional<std::uint64_t> bytesOf(const std::string& path) = 0;
};

using FilesWorldFactory = std::function<std::unique_ptr<FilesWorld>()>;

/// What every file manager does, the fake included. Instantiate once in each test program, with the factory of its
/// world.
class FilesContract : public ::testing::TestWithParam<FilesWorldFactory> {
 protected:
  std::unique_ptr<FillerDirectory> create() {
    Error error;
    auto created = world_->files().createFillerDirectory(volume_, directory_, error);
    EXPECT_EQ(created == nullptr, error.failed());
    lastError_ = error.code;
    return created;
  }
  ErrorCode check() { return world_->files().checkFillerDirectory(volume_, directory_).code; }
  ErrorCode removeLeft() { return world_->files().removeFillerDirectory(volume_, directory_).code; }
  [[nodiscard]] std::string pathOf(const std::string& name) const { return directory_ + '/' + name; }

  /// Creates a file and opens it; nothing on failure, which is told.
  std::unique_ptr<FillerFile> newFile(FillerDirectory& directory, const std::string& name = ".temp0") {
    EXPECT_FALSE(directory.createEmptyFile(pathOf(name)).failed());
    Error error;
    auto file = directory.openForWriting(pathOf(name), error);
    EXPECT_NE(file, nullptr) << error.text();
    return file;
  }

  /// Creates the file and writes `kBytes` to it.
  void write(FillerDirectory& directory, const std::string& name) {
    const auto file = newFile(directory, name);
    ASSERT_NE(file, nullptr);
    ASSERT_EQ(file->pwrite(kData.data(), kData.size(), 0).bytes, static_cast<std::int64_t>(kData.size()));
  }

  static constexpr std::array<std::uint8_t, 4096> kData{};

  std::unique_ptr<FilesWorld> world_ = GetParam()();
  std::string volume_ = world_->volumePath();
  std::string directory_ = volume_ + "/.filler";
  ErrorCode lastError_ = ErrorCode::none;
};

TEST_P(FilesContract, KnowsWhetherAVolumeExists) {
  EXPECT_TRUE(world_->files().exists(volume_));
  EXPECT_FALSE(world_->files().exists(volume_ + "-not-there"));
}

TEST_P(FilesContract, CheckingAVolumeCreatesNothing) {
  EXPECT_EQ(check(), ErrorCode::none);
  EXPECT_FALSE(world_->directoryExists(directory_));
}

TEST_P(FilesContract, AVolumeThatIsNotThereIsNotFound) {
  volume_ += "-not-there";
  directory_ = volume_ + "/.filler";
  EXPECT_EQ(check(), ErrorCode::notFound);
  EXPECT_EQ(create(), nullptr);
  EXPECT_EQ(lastError_, ErrorCode::notFound);
  EXPECT_EQ(removeLeft(), ErrorCode::notFound);
}

TEST_P(FilesContract, MakesTheDirectoryAndRemovesItWithEverythingInIt) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  EXPECT_TRUE(world_->directoryExists(directory_));
  write(*directory, ".temp0");
  EXPECT_FALSE(directory->createEmptyFile(pathOf(".temp1")).failed());
  EXPECT_FALSE(directory->remove().failed());
  EXPECT_FALSE(world_->directoryExists(directory_));
}

TEST_P(FilesContract, ShowsThatTheCleanUpGetsOn) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  ASSERT_FALSE(directory->createEmptyFile(pathOf(".temp0")).failed());
  const std::uint64_t before = directory->cleanUpSteps();
  directory->remove();
  EXPECT_GT(directory->cleanUpSteps(), before);
}

TEST_P(FilesContract, RemovingTwiceIsHarmless) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  EXPECT_FALSE(directory->remove().failed());
  EXPECT_EQ(directory->remove().code, ErrorCode::notFound);
}

TEST_P(FilesContract, CreatesNothingOnceTheDirectoryIsRemoved) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  ASSERT_FALSE(directory->remove().failed());
  EXPECT_EQ(directory->createEmptyFile(pathOf(".temp0")).code, ErrorCode::closed);
  EXPECT_FALSE(directory->exists(pathOf(".temp0")));
  EXPECT_FALSE(world_->directoryExists(directory_));
}

TEST_P(FilesContract, ASecondRunIsRefusedAndTheFirstGoesOn) {
  const auto first = create();
  ASSERT_NE(first, nullptr);
  write(*first, ".temp0");
  EXPECT_EQ(check(), ErrorCode::busy);
  EXPECT_EQ(create(), nullptr);
  EXPECT_EQ(lastError_, ErrorCode::busy);
  EXPECT_EQ(removeLeft(), ErrorCode::busy);
  EXPECT_EQ(world_->bytesOf(pathOf(".temp0")), kData.size());
  EXPECT_FALSE(first->createEmptyFile(pathOf(".temp1")).failed());
}

TEST_P(FilesContract, AnInterruptedRunsDirectoryIsTakenOverAndEmptied) {
  {
    const auto interrupted = create();
    ASSERT_NE(interrupted, nullptr);
    write(*interrupted, ".temp0");
  }
  EXPECT_EQ(world_->bytesOf(pathOf(".temp0")), kData.size());
  EXPECT_EQ(check(), ErrorCode::none);
  EXPECT_EQ(world_->bytesOf(pathOf(".temp0")), kData.size());
  const auto next = create();
  ASSERT_NE(next, nullptr);
  EXPECT_FALSE(next->exists(pathOf(".temp0")));
}

TEST_P(FilesContract, AnInterruptedRunsDirectoryCanBeRemoved) {
  EXPECT_EQ(removeLeft(), ErrorCode::notFound);
  world_->plantDirectory(directory_);
  world_->plantFile(pathOf(".temp0"), kData.size());
  EXPECT_EQ(removeLeft(), ErrorCode::none);
  EXPECT_FALSE(world_->directoryExists(directory_));
}

TEST_P(FilesContract, WhatNoRunMadeIsRefusedAndLeft) {
  world_->plantForeignDirectory(directory_);
  EXPECT_EQ(check(), ErrorCode::notOurs);
  EXPECT_EQ(create(), nullptr);
  EXPECT_EQ(lastError_, ErrorCode::notOurs);
  EXPECT_EQ(removeLeft(), ErrorCode::notOurs);
  EXPECT_EQ(check(), ErrorCode::notOurs);
}

TEST_P(FilesContract, CreatesEmptyFilesInPlaceOfOldOnes) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  world_->plantFile(pathOf(".temp0"), kData.size());
  EXPECT_TRUE(directory->exists(pathOf(".temp0")));
  EXPECT_FALSE(directory->createEmptyFile(pathOf(".temp0")).failed());
  EXPECT_EQ(world_->bytesOf(pathOf(".temp0")), 0U);
}

TEST_P(FilesContract, ReplacesALinkThatHasTheFilesName) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  world_->plantSymbolicLink(pathOf(".temp0"));
  EXPECT_TRUE(directory->exists(pathOf(".temp0")));
  EXPECT_FALSE(directory->createEmptyFile(pathOf(".temp0")).failed());
  EXPECT_EQ(world_->bytesOf(pathOf(".temp0")), 0U);
}

TEST_P(FilesContract, LeavesAFolderThatHasTheFilesName) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  world_->plantFolder(pathOf(".temp0"));
  EXPECT_EQ(directory->createEmptyFile(pathOf(".temp0")).code, ErrorCode::exists);
  EXPECT_TRUE(directory->exists(pathOf(".temp0")));
}

TEST_P(FilesContract, OpensOnlyWhatItCreated) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  world_->plantFile(pathOf("full"), kData.size());
  world_->plantSymbolicLink(pathOf("link"));
  world_->plantFolder(pathOf("folder"));
  world_->plantFile(pathOf("twice"), 0);
  world_->plantSecondName(pathOf("twice"), pathOf("second"));
  for (const char* name : {"full", "link", "folder", "twice", "second"}) {
    Error error;
    EXPECT_EQ(directory->openForWriting(pathOf(name), error), nullptr) << name;
    EXPECT_EQ(error.code, ErrorCode::notOurs) << name;
  }
  Error error;
  EXPECT_EQ(directory->openForWriting(pathOf("absent"), error), nullptr);
  EXPECT_EQ(error.code, ErrorCode::notFound);
}

TEST_P(FilesContract, WritesWhereItIsTold) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  const auto file = newFile(*directory);
  ASSERT_NE(file, nullptr);
  const auto bytes = static_cast<std::int64_t>(kData.size());
  EXPECT_EQ(file->pwrite(kData.data(), kData.size(), 0).bytes, bytes);
  EXPECT_EQ(file->pwrite(kData.data(), kData.size(), kData.size()).bytes, bytes);
  EXPECT_EQ(file->pwrite(kData.data(), kData.size(), 0).bytes, bytes);
  EXPECT_FALSE(file->fsync().failed());
  EXPECT_EQ(world_->bytesOf(pathOf(".temp0")), 2 * kData.size());
}

TEST_P(FilesContract, ReadsTheAttributesOfWhatExistsOnly) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  ASSERT_FALSE(directory->createEmptyFile(pathOf(".temp0")).failed());
  EXPECT_FALSE(directory->readAttributes(pathOf(".temp0")).failed());
  EXPECT_EQ(directory->readAttributes(pathOf(".temp1")).code, ErrorCode::notFound);
}

TEST_P(FilesContract, WritingNoBufferFails) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  const auto file = newFile(*directory);
  ASSERT_NE(file, nullptr);
  const WriteResult result = file->pwrite(nullptr, kData.size(), 0);
  EXPECT_EQ(result.bytes, -1);
  EXPECT_TRUE(result.error.failed());
  EXPECT_EQ(result.error.operation, "pwrite");
  EXPECT_EQ(result.error.path, pathOf(".temp0"));
  EXPECT_FALSE(result.error.detail.empty());
}

TEST_P(FilesContract, AVolumeThatWasTakenAwayHasNoFilesAndTakesNoWrites) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  const auto file = newFile(*directory);
  ASSERT_NE(file, nullptr);
  world_->takeVolumeAway();
  EXPECT_FALSE(directory->exists(pathOf(".temp0")));
  EXPECT_EQ(directory->createEmptyFile(pathOf(".temp1")).code, ErrorCode::gone);
  const WriteResult result = file->pwrite(kData.data(), kData.size(), 0);
  EXPECT_EQ(result.bytes, -1);
  EXPECT_EQ(result.error.code, ErrorCode::gone);
}

TEST_P(FilesContract, ARenamedDirectoryHasNoFilesAnyMore) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  write(*directory, ".temp0");
  world_->rename(directory_, volume_ + "/renamed");
  EXPECT_FALSE(directory->exists(pathOf(".temp0")));
  world_->plantDirectory(directory_);
  world_->plantFile(pathOf(".temp0"), 0);
  EXPECT_FALSE(directory->exists(pathOf(".temp0"))) << "another's";
}

TEST_P(FilesContract, ARenamedDirectoryIsRemovedUnderItsNewNameAndNothingElseIs) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  write(*directory, ".temp0");
  world_->rename(directory_, volume_ + "/renamed");
  world_->plantDirectory(directory_);
  EXPECT_FALSE(directory->remove().failed());
  EXPECT_FALSE(world_->directoryExists(volume_ + "/renamed"));
  EXPECT_TRUE(world_->directoryExists(directory_));
  EXPECT_EQ(directory->remove().code, ErrorCode::notFound);
  EXPECT_TRUE(world_->directoryExists(directory_));
}

TEST_P(FilesContract, RemovesAFilesNameOnce) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  write(*directory, ".temp0");
  EXPECT_FALSE(directory->removeItem(pathOf(".temp0")).failed());
  EXPECT_FALSE(directory->exists(pathOf(".temp0")));
  EXPECT_FALSE(world_->bytesOf(pathOf(".temp0")).has_value());
  EXPECT_EQ(directory->removeItem(pathOf(".temp0")).code, ErrorCode::notFound);
  EXPECT_EQ(directory->bytesNotKept(), 0U);
}

TEST_P(FilesContract, LeavesAFilesNameUntilTheReleaseWhereTheLimitOfOpenFilesLetsNothingElseHoldItsSpace) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  world_->limitOpenFiles();
  write(*directory, ".temp0");
  ASSERT_FALSE(directory->createEmptyFile(pathOf(".temp1")).failed());
  EXPECT_FALSE(directory->removeItem(pathOf(".temp0")).failed());
  EXPECT_FALSE(directory->removeItem(pathOf(".temp1")).failed());
  EXPECT_EQ(world_->bytesOf(pathOf(".temp0")), kData.size());
  EXPECT_FALSE(directory->exists(pathOf(".temp1"))) << "it holds nothing";
  directory->releaseSpace();
  EXPECT_FALSE(directory->exists(pathOf(".temp0")));
  EXPECT_EQ(directory->bytesNotKept(), 0U);
}

TEST_P(FilesContract, RemovesTheNamesThatHoldSpaceWithTheDirectory) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  world_->limitOpenFiles();
  write(*directory, ".temp0");
  ASSERT_FALSE(directory->removeItem(pathOf(".temp0")).failed());
  EXPECT_FALSE(directory->remove().failed());
  EXPECT_FALSE(world_->directoryExists(directory_));
  EXPECT_EQ(directory->bytesNotKept(), 0U);
}

TEST_P(FilesContract, TellsTheSpaceOfANameThatAnotherProgramHasRemoved) {
  const auto directory = create();
  ASSERT_NE(directory, nullptr);
  world_->limitOpenFiles();
  for (const char* name : {".temp0", ".temp1", ".temp2"}) {
    write(*directory, name);
    ASSERT_FALSE(directory->removeItem(pathOf(name)).failed());
  }
  world_->removeFromOutside(pathOf(".temp0"));
  world_->removeFromOutside(pathOf(".temp1"));
  waitForTheNextTimestamp();
  world_->plantFile(pathOf(".temp1"), kData.size());
  EXPECT_EQ(directory->bytesNotKept(), 0U) << "nobody has looked yet";
  directory->releaseSpace();
  EXPECT_EQ(directory->bytesNotKept(), 2 * kData.size());
  directory->releaseSpace();
  EXPECT_FALSE(directory->remove().failed());
  EXPECT_EQ(directory->bytesNotKept(), 2 * kData.size()) << "each is counted once";
}

}  // namespace calvero::testing
