#include "app/home_path.h"

#include <gtest/gtest.h>

namespace calvero {
namespace {

TEST(HomePath, IsSixLevelsAboveTheProgram) {
  EXPECT_EQ(homeApplicationPath("/opt/home/1/2/3/4/5/calvero"), "/opt/home");
}

TEST(HomePath, OfAProgramLessThanSixLevelsDeepIsWhatTheRemovalsLeave) {
  EXPECT_EQ(homeApplicationPath("/usr/bin/calvero"), "/");
  EXPECT_EQ(homeApplicationPath("/calvero"), "/");
  EXPECT_EQ(homeApplicationPath("/"), "/");
  EXPECT_EQ(homeApplicationPath("a/b"), "");
  EXPECT_EQ(homeApplicationPath(""), "");
}

TEST(HomePath, LosesOneComponentAtATime) {
  EXPECT_EQ(withoutLastComponent("/a/b"), "/a");
  EXPECT_EQ(withoutLastComponent("/a/b/"), "/a");
  EXPECT_EQ(withoutLastComponent("/a//b"), "/a");
  EXPECT_EQ(withoutLastComponent("/a"), "/");
  EXPECT_EQ(withoutLastComponent("a"), "");
}

}  // namespace
}  // namespace calvero
