#include "window/event_dispatch.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/fakes/small_fakes.h"

namespace calvero {
namespace {

using testing::FakeLog;
using testing::Journal;
using testing::Steps;

TEST(EventDispatch, RunsTheHandler) {
  Journal journal;
  FakeLog log(journal);
  EventDispatch(log).run([&] { journal.add("handled"); });
  EXPECT_EQ(journal.all(), Steps{"handled"});
}

TEST(EventDispatch, LogsAnExceptionAndLetsNothingThrough) {
  Journal journal;
  FakeLog log(journal);
  EXPECT_NO_THROW(EventDispatch(log).run([] { throw std::runtime_error("no such row"); }));
  EXPECT_NO_THROW(EventDispatch(log).run([] { throw 7; }));
  EXPECT_EQ(journal.all(), (Steps{"log Unexpected failure: no such row", "log Unexpected failure of an unknown kind"}));
}

}  // namespace
}  // namespace calvero
