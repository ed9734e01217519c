#include "platform/linux/process/standard_streams.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <string>
#include <thread>

namespace calvero {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

class Pipe : public ::testing::Test {
 protected:
  Pipe() { EXPECT_EQ(::pipe2(ends_.data(), O_CLOEXEC), 0); }
  ~Pipe() override {
    for (const int end : ends_) ::close(end);
    std::signal(SIGPIPE, before_);
  }
  [[nodiscard]] int capacity() const { return ::fcntl(ends_[1], F_GETPIPE_SZ); }

  std::array<int, 2> ends_{};
  void (*const before_)(int) = std::signal(SIGPIPE, SIG_IGN);
};

TEST_F(Pipe, ThatNobodyReadsIsWaitedForAsLongAsWasSaid) {
  const std::string text(static_cast<std::size_t>(capacity()) + 1, 'x');
  EXPECT_EQ(writeAll(ends_[1], text, milliseconds(30)), kNobodyReads);
  EXPECT_FALSE(isReadyForText(ends_[1]));
}

TEST_F(Pipe, OfASlowReaderTakesEverything) {
  const std::string text(static_cast<std::size_t>(capacity()) * 3, 'x');
  std::size_t taken = 0;
  std::thread reader([&] {
    std::array<char, 1000> some{};
    while (taken < text.size()) {
      std::this_thread::yield();
      const ssize_t bytes = ::read(ends_[0], some.data(), some.size());
      if (bytes > 0) taken += static_cast<std::size_t>(bytes);
    }
  });
  EXPECT_EQ(writeAll(ends_[1], text, seconds(30)), 0);
  reader.join();
  EXPECT_EQ(taken, text.size());
}

TEST_F(Pipe, ThatIsClosedIsToldWithItsReason) {
  ::close(ends_[0]);
  EXPECT_EQ(writeAll(ends_[1], "text", seconds(30)), EPIPE);
  ends_[0] = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
  EXPECT_EQ(writeAll(ends_[0], "text", seconds(30)), ENOSPC);
  EXPECT_EQ(writeAll(ends_[0], "", seconds(30)), 0);
}

TEST(StandardStreams, ThatAreClosedAreTakenByNoFileAndStillFail) {
  const pid_t child = ::fork();
  if (child == 0) {
    for (const int stream : {0, 1, 2}) ::close(stream);
    occupyStandardStreams();
    char none = 0;
    const bool fails = ::write(1, &none, 1) < 0 && ::write(2, &none, 1) < 0 && ::read(0, &none, 1) < 0;
    ::_exit(fails && ::open("/dev/null", O_RDONLY | O_CLOEXEC) > 2 ? 0 : 1);
  }
  int status = -1;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace calvero
