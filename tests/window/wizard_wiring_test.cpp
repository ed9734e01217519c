#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>

#include "tests/window/wizard_fixture.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::Steps;

/// What the controls beside the wizard's own lead to.
class WindowWiring : public testing::WizardFixture {
 protected:
  /// What pressing the button does to the desktop.
  Steps pressed(const char* button) {
    journal.clear();
    press(button);
    return journal.only({"openPage", "openAddress", "launchApplication", "activate"});
  }
};

TEST_F(WindowWiring, OpensOnePageForEachButtonOfTheSideBar) {
  mountVolume("DATA");
  desktop.putInformation("/home/user/.local/share/Ondrel Software/Ondrel MORE/infoMaster.plist",
                         {{"UID", "u1"}, {"DID", "d9"}});
  const char* const portal = "openAddress https://portal.ondrel.example/login?u1/d9/do";
  use([&] {
    EXPECT_THAT(pressed("facebookButton"), ElementsAre("openPage 0"));
    EXPECT_THAT(pressed("twitterButton"), ElementsAre("openPage 1"));
    EXPECT_THAT(pressed("googlePlusButton"), ElementsAre("openPage 2"));
    EXPECT_THAT(pressed("helpButton"), ElementsAre("openPage 4"));
    EXPECT_THAT(pressed("buttonCloud"), ElementsAre(portal));
    EXPECT_THAT(pressed("getItNow"), ElementsAre(portal));
  });
}

TEST_F(WindowWiring, HandsOverToTheHomeApplicationAndEnds) {
  mountVolume("DATA");
  bool goesOn = false;
  use([&] {
    EXPECT_THAT(pressed("buttonHome"),
                ElementsAre("launchApplication /opt/suite", "activate com.PelmarSoftware.PelmarMacCleaner"));
    ports.loop.post([&] { goesOn = true; });
    ports.loop.serveUntil([&] { return goesOn; }, std::chrono::seconds(1));
  });
  EXPECT_FALSE(goesOn);
}

TEST_F(WindowWiring, TellsTheControllerThatTheWindowIsMinimisedAndRestored) {
  mountVolume("DATA");
  use([this] {
    ASSERT_EQ(app->shell().display, 1);
    ports.window.showMinimized();
    EXPECT_TRUE(comesTrue([this] { return app->shell().display == 0; }));
    ports.window.showNormal();
    EXPECT_TRUE(comesTrue([this] { return app->shell().display == 1; }));
  });
}

}  // namespace
}  // namespace calvero
