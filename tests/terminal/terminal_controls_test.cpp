#include "terminal/terminal_controls.h"

#include <gtest/gtest.h>

#include <vector>

namespace calvero {
namespace {

TEST(TerminalControls, RemembersThePageAndTheTexts) {
  TerminalControls controls;
  EXPECT_EQ(controls.page(), Page::volume);
  EXPECT_EQ(controls.text(Control::labelPhase), "");
  controls.selectPage(Page::progress);
  controls.setText(Control::labelPhase, "Phase 1: Analyzing Data..");
  EXPECT_EQ(controls.page(), Page::progress);
  EXPECT_EQ(controls.text(Control::labelPhase), "Phase 1: Analyzing Data..");
}

TEST(TerminalControls, TellsWhichTextChangedOnceItCanBeRead) {
  TerminalControls controls;
  std::vector<std::string> seen;
  controls.onText = [&](Control control) { seen.push_back(controls.text(control)); };
  controls.setText(Control::tfElapsedTime, "00:00:01");
  EXPECT_EQ(seen, std::vector<std::string>{"00:00:01"});
}

TEST(TerminalControls, TakesTheCompletionWindowForTheEndOfTheRun) {
  TerminalControls controls;
  int completed = 0;
  controls.onCompleted = [&] { ++completed; };
  controls.bringToFront(Control::window);
  EXPECT_EQ(completed, 0);
  controls.bringToFront(Control::windowCompleted);
  EXPECT_EQ(completed, 1);
}

TEST(TerminalControls, CountsAsVisibleSoThatTheClockShowsItsTime) {
  EXPECT_TRUE(TerminalControls().mainWindowVisible());
}

}  // namespace
}  // namespace calvero
