#include "wipe/filler_names.h"

#include <gtest/gtest.h>

#include <limits>

namespace calvero {
namespace {

TEST(FillerNames, PutTheHiddenDirectoryAtTheVolumesRoot) {
  EXPECT_EQ(fillerDirectoryPath("/media/X"), "/media/X/.$$XE8AQU");
}

TEST(FillerNames, DoNotDoubleTheSlashOfTheRootVolume) {
  EXPECT_EQ(fillerDirectoryPath("/"), "/.$$XE8AQU");
  EXPECT_EQ(fillerFilePath("/", 0), "/.$$XE8AQU/.temp0");
}

TEST(FillerNames, NumberTheFilesInDecimalWithoutPadding) {
  EXPECT_EQ(fillerFilePath("/media/X", 0), "/media/X/.$$XE8AQU/.temp0");
  EXPECT_EQ(fillerFilePath("/media/X", 12), "/media/X/.$$XE8AQU/.temp12");
  EXPECT_EQ(fillerFilePath("/media/X", std::numeric_limits<std::uint64_t>::max()),
            "/media/X/.$$XE8AQU/.temp18446744073709551615");
}

}  // namespace
}  // namespace calvero
