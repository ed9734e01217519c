#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/fakes/world.h"
#include "tests/ten_methods.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using testing::FileCall;
using ::testing::IsEmpty;
using testing::tenMethods;
using testing::World;

/// A catalogue with one method more than the controls have names for.
class FurtherMethod : public ::testing::Test {
 protected:
  FurtherMethod() {
    world.volume("DATA", 2 * 32768);
    world.fixed.methods = tenMethods();
  }

  [[nodiscard]] std::int32_t method() { return world.app().methodChoice().eraseMethodSelected; }
  [[nodiscard]] std::int32_t passes() { return world.app().methodChoice().numPassSelected; }

  World world;
};

TEST_F(FurtherMethod, IsChosenByItsNumberAndTurnsTheNineButtonsOff) {
  AppDelegate& app = world.launch();
  app.chooseMethod(9);
  EXPECT_THAT(world.journal.all(),
              ElementsAre("turnOff butFastZeroWipe", "turnOff butRandomWipe", "turnOff butDOD5220", "turnOff butNATO",
                          "turnOff butFAST_ZERO_WRITE", "turnOff butNAVSO", "turnOff butPETER_GUTTMAN",
                          "turnOff butVSITR", "turnOff butNINTH_ALGO", "turnMethod 9 on"));
  EXPECT_EQ(method(), 9);
  EXPECT_EQ(passes(), 2);
}

TEST_F(FurtherMethod, IsTurnedOffByTheChoiceOfAnother) {
  AppDelegate& app = world.launch();
  app.chooseMethod(9);
  world.journal.clear();
  app.dODWipe();
  EXPECT_THAT(world.journal.only({"turnMethod"}), ElementsAre("turnMethod 9 off"));
  EXPECT_EQ(method(), 2);
}

TEST_F(FurtherMethod, IsForgottenByGoingBackAndForward) {
  AppDelegate& app = world.launch();
  app.next();
  app.chooseMethod(9);
  app.back();
  world.journal.clear();
  app.next();
  EXPECT_THAT(world.journal.only({"turnMethod"}), ElementsAre("turnMethod 9 off"));
  EXPECT_EQ(method(), 0);
  EXPECT_EQ(passes(), 1);
}

TEST_F(FurtherMethod, WritesItsPlanOverEveryBlock) {
  AppDelegate& app = world.launch();
  app.next();
  app.chooseMethod(9);
  world.proceed();
  world.runWorker();
  const testing::Steps written = world.journal.only({"pwrite"});
  ASSERT_GE(written.size(), 4U);
  EXPECT_THAT(testing::Steps(written.begin(), written.begin() + 4),
              ElementsAre("pwrite .temp0 32768@0 0xAA", "pwrite .temp0 32768@0 random",  //
                          "pwrite .temp0 32768@32768 0xAA", "pwrite .temp0 32768@32768 random"));
  EXPECT_EQ(app.currentRun()->outcome, RunOutcome::finished);
  EXPECT_EQ(app.currentRun()->counters.bytesCovered, 2U * 32768U);
  EXPECT_EQ(app.currentRun()->counters.passes, 2);
}

TEST_F(FurtherMethod, HasItsLabelThroughTheLocalisationTable) {
  world.localisation.markTexts();
  AppDelegate& app = world.launch();
  app.setMethodTexts();
  EXPECT_THAT(world.journal.only({"setMethodText"}), ElementsAre("setMethodText 9 \"<Twice over>\""));
}

TEST_F(FurtherMethod, IsNoneThatAnOrderCanName) {
  world.order("DATA", "10");
  AppDelegate& app = world.create();
  app.fifth_NATO();
  world.journal.clear();
  app.redirectToAlog();
  EXPECT_EQ(method(), 4);
  EXPECT_THAT(world.journal.all(), IsEmpty());
  EXPECT_EQ(orderableMethods(tenMethods()).size(), 9U);
}

TEST_F(FurtherMethod, IsRefusedBeyondTheCatalogue) {
  AppDelegate& app = world.launch();
  EXPECT_THROW(app.chooseMethod(10), std::out_of_range);
  EXPECT_THROW(app.chooseMethod(-1), std::out_of_range);
  EXPECT_EQ(method(), 0);
}

}  // namespace
}  // namespace calvero
