#include "terminal/terminal_alerts.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "terminal/asio_event_loop.h"
#include "terminal/line_input.h"
#include "terminal/output.h"
#include "terminal/stop_signals.h"

namespace calvero {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;

const Alert kQuestion{"Alert!!", "Are you sure?", "YES", "NO"};
const Alert kNotice{"Please!! \n Close all files.", "", "", ""};

std::string everythingIn(int descriptor) {
  std::string text;
  std::array<char, 4096> buffer{};
  ssize_t bytes = 0;
  while ((bytes = ::read(descriptor, buffer.data(), buffer.size())) > 0) {
    text.append(buffer.data(), static_cast<std::size_t>(bytes));
  }
  return text;
}

std::array<int, 2> newPipe(int flags) {
  std::array<int, 2> ends{};
  EXPECT_EQ(::pipe2(ends.data(), flags), 0);
  return ends;
}

/// Input through one pipe, output through another.
class TerminalAlertsTest : public ::testing::Test {
 protected:
  ~TerminalAlertsTest() override {
    for (const int end : {in_[0], out_[0], out_[1]}) ::close(end);
    if (isInputOpen_) ::close(in_[1]);
  }

  void type(const std::string& text) { Output(in_[1]).write(text); }
  void endInput() {
    ::close(in_[1]);
    isInputOpen_ = false;
  }
  std::string shown() { return everythingIn(out_[0]); }

  const std::array<int, 2> in_ = newPipe(0);
  const std::array<int, 2> out_ = newPipe(O_NONBLOCK);
  bool isInputOpen_ = true;
  AsioEventLoop loop_;
  LineInput input_{loop_, in_[0]};
  const Output output_{out_[1]};
  TerminalAlerts alerts_{output_, input_, Answering::person};
};

TEST_F(TerminalAlertsTest, ShowsTitleAndMessageOnLinesOfTheirOwnAndOffersTheButtons) {
  type("YES\n");
  EXPECT_EQ(alerts_.runModal(kQuestion), AlertAnswer::defaultButton);
  EXPECT_EQ(shown(), "Alert!!\nAre you sure?\n[YES/NO] ");
}

TEST_F(TerminalAlertsTest, AcceptsAButtonOrItsBeginningInAnyCase) {
  for (const char* yes : {"y\n", "Ye\n", "yes\n", " YES \n"}) {
    type(yes);
    EXPECT_EQ(alerts_.runModal(kQuestion), AlertAnswer::defaultButton) << yes;
  }
  for (const char* no : {"n\n", "No\n", "NO\n"}) {
    type(no);
    EXPECT_EQ(alerts_.runModal(kQuestion), AlertAnswer::alternateButton) << no;
  }
}

TEST_F(TerminalAlertsTest, AsksAgainAfterEnterAloneOrAnythingElse) {
  type("\nyess\nmaybe\nyes\n");
  EXPECT_EQ(alerts_.runModal(kQuestion), AlertAnswer::defaultButton);
  EXPECT_EQ(shown(),
            "Alert!!\nAre you sure?\n"
            "[YES/NO] Please type YES or NO.\n[YES/NO] Please type YES or NO.\n[YES/NO] Please type YES or NO.\n"
            "[YES/NO] ");
}

TEST_F(TerminalAlertsTest, AsksAgainWhenTheBeginningFitsBothButtons) {
  type("s\nst\nsto\n");
  EXPECT_EQ(alerts_.runModal({"", "", "Start", "Stop"}), AlertAnswer::alternateButton);
}

TEST_F(TerminalAlertsTest, AnEmptyDefaultButtonReadsOk) {
  type("ok\n");
  EXPECT_EQ(alerts_.runModal({"", "Go on?", "", "Cancel"}), AlertAnswer::defaultButton);
  EXPECT_EQ(shown(), "Go on?\n[OK/Cancel] ");
}

TEST_F(TerminalAlertsTest, TheEndOfInputIsTheAlternateButton) {
  type("YE");
  endInput();
  EXPECT_EQ(alerts_.runModal(kQuestion), AlertAnswer::alternateButton);
  EXPECT_THAT(shown(), EndsWith("[YES/NO] \n"));
}

TEST_F(TerminalAlertsTest, AnInterruptIsTheAlternateButton) {
  loop_.post([this] {
    EXPECT_TRUE(input_.isReading());
    input_.interrupt();
  });
  EXPECT_EQ(alerts_.runModal(kQuestion), AlertAnswer::alternateButton);
  EXPECT_FALSE(input_.isReading());
}

TEST_F(TerminalAlertsTest, OtherEventsAreServedWhileTheQuestionStands) {
  int served = 0;
  loop_.startTimer(std::chrono::milliseconds(1), TimerKind::repeating, [&] {
    if (++served == 3) type("no\n");
  });
  EXPECT_EQ(alerts_.runModal(kQuestion), AlertAnswer::alternateButton);
  EXPECT_GE(served, 3);
}

TEST_F(TerminalAlertsTest, ANoticeIsShownWithItsLineBreaksAndWaitsForEnter) {
  type("\n");
  EXPECT_EQ(alerts_.runModal(kNotice), AlertAnswer::defaultButton);
  EXPECT_EQ(shown(), "Please!! \n Close all files.\n[Enter] ");
}

TEST_F(TerminalAlertsTest, ANoticeLeftByAnInterruptOrTheEndOfInputDoesNotGoOn) {
  loop_.post([this] { input_.interrupt(); });
  EXPECT_THROW(alerts_.runModal(kNotice), NoticeLeft);
}

TEST_F(TerminalAlertsTest, ANoticeLeftByTheEndOfInputDoesNotGoOn) {
  endInput();
  EXPECT_THROW(alerts_.runModal(kNotice), NoticeLeft);
}

TEST_F(TerminalAlertsTest, ANoticeDoesNotWaitOnceTheRunHasStarted) {
  bool madeRoom = false;
  alerts_.runStarted([&] { madeRoom = true; });
  EXPECT_EQ(alerts_.runModal(kNotice), AlertAnswer::defaultButton);
  EXPECT_TRUE(madeRoom);
  EXPECT_EQ(shown(), "Please!! \n Close all files.\n");
}

TEST_F(TerminalAlertsTest, WithoutAPersonEveryAlertGetsItsDefaultButtonAndShowsIt) {
  TerminalAlerts answered(output_, input_, Answering::defaultButtons);
  EXPECT_EQ(answered.runModal(kQuestion), AlertAnswer::defaultButton);
  EXPECT_EQ(answered.runModal(kNotice), AlertAnswer::defaultButton);
  EXPECT_EQ(shown(), "Alert!!\nAre you sure?\n[YES/NO] YES\nPlease!! \n Close all files.\n");
}

TEST(LineInput, LeavesTheTerminalBlockingForTheShell) {
  int controller = -1;
  int terminal = -1;
  ASSERT_EQ(::openpty(&controller, &terminal, nullptr, nullptr, nullptr), 0);
  AsioEventLoop loop;
  LineInput input(loop, terminal);
  EXPECT_TRUE(input.isTerminal());
  Output(controller).write("first\nsecond\n");
  EXPECT_EQ(input.readLine(), "first");
  EXPECT_EQ(input.readLine(), "second");
  EXPECT_EQ(::fcntl(terminal, F_GETFL) & O_NONBLOCK, 0);
  constexpr const char* kControlD = "\004";
  Output(controller).write(kControlD);
  EXPECT_EQ(input.readLine(), std::nullopt);
  ::close(controller);
  ::close(terminal);
}

TEST(LineInput, ReadsSeveralLinesThatArriveAtOnce) {
  const auto pipe = newPipe(0);
  AsioEventLoop loop;
  LineInput input(loop, pipe[0]);
  Output(pipe[1]).write("one\n\ntwo\nthr");
  EXPECT_EQ(input.readLine(), "one");
  EXPECT_EQ(input.readLine(), "");
  EXPECT_EQ(input.readLine(), "two");
  loop.post([&] { Output(pipe[1]).write("ee\n"); });
  EXPECT_EQ(input.readLine(), "three");
  for (const int end : pipe) ::close(end);
}

TEST(LineInput, LetsASignalWinOverALineThatIsAlreadyThere) {
  const auto pipe = newPipe(0);
  AsioEventLoop loop;
  LineInput input(loop, pipe[0]);
  const StopSignals signals(loop, [&] { input.interrupt(); });
  Output(pipe[1]).write("typed ahead\n\n");
  EXPECT_EQ(input.readLine(), "typed ahead");
  std::raise(SIGINT);
  EXPECT_EQ(input.readLine(), std::nullopt);
  for (const int end : pipe) ::close(end);
}

TEST(LineInput, HasNoLineAnyMoreAfterAnInterrupt) {
  const auto pipe = newPipe(0);
  AsioEventLoop loop;
  LineInput input(loop, pipe[0]);
  Output(pipe[1]).write("one\ntwo\n");
  EXPECT_EQ(input.readLine(), "one");
  input.interrupt();
  EXPECT_EQ(input.readLine(), std::nullopt);
  for (const int end : pipe) ::close(end);
}

}  // namespace
}  // namespace calvero
