#include "terminal/commands/order_tags.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <memory>
#include <thread>
#include <tuple>

#include "platform/suite/sqlite_connection.h"
#include "tests/platform/suite/store_folder.h"
#include "tests/terminal/order_testing.h"

namespace calvero {
namespace {

using ::testing::HasSubstr;

const std::vector<TagValue> kWhatever;

class StoredOrderTagsTest : public testing::StoreFolder {};

TEST_F(StoredOrderTagsTest, KeepsWhatIsStored) {
  EXPECT_TRUE(StoredOrderTags(path()).store({{"a", "1"}, {"b", ""}}, kWhatever));
  StoredOrderTags tags(path());
  EXPECT_EQ(tags.value("a"), "1");
  EXPECT_EQ(tags.value("b"), "");
  EXPECT_EQ(testing::tagIn(path(), "a"), "1");
}

TEST_F(StoredOrderTagsTest, StoresNothingWhereATagReadsOtherwiseThanExpected) {
  StoredOrderTags tags(path());
  EXPECT_TRUE(tags.store({{"a", "1"}, {"b", "1"}}, {{"a", ""}, {"absent", ""}})) << "in a store that is made for it";
  EXPECT_FALSE(tags.store({{"a", "2"}, {"b", "2"}}, {{"b", "1"}, {"a", ""}}));
  EXPECT_EQ(tags.value("a") + tags.value("b"), "11");
  EXPECT_TRUE(tags.store({{"a", "3"}}, {{"a", "1"}, {"b", "1"}}));
  EXPECT_EQ(tags.value("a"), "3");
}

TEST_F(StoredOrderTagsTest, LetOneOfSeveralChangeWhatAllHaveSeen) {
  constexpr int kWriters = 8;
  std::atomic<int> stored{0};
  {
    std::vector<std::jthread> writers;
    for (int i = 0; i < kWriters; ++i) {
      writers.emplace_back([&, i] {
        if (StoredOrderTags(path()).store({{"a", std::to_string(i)}}, {{"a", ""}})) ++stored;
      });
    }
  }
  EXPECT_EQ(stored, 1);
}

TEST_F(StoredOrderTagsTest, MakesNoStoreByReading) {
  EXPECT_EQ(StoredOrderTags(path()).value("a"), "");
  EXPECT_FALSE(std::filesystem::exists(path()));
}

TEST_F(StoredOrderTagsTest, WaitsForAnotherProgramThatIsWriting) {
  StoredOrderTags tags(path());
  EXPECT_TRUE(tags.store({{"a", "1"}}, kWhatever));
  auto other = std::make_unique<testing::WriteLock>(path());
  std::jthread releases([&other] {
    std::this_thread::sleep_for(kWriteTimeout + std::chrono::milliseconds(100));  // longer than one attempt waits
    other.reset();
  });
  EXPECT_TRUE(tags.store({{"a", "2"}}, kWhatever));
  EXPECT_EQ(tags.value("a"), "2");
}

TEST_F(StoredOrderTagsTest, TellsInOneLineThatAStoreIsNone) {
  testing::putBytes(path(),
                    "this is no database, but a text that is longer than the header of one would be; indeed\n"
                    "it goes on over a second line, so that nobody can take it for one that was cut off");
  const std::string before = testing::bytesOf(path());
  StoredOrderTags tags(path());
  EXPECT_THROW(tags.value("a"), TagStoreFailure);
  try {
    std::ignore = tags.store({{"a", "1"}}, kWhatever);
    FAIL() << "stored in a file that is no store";
  } catch (const TagStoreFailure& failure) {
    EXPECT_THAT(failure.what(), HasSubstr(path()));
    EXPECT_THAT(failure.what(), testing::Not(HasSubstr("\n")));
  }
  EXPECT_EQ(testing::bytesOf(path()), before);
}

TEST_F(StoredOrderTagsTest, TellsThatThereIsNoPlaceForAStore) {
  StoredOrderTags tags("");
  EXPECT_THROW(tags.value("a"), TagStoreFailure);
  EXPECT_THROW(std::ignore = tags.store({{"a", "1"}}, kWhatever), TagStoreFailure);
}

}  // namespace
}  // namespace calvero
