#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <clocale>
#include <cstdlib>
#include <utility>

#include "tests/fakes/world.h"
#include "tests/scoped_folder.h"
#include "wipe/progress_percent.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::World;

std::string size(std::uint64_t bytes) {
  return AppDelegate::getFormattedStringForSize(bytes);
}

TEST(SizeText, CountsBelowAMillionInKilobytes) {
  EXPECT_EQ(size(0), "0.00 KB");
  EXPECT_EQ(size(1), "0.00 KB");
  EXPECT_EQ(size(5), "0.00 KB");
  EXPECT_EQ(size(6), "0.01 KB");
  EXPECT_EQ(size(512), "0.51 KB");
  EXPECT_EQ(size(999), "1.00 KB");
}

TEST(SizeText, ChangesTheUnitByTheExactCount) {
  EXPECT_EQ(size(999'999), "1000.00 KB");
  EXPECT_EQ(size(1'000'000), "1.00 MB");
  EXPECT_EQ(size(1'234'567), "1.23 MB");
  EXPECT_EQ(size(128'000'000), "128.00 MB");
  EXPECT_EQ(size(999'999'999), "1000.00 MB");
  EXPECT_EQ(size(1'000'000'000), "1.00 GB");
}

TEST(SizeText, KnowsNoUnitAboveGigabytes) {
  EXPECT_EQ(size(2'000'000'000'000), "2000.00 GB");
  EXPECT_EQ(size(18'446'744'073'709'551'615U), "18446743552.00 GB");
}

// Double precision would give 756.60 KB, 984.77 KB, 992.39 MB, 351.01 MB, 6889.53 GB and 8897.27 GB.
TEST(SizeText, IsComputedInSinglePrecision) {
  EXPECT_EQ(size(756'595), "756.59 KB");
  EXPECT_EQ(size(984'775), "984.78 KB");
  EXPECT_EQ(size(992'394'993), "992.40 MB");
  EXPECT_EQ(size(351'015'000), "351.02 MB");
  EXPECT_EQ(size(6'889'534'728'652), "6889.54 GB");
  EXPECT_EQ(size(8'897'265'179'025), "8897.26 GB");
}

/// As a desktop's language may set it: decimal commas, and points between the thousands.
class CommaLocale {
 public:
  CommaLocale() : folder_(scoped_.path()) {
    const std::string make = "localedef -i de_DE -f UTF-8 " + folder_ + "/de_DE.UTF-8 2>/dev/null";
    if (std::system(make.c_str()) != 0 || ::setenv("LOCPATH", folder_.c_str(), 1) != 0) return;
    isSet_ = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
  }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;
  ~CommaLocale() {
    std::setlocale(LC_ALL, "C");
    ::unsetenv("LOCPATH");
  }

  [[nodiscard]] bool isSet() const { return isSet_; }

 private:
  const testing::ScopedFolder scoped_;
  const std::string folder_;
  bool isSet_ = false;
};

TEST(SizeText, HasADecimalPointInEveryLocale) {
  const CommaLocale locale;
  if (!locale.isSet()) GTEST_SKIP() << "needs localedef and the sources of de_DE, as in Debian's package locales";
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  EXPECT_EQ(size(0), "0.00 KB");
  EXPECT_EQ(size(999'999), "1000.00 KB");
  EXPECT_EQ(size(1'234'567), "1.23 MB");
  EXPECT_EQ(size(270'550'000'000), "270.55 GB");
  EXPECT_EQ(size(18'446'744'073'709'551'615U), "18446743552.00 GB");
  EXPECT_EQ(AppDelegate::getElapsedTimeForInterval(360'000.5), "100:00:00");
}

// 0.125 and 0.375 are exact in binary: printf, and so the figure, takes the even neighbour.
TEST(SizeText, RoundsATieToTheEvenDigit) {
  EXPECT_EQ(size(125), "0.12 KB");
  EXPECT_EQ(size(375), "0.38 KB");
  EXPECT_EQ(size(625), "0.62 KB");
  EXPECT_EQ(size(2'625'000), "2.62 MB");
}

TEST(ErasedAmount, IsTheFullSizeOfEveryFinishedFile) {
  World world;
  const AppDelegate& app = world.create();
  EXPECT_EQ(app.getElapsedData(0), "0.00 KB");
  EXPECT_EQ(app.getElapsedData(1), "128.00 MB");
  EXPECT_EQ(app.getElapsedData(8), "1.02 GB");
}

TEST(TimeText, ShowsHoursMinutesAndSeconds) {
  EXPECT_EQ(AppDelegate::getElapsedTimeForInterval(0), "00:00:00");
  EXPECT_EQ(AppDelegate::getElapsedTimeForInterval(59.999), "00:00:59");
  EXPECT_EQ(AppDelegate::getElapsedTimeForInterval(60), "00:01:00");
  EXPECT_EQ(AppDelegate::getElapsedTimeForInterval(3725), "01:02:05");
  EXPECT_EQ(AppDelegate::getElapsedTimeForInterval(359'999), "99:59:59");
  EXPECT_EQ(AppDelegate::getElapsedTimeForInterval(360'000), "100:00:00");
}

TEST(ProgressPercent, IsTruncatedAndNeverZero) {
  EXPECT_EQ(progressPercent(0, 1), 1);
  EXPECT_EQ(progressPercent(0, 3), 1);
  EXPECT_EQ(progressPercent(1, 3), 33);
  EXPECT_EQ(progressPercent(2, 3), 66);
  EXPECT_EQ(progressPercent(1, 1000), 1);
  EXPECT_EQ(progressPercent(19, 1000), 1);
  EXPECT_EQ(progressPercent(29, 100), 28) << "29 / 100 x 100 is a little less than 29 in double precision";
  EXPECT_EQ(progressPercent(29, 50), 57) << "and 29 / 50 x 100 than 58";
  EXPECT_EQ(progressPercent(57, 100), 56);
  EXPECT_EQ(progressPercent(59, 100), 59) << "where single precision has a little less";
  EXPECT_EQ(progressPercent(999, 1000), 99);
}

class ElapsedClock : public ::testing::Test {
 protected:
  ElapsedClock() { world.volume("DATA", 1'000); }

  /// Runs the clock of a fresh run. Before its second look `elapsed` has passed; then it is stopped.
  void runFor(std::chrono::duration<double> elapsed) {
    world.start();
    const auto start = world.clock.now();
    world.clock.whenSlept([this, start, elapsed](Clock::Duration) {
      if (++looks == 1) {
        world.clock.tick(start + elapsed - world.clock.now());
      } else {
        world.app().setAbortErasing(true);
      }
    });
    world.runElapsedClock();
  }

  World world;
  int looks = 0;
};

TEST_F(ElapsedClock, ShowsTheTimeSinceTheRunBeganAndStopsWithIt) {
  runFor(std::chrono::seconds(3725));
  EXPECT_THAT(world.journal.without({"sleep"}),
              ElementsAre("setText tfElapsedTime \"00:00:00\"", "redraw tfElapsedTime",
                          "setText tfElapsedTime \"01:02:05\"", "redraw tfElapsedTime"));
  EXPECT_EQ(world.app().currentRun()->elapsed_time, "01:02:05");
}

TEST_F(ElapsedClock, CountsFromTheRunsStartHoweverLateItsOwnThreadBegins) {
  world.start();
  world.clock.tick(std::chrono::seconds(3));
  world.clock.whenSlept([this](Clock::Duration) { world.app().setAbortErasing(true); });
  world.runElapsedClock();
  EXPECT_EQ(world.controls.text(Control::tfElapsedTime), "00:00:03");
}

TEST_F(ElapsedClock, StartsAnewWithTheNextRun) {
  runFor(std::chrono::seconds(61));
  looks = 0;
  world.app().next();
  world.proceed();
  world.clock.whenSlept([this](Clock::Duration) { world.app().setAbortErasing(true); });
  world.runElapsedClock();
  EXPECT_EQ(world.controls.text(Control::tfElapsedTime), "00:00:00");
}

TEST_F(ElapsedClock, ShowsThreeDigitsFrom100HoursOn) {
  runFor(std::chrono::hours(100));
  EXPECT_EQ(world.controls.text(Control::tfElapsedTime), "100:00:00");
}

TEST_F(ElapsedClock, TruncatesToWholeSeconds) {
  runFor(std::chrono::duration<double>(59.999));
  EXPECT_EQ(world.controls.text(Control::tfElapsedTime), "00:00:59");
}

TEST_F(ElapsedClock, KeepsTheFieldAndGoesOnRedrawingWhileTheWindowIsHidden) {
  world.controls.setMainWindowVisible(false);
  runFor(std::chrono::seconds(61));
  EXPECT_THAT(world.journal.without({"sleep"}), ElementsAre("redraw tfElapsedTime", "redraw tfElapsedTime"));
  EXPECT_EQ(world.app().currentRun()->elapsed_time, "00:01:01");
}

TEST_F(ElapsedClock, PausesBetweenTwoLooksForLessThanASecond) {
  world.start();
  std::chrono::duration<double> lastLook = world.clock.now();
  world.clock.whenSlept([&](Clock::Duration) {
    const auto pause = world.clock.now() - std::exchange(lastLook, world.clock.now());
    EXPECT_GE(pause, std::chrono::milliseconds(100));
    EXPECT_LT(pause, std::chrono::seconds(1));
    if (++looks == 8) world.app().setAbortErasing(true);
  });
  world.runElapsedClock();
  EXPECT_EQ(looks, 8);
}

TEST_F(ElapsedClock, EndsWithARunThatEndsTheApplicationItself) {
  world.order("DATA", "1");
  world.launch();
  world.clock.whenSlept([this](Clock::Duration slept) {
    const bool isPauseOfTheClock = slept > Clock::Duration::zero() && slept < std::chrono::seconds(1);
    if (!isPauseOfTheClock) return;
    if (++looks == 1) world.runWorker();
    if (looks == 8) world.app().setAbortErasing(true);
  });
  world.runElapsedClock();
  EXPECT_EQ(world.loop.terminations(), 1);
  EXPECT_EQ(looks, 1);
}

TEST_F(ElapsedClock, TouchesNothingWhenTheRunIsAlreadyAborted) {
  AppDelegate& app = world.start();
  app.setAbortErasing(true);
  world.runElapsedClock();
  EXPECT_THAT(world.journal.all(), IsEmpty());
  EXPECT_EQ(app.currentRun()->elapsed_time, "");
}

TEST_F(ElapsedClock, TouchesNothingWhenItsThreadIsAlreadyToldToEnd) {
  AppDelegate& app = world.start();
  app.currentRun()->terminateThread = 1;
  world.runElapsedClock();
  EXPECT_THAT(world.journal.all(), IsEmpty());
}

TEST_F(ElapsedClock, EndsWithAFinishedRun) {
  world.start();
  world.runWorker();
  world.journal.clear();
  world.runElapsedClock();
  EXPECT_THAT(world.journal.all(), IsEmpty());
}

TEST_F(ElapsedClock, HasAnEmptyCompanionForTheErasedAmount) {
  AppDelegate& app = world.start();
  app.setElapsedData();
  EXPECT_THAT(world.journal.all(), IsEmpty());
}

}  // namespace
}  // namespace calvero
