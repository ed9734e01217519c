#include "platform/linux/process/process_limits.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace calvero::testing {
namespace {

TEST(ProcessLimits, RaisesTheOpenFilesToTheHardLimit) {
  struct rlimit before = {};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
  struct rlimit lowered = before;
  lowered.rlim_cur = 64;
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &lowered), 0);
  raiseOpenFileLimit();
  struct rlimit after = {};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &after), 0);
  EXPECT_EQ(after.rlim_cur, before.rlim_max);
  EXPECT_EQ(after.rlim_max, before.rlim_max);
  EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
}

}  // namespace
}  // namespace calvero::testing
