#include "terminal/progress_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace calvero {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

ProgressFigures halfWay() {
  return {50, "Phase 2: Securely Erasing Data..", "1.00 GB", "2.00 GB", "00:00:10", "100.00 MB/s", "00:00:10"};
}

TEST(PercentOf, IsTheCoveredShareOfTheFreeSpace) {
  EXPECT_EQ(percentOf(0, 1000), 0);
  EXPECT_EQ(percentOf(509, 1000), 50);
  EXPECT_EQ(percentOf(1, std::numeric_limits<std::uint64_t>::max()), 0);
}

TEST(PercentOf, KeepsTheHundredForTheEndOfTheRun) {
  EXPECT_EQ(percentOf(1000, 1000), 99);
  EXPECT_EQ(percentOf(5000, 1000), 99) << "more can be covered than was listed";
}

TEST(PercentOf, IsZeroOnAFullVolume) {
  EXPECT_EQ(percentOf(32768, 0), 0);
}

TEST(RemainingTime, FollowsFromTheSpeed) {
  EXPECT_EQ(remainingTime(3000, 100.0), seconds(30));
  EXPECT_EQ(remainingTime(0, 100.0), seconds(0));
}

TEST(RemainingTime, IsUnknownWithoutASpeed) {
  EXPECT_EQ(remainingTime(3000, 0.0), std::nullopt);
  EXPECT_EQ(remainingTime(0, 0.0), std::nullopt);
  EXPECT_EQ(remainingTime(std::numeric_limits<std::uint64_t>::max(), 1e-6), std::nullopt);
}

TEST(MeanSpeed, IsZeroUntilThereAreTwoLooksAtWrittenBytes) {
  MeanSpeed speed;
  speed.note(0, seconds(1));
  EXPECT_EQ(speed.bytesPerSecond(), 0);
  speed.note(1000, seconds(2));
  EXPECT_EQ(speed.bytesPerSecond(), 0);
}

TEST(MeanSpeed, DoesNotCountTheTimeBeforeTheFirstBytes) {
  MeanSpeed speed;
  speed.note(0, seconds(0));
  speed.note(1000, seconds(100));
  speed.note(3000, seconds(101));
  EXPECT_DOUBLE_EQ(speed.bytesPerSecond(), 2000);
}

TEST(BarLine, ShowsEverythingOnAWideTerminal) {
  EXPECT_EQ(barLine(halfWay(), 200),
            "Phase 2: Securely Erasing Data..   50 %  [####################--------------------]  1.00 GB of 2.00 GB  "
            "00:00:10  100.00 MB/s  00:00:10 left");
}

TEST(BarLine, GivesUpTheLeastImportantFiguresFirst) {
  EXPECT_EQ(barLine(halfWay(), 80), " 50 %  [######------]  1.00 GB of 2.00 GB  00:00:10  100.00 MB/s  00:00:10 left");
  EXPECT_EQ(barLine(halfWay(), 60), " 50 %  1.00 GB of 2.00 GB  00:00:10  00:00:10 left");
  EXPECT_EQ(barLine(halfWay(), 30), " 50 %  00:00:10 left");
  EXPECT_EQ(barLine(halfWay(), 10), " 50 %");
}

TEST(BarLine, NeverReachesTheLastColumn) {
  for (std::size_t columns = 1; columns < 250; ++columns) {
    EXPECT_LT(barLine(halfWay(), columns).size(), columns + (columns == 1 ? 1 : 0)) << columns;
  }
}

TEST(BarLine, FillsTheBarAsTheRunGoesOn) {
  ProgressFigures figures;
  EXPECT_EQ(barLine(figures, 30), "  0 %  [--------------------]");
  figures.percent = 99;
  EXPECT_EQ(barLine(figures, 30), " 99 %  [###################-]");
  figures.percent = 100;
  EXPECT_EQ(barLine(figures, 30), "100 %  [####################]");
}

TEST(BarLine, LeavesOutWhatIsNotKnownYet) {
  const ProgressFigures figures{0, "Phase 1: Analyzing Data..", "0.00 KB", "2.00 GB", "00:00:00", "", ""};
  EXPECT_EQ(plainLine(figures), "Phase 1: Analyzing Data..    0 %  0.00 KB of 2.00 GB  00:00:00");
}

TEST(PlainLine, HasNoBlanksAtItsStart) {
  EXPECT_EQ(plainLine({5, "", "1.00 MB", "2.00 MB", "", "", ""}), "5 %  1.00 MB of 2.00 MB");
}

TEST(PlainPacing, GivesALineAtTheStartAndAtEachTenPercent) {
  PlainPacing pacing;
  std::vector<int> shown;
  for (int percent = 0; percent <= 100; ++percent) {
    if (pacing.isDue(percent, milliseconds(percent * 100))) shown.push_back(percent);
  }
  EXPECT_EQ(shown, (std::vector<int>{0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100}));
}

TEST(PlainPacing, BreaksALongSilence) {
  PlainPacing pacing;
  EXPECT_TRUE(pacing.isDue(3, seconds(0)));
  EXPECT_FALSE(pacing.isDue(3, milliseconds(29'999)));
  EXPECT_TRUE(pacing.isDue(3, seconds(30)));
  EXPECT_FALSE(pacing.isDue(3, seconds(59)));
  EXPECT_TRUE(pacing.isDue(3, seconds(60)));
}

}  // namespace
}  // namespace calvero
