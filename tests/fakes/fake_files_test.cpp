#include "tests/fakes/fake_files.h"

#include <gtest/gtest.h>

#include <array>

namespace calvero::testing {
namespace {

// What no contract can ask of every file manager: the disk below it.
class FakeFilesDisk : public ::testing::Test {
 protected:
  FakeFilesDisk() {
    disk = &files.addVolume("/v", 10 * FakeDisk::kBlockBytes).disk;
    Error error;
    directory = files.createFillerDirectory("/v", "/v/d", error);
  }

  WriteResult write(const std::string& name, std::size_t blocks) {
    EXPECT_FALSE(directory->createEmptyFile("/v/d/" + name).failed());
    Error error;
    const auto file = directory->openForWriting("/v/d/" + name, error);
    return file->pwrite(data.data(), blocks * FakeDisk::kBlockBytes, 0);
  }

  std::array<std::uint8_t, 12 * FakeDisk::kBlockBytes> data{};
  Journal journal;
  FakeFiles files{journal};
  FakeDisk* disk = nullptr;
  std::unique_ptr<FillerDirectory> directory;
};

TEST_F(FakeFilesDisk, StoresWhatFitsAndThenIsFull) {
  EXPECT_EQ(write("a", 12).bytes, 10 * 4096);
  const WriteResult second = write("b", 1);
  EXPECT_EQ(second.bytes, -1);
  EXPECT_EQ(second.error.code, ErrorCode::full);
  EXPECT_EQ(disk->coveredBlocks(), 10U);
}

TEST_F(FakeFilesDisk, KeepsTheSpaceOfARemovedFileUntilItIsReleased) {
  write("a", 6);
  EXPECT_FALSE(directory->removeItem("/v/d/a").failed());
  EXPECT_EQ(disk->takenBlocks(), 6U);
  directory->releaseSpace();
  EXPECT_EQ(disk->takenBlocks(), 0U);
}

TEST_F(FakeFilesDisk, KeepsTheSpaceOfAFileForWhichItHasNoHandle) {
  files.setHandleLimit(0);
  write("a", 6);
  EXPECT_FALSE(directory->removeItem("/v/d/a").failed());
  EXPECT_EQ(write("b", 6).bytes, 4 * 4096);
  EXPECT_EQ(disk->coveredBlocks(), 10U);
  directory->releaseSpace();
  EXPECT_EQ(disk->takenBlocks(), 4U);
}

TEST_F(FakeFilesDisk, GivesEverythingBackWithTheDirectory) {
  write("a", 4);
  write("b", 4);
  EXPECT_FALSE(directory->removeItem("/v/d/a").failed());
  EXPECT_FALSE(directory->remove().failed());
  directory.reset();
  EXPECT_EQ(disk->takenBlocks(), 0U);
}

}  // namespace
}  // namespace calvero::testing
