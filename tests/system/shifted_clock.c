/* Preloaded, it lets a program see a system clock that is set a day ahead and back, ten times a second. The clock that
   only runs is left alone. */

#define _GNU_SOURCE
#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

static int ask(clockid_t clock, struct timespec *now) { return (int)syscall(SYS_clock_gettime, clock, now); }

static time_t shift(void) {
  struct timespec now;
  ask(CLOCK_MONOTONIC, &now);
  const long tenths = now.tv_sec * 10 + now.tv_nsec / 100000000;
  return (tenths % 3 - 1) * 86400;
}

int clock_gettime(clockid_t clock, struct timespec *now) {
  const int result = ask(clock, now);
  if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)) now->tv_sec += shift();
  return result;
}

int gettimeofday(struct timeval *restrict now, void *restrict zone) {
  (void)zone;
  struct timespec exact;
  clock_gettime(CLOCK_REALTIME, &exact);
  now->tv_sec = exact.tv_sec;
  now->tv_usec = exact.tv_nsec / 1000;
  return 0;
}

time_t time(time_t *now) {
  struct timespec exact;
  clock_gettime(CLOCK_REALTIME, &exact);
  if (now != NULL) *now = exact.tv_sec;
  return exact.tv_sec;
}
