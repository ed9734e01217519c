#include "platform/linux/system/posix_error.h"

#include <gtest/gtest.h>

namespace calvero::testing {
namespace {

TEST(PosixError, TellsApartTheKindsThatTheControllerKnows) {
  EXPECT_EQ(errorCodeOf(0), ErrorCode::none);
  EXPECT_EQ(errorCodeOf(ENOENT), ErrorCode::notFound);
  EXPECT_EQ(errorCodeOf(EEXIST), ErrorCode::exists);
  EXPECT_EQ(errorCodeOf(EPERM), ErrorCode::notPermitted);
  EXPECT_EQ(errorCodeOf(EROFS), ErrorCode::readOnly);
  EXPECT_EQ(errorCodeOf(ENOSPC), ErrorCode::full);
  EXPECT_EQ(errorCodeOf(EDQUOT), ErrorCode::overQuota) << "there may be room for others";
  EXPECT_EQ(errorCodeOf(ENFILE), ErrorCode::noHandles);
  EXPECT_EQ(errorCodeOf(ESTALE), ErrorCode::gone);
  EXPECT_EQ(errorCodeOf(EBUSY), ErrorCode::other) << "busy is said of another run only";
}

TEST(PosixError, ReportsCallPathAndTheSystemsWords) {
  EXPECT_EQ(posixError("openat", "/mnt/a", EROFS).text(), "openat /mnt/a: Read-only file system");
  EXPECT_EQ(posixError("openat", "/mnt/a", EROFS).code, ErrorCode::readOnly);
}

TEST(PosixError, MakesAnInterruptedCallAgain) {
  int calls = 0;
  const int result = retryInterrupted([&] {
    errno = EINTR;
    return ++calls < 3 ? -1 : 7;
  });
  EXPECT_EQ(result, 7);
  EXPECT_EQ(calls, 3);
}

TEST(PosixError, ReturnsAnyOtherFailureAtOnce) {
  int calls = 0;
  const int result = retryInterrupted([&] {
    errno = EIO;
    ++calls;
    return -1;
  });
  EXPECT_EQ(result, -1);
  EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace calvero::testing
