#include "platform/linux/steady_clock.h"

#include <gtest/gtest.h>
#include <sys/time.h>

#include <csignal>

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

}  // namespace
}  // namespace calvero::testing
