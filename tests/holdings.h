#pragma once

#include <gtest/gtest.h>
#include <malloc.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <thread>

namespace calvero::testing {

inline std::ptrdiff_t entriesOf(const char* folder) {
  return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

/// Waits until no thread has begun or ended for a while: one that has done its work may be on its way out yet.
inline std::ptrdiff_t threadsAtRest() {
  constexpr int kLooks = 50;
  std::ptrdiff_t threads = 0;
  for (int look = 0; look < kLooks; ++look) {
    const auto now = entriesOf("/proc/self/task");
    if (now != threads) look = 0;
    threads = now;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return threads;
}

/// What this process holds once its threads are at rest.
struct Holdings {
  std::ptrdiff_t threads = threadsAtRest();  // first, since a thread that ends gives back the rest
  std::size_t bytes = ::mallinfo2().uordblks;
  std::ptrdiff_t descriptors = entriesOf("/proc/self/fd");
};

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kIsSanitized = true;
#else
constexpr bool kIsSanitized = false;
#endif

/// Wipes with their cancels of a real volume. A small object that each left would be more than the bounds allow; the
/// few under a sanitizer take as long as all do otherwise.
constexpr int kPairs = kIsSanitized ? 20 : 100;

inline void expectNothingGained(const Holdings& before, const Holdings& after, std::size_t mostBytesForAPair) {
  EXPECT_EQ(after.descriptors, before.descriptors);
  EXPECT_EQ(after.threads, before.threads);
  ::testing::Test::RecordProperty("bytesForAPair", static_cast<int>((after.bytes - before.bytes) / kPairs));
  if (kIsSanitized) return;  // the sanitizers keep what was freed
  EXPECT_LT(after.bytes, before.bytes + kPairs * mostBytesForAPair);
}

}  // namespace calvero::testing
