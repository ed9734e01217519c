#include <fcntl.h>
#include <gtest/gtest.h>

#include <unistd.h>
#include <atomic>

#include <array>

#include "platform/linux/files/held_files.h"

namespace calvero::testing {
namespace {

/// A pipe whose reading end tells whether the writing end, given away, has been closed.
class WatchedDescriptor {
 public:
  WatchedDescriptor() {
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
    reading_ = Descriptor(ends[0]);
    writing_ = Descriptor(ends[1]);
  }
  Descriptor take() { return std::move(writing_); }
  [[nodiscard]] bool closed() const {
    char ignored = 0;
    return ::read(reading_.get(), &ignored, 1) == 0;
  }

 private:
  Descriptor reading_;
  Descriptor writing_;
};

std::atomic<std::uint64_t> steps{0};

TEST(HeldFiles, StayOpenUntilTheyAreReleased) {
  HeldFiles held;
  WatchedDescriptor file;
  held.keep(file.take());
  EXPECT_FALSE(file.closed());
  held.release(steps);
  EXPECT_TRUE(file.closed());
}

TEST(HeldFiles, AreHeldAgainAfterARelease) {
  HeldFiles held;
  held.release(steps);
  WatchedDescriptor file;
  held.keep(file.take());
  EXPECT_FALSE(file.closed());
}

TEST(HeldFiles, AreClosedAtOnceAfterTheLastRelease) {
  HeldFiles held;
  WatchedDescriptor before;
  held.keep(before.take());
  held.releaseForGood(steps);
  EXPECT_TRUE(before.closed());
  WatchedDescriptor late;
  held.keep(late.take());
  EXPECT_TRUE(late.closed());
}

TEST(HeldFiles, AreCountedAsTheyAreReleased) {
  HeldFiles held;
  WatchedDescriptor first;
  WatchedDescriptor second;
  held.keep(first.take());
  held.keep(second.take());
  std::atomic<std::uint64_t> released{0};
  held.release(released);
  EXPECT_EQ(released, 2U);
}

TEST(HeldFiles, EndWithTheirHolder) {
  WatchedDescriptor file;
  {
    HeldFiles held;
    held.keep(file.take());
  }
  EXPECT_TRUE(file.closed());
}

}  // namespace
}  // namespace calvero::testing
