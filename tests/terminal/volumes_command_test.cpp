#include "terminal/commands/volumes_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace calvero {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

MountedVolume stick() {
  return {"stick", "/media/a\nb", "FAT32", 1'500'000, 4'000'000'000, true, true, false, "stick", ""};
}

TEST(VolumesTable, ShowsSizesForPeopleAndNoControlCharacters) {
  EXPECT_EQ(volumesTable({stick()}),
            "Name   Mount path     File system     Size     Free  Read-only  Removable\n"
            "stick  /media/a\\012b  FAT32        4.00 GB  1.50 MB  no         yes\n");
}

TEST(NumberedVolumes, LeadsEachRowWithItsNumber) {
  const std::string text = numberedVolumes({stick(), stick()});
  EXPECT_THAT(text, HasSubstr("\n1)  stick"));
  EXPECT_THAT(text, HasSubstr("\n2)  stick"));
}

TEST(VolumesJson, GivesBytesAsIntegersAndFlagsAsBooleans) {
  const auto volumes = nlohmann::json::parse(volumesJson({stick()}));
  ASSERT_EQ(volumes.size(), 1U);
  EXPECT_EQ(volumes[0]["name"], "stick");
  EXPECT_EQ(volumes[0]["mountPath"], "/media/a\nb");
  EXPECT_EQ(volumes[0]["fileSystem"], "FAT32");
  EXPECT_EQ(volumes[0]["sizeBytes"], 4'000'000'000U);
  EXPECT_EQ(volumes[0]["freeBytes"], 1'500'000);
  EXPECT_EQ(volumes[0]["readOnly"], false);
  EXPECT_EQ(volumes[0]["removable"], true);
}

TEST(VolumesJson, ReplacesWhatIsNotUtf8InAPath) {
  MountedVolume volume = stick();
  volume.mountPath = "/media/\xFF";
  EXPECT_EQ(nlohmann::json::parse(volumesJson({volume}))[0]["mountPath"], "/media/\uFFFD");
}

TEST(VolumesJson, EscapesWhatATerminalWouldObey) {
  MountedVolume volume = stick();
  volume.mountPath = "/media/ö\033[2J\x7F\u009B2J\u202E\u2028";
  const std::string text = volumesJson({volume});
  EXPECT_THAT(text, HasSubstr("/media/ö\\u001b[2J\\u007f\\u009b2J\\u202e\\u2028\""));
  EXPECT_EQ(nlohmann::json::parse(text)[0]["mountPath"], volume.mountPath);
}

TEST(VolumesJson, IsAnEmptyArrayWithoutVolumes) {
  EXPECT_EQ(volumesJson({}), "[]");
}

}  // namespace
}  // namespace calvero
