#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::World;

constexpr const char* kInformationFile = "/home/user/.local/share/Ondrel Software/Ondrel MORE/infoMaster.plist";

class Links : public ::testing::Test {
 protected:
  Links() {
    world.volume("DATA", 300'000);
    world.launch();
  }

  World world;
};

TEST_F(Links, MakeExactlyOneCallWithTheirPagesIndexEach) {
  AppDelegate& app = world.app();
  app.openFacebookPage();
  EXPECT_THAT(world.journal.all(), ElementsAre("openPage 0"));
  app.openTwitterPage();
  app.openGooglePlusPage();
  app.openHelpPage();
  EXPECT_THAT(world.journal.all(), ElementsAre("openPage 0", "openPage 1", "openPage 2", "openPage 4"));
}

TEST_F(Links, OpenThePortalWithTheIdentifiersOfTheInformationFile) {
  world.desktop.putInformation(kInformationFile, {{"UID", "u1"}, {"DID", "d9"}, {"other", "x"}});
  world.app().cloudControl();
  EXPECT_THAT(world.journal.all(), ElementsAre("openAddress https://portal.ondrel.example/login?u1/d9/do"));
}

TEST_F(Links, OpenThePortalWithTheWordNullForEachMissingIdentifier) {
  world.app().cloudControl();
  world.desktop.putInformation(kInformationFile, {{"DID", "d9"}});
  world.app().cloudControl();
  EXPECT_THAT(world.journal.all(), ElementsAre("openAddress https://portal.ondrel.example/login?(null)/(null)/do",
                                               "openAddress https://portal.ondrel.example/login?(null)/d9/do"));
}

TEST_F(Links, GetItNowOpensThePortalToo) {
  world.desktop.putInformation(kInformationFile, {{"UID", "u1"}, {"DID", "d9"}});
  world.app().getItNow();
  EXPECT_THAT(world.journal.all(), ElementsAre("openAddress https://portal.ondrel.example/login?u1/d9/do"));
}

}  // namespace
}  // namespace calvero
