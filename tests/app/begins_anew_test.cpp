#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::IsEmpty;
using testing::World;

/// What the controller forgets when it begins anew, with every new list of the volumes.
class BeginsAnew : public ::testing::Test {
 protected:
  /// The picker's index as it is when the controller begins anew.
  std::size_t indexWhileReloading() {
    std::size_t index = 0;
    world.journal.whenAdded([&](const std::string& entry) {
      if (entry == "log init") index = world.app().shell().currentSelectionG;
    });
    world.app().reloadVolumes();
    return index;
  }

  World world;
};

TEST_F(BeginsAnew, WithTheFlagsOfTheLastRunCleared) {
  world.volume("DATA", 100);
  AppDelegate& app = world.create();
  app.setAbortErasing(true);
  app.currentRun()->volumeEjected = 1;
  app.init();
  EXPECT_FALSE(app.abortErasing());
  EXPECT_EQ(app.currentRun()->volumeEjected, 0);
}

TEST_F(BeginsAnew, WithoutTheRowThatWasAddedLast) {
  world.volume("DATA", 100);
  AppDelegate& app = world.create();
  ASSERT_EQ(app.shell().mutdictForArrayController.at("Drives"), "DATA");
  world.volumes.remove("DATA");
  app.init();
  EXPECT_THAT(app.shell().mutdictForArrayController, IsEmpty());
}

TEST_F(BeginsAnew, FromTheLastVolumesIndexUntilTheListIsMade) {
  world.volume("DATA", 100);
  world.volume("MORE", 100);
  world.volume("MOST", 100);
  world.create();
  EXPECT_EQ(indexWhileReloading(), 2U);
  EXPECT_EQ(world.app().shell().currentSelectionG, 0U);
}

TEST_F(BeginsAnew, FromTheGreatestIndexWhenTheListWasEmpty) {
  world.create();
  EXPECT_EQ(indexWhileReloading(), std::numeric_limits<std::size_t>::max());
  EXPECT_EQ(world.app().shell().currentSelectionG, 0U);
}

}  // namespace
}  // namespace calvero
