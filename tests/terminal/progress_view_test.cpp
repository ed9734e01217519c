#include "terminal/progress_view.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>
#include <string>

namespace calvero {
namespace {

using std::chrono::seconds;

/// A terminal whose printed text can be read back.
class Terminal {
 public:
  explicit Terminal(unsigned short columns) {
    winsize size{24, columns, 0, 0};
    EXPECT_EQ(::openpty(&controller_, &terminal_, nullptr, nullptr, &size), 0);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() {
    if (controller_ >= 0) ::close(controller_);
    ::close(terminal_);
  }

  [[nodiscard]] Output output() const { return Output(terminal_); }
  /// What has been printed since the last call. It arrives in pieces, and later than it was written: a mark tells the
  /// end.
  std::string printed() {
    constexpr char kMark = '\1';
    EXPECT_EQ(::write(terminal_, &kMark, 1), 1);
    std::string text;
    std::array<char, 4096> buffer{};
    while (text.empty() || text.back() != kMark) {
      const ssize_t bytes = ::read(controller_, buffer.data(), buffer.size());
      if (bytes <= 0) throw std::runtime_error("the terminal cannot be read");
      text.append(buffer.data(), static_cast<std::size_t>(bytes));
    }
    text.pop_back();
    return text;
  }
  void vanish() {
    ::close(controller_);
    controller_ = -1;
  }

 private:
  int controller_ = -1;
  int terminal_ = -1;
};

ProgressFigures at(int percent) {
  ProgressFigures figures;
  figures.percent = percent;
  return figures;
}

TEST(ProgressStyle, IsABarOnlyOnATerminalThatCanRedrawALine) {
  const Terminal terminal(80);
  EXPECT_EQ(progressStyleOf(terminal.output(), "xterm"), ProgressStyle::bar);
  EXPECT_EQ(progressStyleOf(terminal.output(), nullptr), ProgressStyle::bar);
  EXPECT_EQ(progressStyleOf(terminal.output(), "dumb"), ProgressStyle::plain);
  EXPECT_EQ(progressStyleOf(Output::nowhere(), "xterm"), ProgressStyle::plain);
}

TEST(ProgressView, RedrawsTheBarInPlaceAndFitsItToTheWindow) {
  Terminal terminal(20);
  const Output output = terminal.output();
  ProgressView view(output, ProgressStyle::bar);
  view.update(at(50), seconds(0));
  EXPECT_EQ(terminal.printed(), "\r 50 %  [#####-----]\033[K");
}

TEST(ProgressView, EndsTheBarsLineOnceBeforeOtherText) {
  Terminal terminal(10);
  const Output output = terminal.output();
  ProgressView view(output, ProgressStyle::bar);
  view.makeRoom();
  EXPECT_EQ(terminal.printed(), "");
  view.update(at(50), seconds(0));
  view.makeRoom();
  view.makeRoom();
  EXPECT_EQ(terminal.printed(), "\r 50 %\033[K\r\n");
}

TEST(ProgressView, PrintsPlainLinesWithoutControlCharacters) {
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe(pipe.data()), 0);
  const Output output(pipe[1]);
  ProgressView view(output, ProgressStyle::plain);
  for (const int percent : {0, 5, 9, 10, 11}) view.update(at(percent), seconds(0));
  view.updateAtOnce(at(12));
  view.makeRoom();
  ::close(pipe[1]);
  std::array<char, 256> buffer{};
  const ssize_t bytes = ::read(pipe[0], buffer.data(), buffer.size());
  EXPECT_EQ(std::string(buffer.data(), static_cast<std::size_t>(bytes)), "0 %\n10 %\n12 %\n");
  ::close(pipe[0]);
}

TEST(ProgressView, ShowsNothingInSilence) {
  Terminal terminal(80);
  const Output output = terminal.output();
  ProgressView view(output, ProgressStyle::none);
  view.updateAtOnce(at(50));
  view.makeRoom();
  EXPECT_EQ(terminal.printed(), "");
}

TEST(Output, SurvivesATerminalThatHasVanished) {
  Terminal terminal(80);
  const Output output = terminal.output();
  terminal.vanish();
  output.line("nobody reads this");
  output.writeIfReady("nor this");
  EXPECT_EQ(output.columns(), 80U);
}

TEST(Output, SurvivesAReaderThatHasClosedItsPipe) {
  const auto before = std::signal(SIGPIPE, SIG_IGN);
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe(pipe.data()), 0);
  ::close(pipe[0]);
  Output(pipe[1]).line("nobody reads this");
  EXPECT_EQ(::close(pipe[1]), 0);
  std::signal(SIGPIPE, before);
}

TEST(Output, DropsProgressThatAFullPipeDoesNotTake) {
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe2(pipe.data(), O_NONBLOCK), 0);
  const std::string page(4096, 'x');
  while (::write(pipe[1], page.data(), page.size()) > 0) {
  }
  Output(pipe[1]).writeIfReady("this would wait for ever");
  std::array<char, 4096> buffer{};
  std::string last;
  ssize_t bytes = 0;
  while ((bytes = ::read(pipe[0], buffer.data(), buffer.size())) > 0) {
    last.assign(buffer.data(), static_cast<std::size_t>(bytes));
  }
  EXPECT_EQ(last.back(), 'x');
  for (const int end : pipe) ::close(end);
}

}  // namespace
}  // namespace calvero
