#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "app/method_controls.h"
#include "methods/method_catalogue.h"
#include "ports/control_names.h"
#include "tests/fakes/world.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::Steps;
using testing::World;

struct Row {
  std::int32_t number;
  void (AppDelegate::*handler)();
  const char* button;
  Control label;
  const char* labelKey;
  std::int32_t passes;
};

const std::array<Row, 9> kRows{{
    {0, &AppDelegate::fastZeroWipe, "butFastZeroWipe", Control::algorithm_1,
     "Fast Zero Write (Wipes data with 0's (Zero))", 1},
    {1, &AppDelegate::randomWipe, "butRandomWipe", Control::algorithm_2, "Random ", 1},
    {2, &AppDelegate::dODWipe, "butDOD5220", Control::algorithm_3, "DOD 5220.22.M (US Dept. of Defence Standard) ", 3},
    {3, &AppDelegate::fourth_NAVSO, "butNAVSO", Control::algorithm_4, "N.A.V.S.O.- RLL (US Navy Standard) ", 1},
    {4, &AppDelegate::fifth_NATO, "butNATO", Control::algorithm_5,
     "N.A.T.O. (North Atlantic Treaty Organization  Standard)", 7},
    {5, &AppDelegate::sixth_VSITR_GERMAN, "butVSITR", Control::algorithm_6, "V.S.I.T.R.  (German Standard) ", 7},
    {6, &AppDelegate::seventh_FAST_ZERO_WRITE, "butFAST_ZERO_WRITE", Control::algorithm_7,
     "Fast Zero Write (Wipes data with 0's (Zero))", 0},
    {7, &AppDelegate::eight_PETER_GUTTMAN, "butPETER_GUTTMAN", Control::algorithm_8, "Peter Guttman Method", 35},
    {8, &AppDelegate::ninth_ALGORITHM, "butNINTH_ALGO", Control::algorithm_9, "Peter Guttman + (DoD 5220.22-M)", 38},
}};

const std::array<const char*, 9> kOrderOfButtons{"butFastZeroWipe",  "butRandomWipe",      "butDOD5220",
                                                 "butNATO",          "butFAST_ZERO_WRITE", "butNAVSO",
                                                 "butPETER_GUTTMAN", "butVSITR",           "butNINTH_ALGO"};

Control controlNamed(const std::string& name) {
  const auto named = std::find_if(kNamedControls.begin(), kNamedControls.end(),
                                  [&](const NamedControl& each) { return each.name == name; });
  return named->control;
}

Steps buttonSteps(const std::string& own) {
  Steps steps;
  for (const std::string button : kOrderOfButtons) steps.push_back((button == own ? "turnOn " : "turnOff ") + button);
  return steps;
}

class MethodSelection : public ::testing::Test {
 protected:
  MethodSelection() { world.volume("DATA", 1'000'000); }

  [[nodiscard]] std::int32_t method() { return world.app().methodChoice().eraseMethodSelected; }
  [[nodiscard]] std::int32_t passes() { return world.app().methodChoice().numPassSelected; }

  World world;
};

TEST_F(MethodSelection, SetsAllNineButtonsInTheFixedOrderAndChangesNothingElse) {
  AppDelegate& app = world.launch();
  for (const Row& row : kRows) {
    world.journal.clear();
    (app.*row.handler)();
    EXPECT_EQ(world.journal.all(), buttonSteps(row.button)) << "method " << row.number;
  }
}

TEST_F(MethodSelection, TakesNumberAndPassCountOfTheMethodsRow) {
  AppDelegate& app = world.launch();
  for (const Row& row : kRows) {
    (app.*row.handler)();
    EXPECT_EQ(method(), row.number);
    EXPECT_EQ(passes(), row.passes) << "method " << row.number;
  }
}

TEST_F(MethodSelection, SetsTheButtonsBeforeTheChoice) {
  AppDelegate& app = world.launch();
  std::int32_t before = method();
  std::size_t buttons = 0;
  world.journal.whenAdded([&](const std::string&) {
    ++buttons;
    EXPECT_EQ(method(), before);
    EXPECT_EQ(passes(), kRows.at(static_cast<std::size_t>(before)).passes);
  });
  for (const std::int32_t number : {8, 2, 6, 0, 5}) {
    (app.*kRows.at(static_cast<std::size_t>(number)).handler)();
    EXPECT_EQ(method(), number);
    before = number;
  }
  EXPECT_EQ(buttons, 5 * kOrderOfButtons.size());
}

TEST_F(MethodSelection, ChoosesByNumberAsItsButtonWould) {
  AppDelegate& app = world.launch();
  for (const Row& row : kRows) {
    world.journal.clear();
    app.chooseMethod(row.number);
    EXPECT_EQ(world.journal.all(), buttonSteps(row.button));
    EXPECT_EQ(method(), row.number);
    EXPECT_EQ(passes(), row.passes);
  }
}

TEST_F(MethodSelection, PressedTwiceLeavesTheSameStateAsPressedOnce) {
  AppDelegate& app = world.launch();
  app.fifth_NATO();
  app.fifth_NATO();
  EXPECT_EQ(method(), 4);
  EXPECT_EQ(passes(), 7);
  for (const Row& row : kRows) EXPECT_EQ(world.controls.isOn(controlNamed(row.button)), row.number == 4);
}

TEST_F(MethodSelection, IsForgottenByGoingBackAndForward) {
  AppDelegate& app = world.launch();
  app.next();
  app.ninth_ALGORITHM();
  app.back();
  EXPECT_EQ(method(), 8);
  app.next();
  EXPECT_EQ(method(), 0);
  EXPECT_EQ(passes(), 1);
  for (const Row& row : kRows) EXPECT_EQ(world.controls.isOn(controlNamed(row.button)), row.number == 0);
}

TEST_F(MethodSelection, WritesNothingIntoTheFillerFilesWithMethod6) {
  AppDelegate& app = world.launch();
  app.next();
  app.seventh_FAST_ZERO_WRITE();
  world.proceed();
  world.runWorker();
  EXPECT_THAT(world.journal.only({"pwrite"}), IsEmpty());
  EXPECT_THAT(world.journal.only({"create", "removeItem"}), ElementsAre("create .temp0", "removeItem .temp0"));
  EXPECT_EQ(world.files.script.count(testing::FileCall::fsync), 0U);
}

TEST_F(MethodSelection, SetsTheTextsOfTheMethodPageThroughTheLocalisationTable) {
  world.localisation.markTexts();
  AppDelegate& app = world.launch();
  app.setMethodTexts();
  EXPECT_EQ(world.controls.text(Control::selectingWipingMethod), "<Select wiping method>");
  EXPECT_EQ(world.controls.text(Control::low), "<Low>");
  EXPECT_EQ(world.controls.text(Control::medium), "<Medium>");
  EXPECT_EQ(world.controls.text(Control::high), "<High>");
  for (const Row& row : kRows) {
    EXPECT_EQ(world.controls.text(row.label), '<' + std::string(row.labelKey) + '>');
  }
}

TEST(MethodCatalogue, HoldsTheNineMethodsWithTheirControlsLabelsAndPasses) {
  for (const Row& row : kRows) {
    const EraseMethod& method = methodAt(kMethodCatalogue, row.number);
    EXPECT_EQ(method.number, row.number);
    const MethodControls* controls = controlsOf(row.number);
    ASSERT_NE(controls, nullptr);
    EXPECT_STREQ(nameOf(controls->button), row.button);
    EXPECT_EQ(controls->label, row.label);
    EXPECT_STREQ(method.labelKey, row.labelKey);
    EXPECT_EQ(method.passes, row.passes);
  }
}

class OrderedMethod : public ::testing::TestWithParam<std::pair<const char*, std::int32_t>> {};

TEST_P(OrderedMethod, IsAppliedToTheChoice) {
  const auto& [text, number] = GetParam();
  World world;
  world.volume("DATA", 1'000'000);
  world.order("DATA", text);
  AppDelegate& app = world.create();
  app.redirectToAlog();
  EXPECT_EQ(app.methodChoice().eraseMethodSelected, number);
  EXPECT_EQ(app.methodChoice().numPassSelected, kRows.at(static_cast<std::size_t>(number)).passes);
}

INSTANTIATE_TEST_SUITE_P(EveryNumber, OrderedMethod,
                         ::testing::Values(std::pair{"1", 0}, std::pair{"2", 1}, std::pair{"3", 2}, std::pair{"4", 3},
                                           std::pair{"5", 4}, std::pair{"6", 5}, std::pair{"7", 6}, std::pair{"8", 7},
                                           std::pair{"9", 8}, std::pair{" 4", 3}, std::pair{"4x", 3}));

INSTANTIATE_TEST_SUITE_P(OutsideTheCatalogue, OrderedMethod,
                         ::testing::Values(std::pair{"0", 0}, std::pair{"10", 0}, std::pair{"-1", 0}, std::pair{"", 0},
                                           std::pair{"abc", 0}));

TEST_F(MethodSelection, StaysAsItWasWhenTheOrderedNumberIsOutsideTheCatalogue) {
  world.order("DATA", "10");
  AppDelegate& app = world.create();
  app.fifth_NATO();
  world.journal.clear();
  app.redirectToAlog();
  EXPECT_EQ(method(), 4);
  EXPECT_EQ(passes(), 7);
  EXPECT_THAT(world.journal.all(), IsEmpty());
}

}  // namespace
}  // namespace calvero
