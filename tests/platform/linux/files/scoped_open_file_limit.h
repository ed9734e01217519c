#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <vector>

#include "platform/linux/system/descriptor.h"

namespace calvero::testing {

/// The soft limit of open files, lowered so that only `more` further ones and `spare` others can be opened.
class ScopedOpenFileLimit {
 public:
  explicit ScopedOpenFileLimit(std::size_t more, rlim_t spare = 0) {
    EXPECT_EQ(::getrlimit(RLIMIT_NOFILE, &old_), 0);
    struct rlimit lowered = old_;
    lowered.rlim_cur = firstBeyond(more) + spare;
    EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &lowered), 0);
  }
  ScopedOpenFileLimit(const ScopedOpenFileLimit&) = delete;
  ScopedOpenFileLimit& operator=(const ScopedOpenFileLimit&) = delete;
  ~ScopedOpenFileLimit() { EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &old_), 0); }

 private:
  /// The descriptor that would follow the next `more` ones.
  static rlim_t firstBeyond(std::size_t more) {
    std::vector<Descriptor> next;
    while (next.size() <= more) next.emplace_back(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    return static_cast<rlim_t>(next.back().get());
  }

  struct rlimit old_ = {};
};

}  // namespace calvero::testing
