#include "platform/linux/process/steady_clock.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

namespace calvero::testing {
namespace {

volatile std::sig_atomic_t alarms = 0;

TEST(SteadyClock, SleepsAtLeastTheGivenTimeAlthoughSignalsArrive) {
  struct sigaction counting = {};
  counting.sa_handler = [](int) { alarms = alarms + 1; };  // without SA_RESTART, calls end with EINTR
  struct sigaction before = {};
  ASSERT_EQ(::sigaction(SIGALRM, &counting, &before), 0);
  const itimerval everyFiveMilliseconds = {{0, 5000}, {0, 5000}};
  ASSERT_EQ(::setitimer(ITIMER_REAL, &everyFiveMilliseconds, nullptr), 0);

  SteadyClock clock;
  const Clock::Duration start = clock.now();
  clock.sleep(Clock::Duration(0.05));
  const Clock::Duration passed = clock.now() - start;

  const itimerval never = {};
  ASSERT_EQ(::setitimer(ITIMER_REAL, &never, nullptr), 0);
  ASSERT_EQ(::sigaction(SIGALRM, &before, nullptr), 0);
  EXPECT_GE(passed.count(), 0.05);
  EXPECT_GE(alarms, 1);
}

TEST(SteadyClock, ReturnsFromAZeroSleep) {
  SteadyClock clock;
  const Clock::Duration start = clock.now();
  clock.sleep(Clock::Duration::zero());
  EXPECT_GE(clock.now(), start);
}

enum ChildExit { kCounted, kNotCounted, kNotPossible };

/// In a child: an hour passes for the clock that counts suspension, and none for the one that only runs.
ChildExit lookAroundAnHourOfSuspension() {
  SteadyClock clock;
  const Clock::Duration before = clock.now();
  if (::unshare(CLONE_NEWTIME) != 0) return kNotPossible;
  if (!(std::ofstream("/proc/self/timens_offsets") << "boottime 3600 0" << std::endl)) return kNotPossible;
  const int later = ::open("/proc/self/ns/time_for_children", O_RDONLY | O_CLOEXEC);
  if (later < 0 || ::setns(later, CLONE_NEWTIME) != 0) return kNotPossible;
  const Clock::Duration passed = clock.now() - before;
  return passed >= std::chrono::hours(1) && passed < std::chrono::hours(2) ? kCounted : kNotCounted;
}

TEST(SteadyClock, CountsTheTimeInSuspension) {
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) ::_exit(lookAroundAnHourOfSuspension());
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFEXITED(status));
  if (WEXITSTATUS(status) == kNotPossible) GTEST_SKIP() << "a time of its own for a process needs root";
  EXPECT_EQ(WEXITSTATUS(status), kCounted);
}

}  // namespace
}  // namespace calvero::testing
