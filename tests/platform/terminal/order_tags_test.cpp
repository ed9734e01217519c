#include "platform/terminal/commands/order_tags.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <thread>

#include "platform/suite/sqlite_connection.h"
#include "tests/platform/suite/store_folder.h"
#include "tests/platform/terminal/order_testing.h"

namespace calvero {
namespace {

using testing::HasSubstr;

class StoredOrderTagsTest : public testing::StoreFolder {};

TEST_F(StoredOrderTagsTest, KeepsWhatIsStored) {
  StoredOrderTags(path()).store({{"a", "1"}, {"b", ""}});
  StoredOrderTags tags(path());
  EXPECT_EQ(tags.value("a"), "1");
  EXPECT_EQ(tags.value("b"), "");
  EXPECT_EQ(testing::tagIn(path(), "a"), "1");
}

TEST_F(StoredOrderTagsTest, MakesNoStoreByReading) {
  EXPECT_EQ(StoredOrderTags(path()).value("a"), "");
  EXPECT_FALSE(std::filesystem::exists(path()));
}

TEST_F(StoredOrderTagsTest, WaitsForAnotherProgramThatIsWriting) {
  StoredOrderTags tags(path());
  tags.store({{"a", "1"}});
  auto other = std::make_unique<testing::WriteLock>(path());
  std::jthread releases([&other] {
    std::this_thread::sleep_for(kWritePatience + std::chrono::milliseconds(100));  // longer than one attempt waits
    other.reset();
  });
  tags.store({{"a", "2"}});
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
    tags.store({{"a", "1"}});
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
  EXPECT_THROW(tags.store({{"a", "1"}}), TagStoreFailure);
}

}  // namespace
}  // namespace calvero
