#include "platform/suite/claimed_tags.h"

#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <utility>

#include "tests/platform/suite/store_folder.h"

namespace calvero::testing {
namespace {

using Holder = OrderClaim::Holder;

class TagsInMemory : public TagStore {
 public:
  std::optional<std::string> value(const std::string& tag) override {
    if (whenRead) std::exchange(whenRead, {})();
    const auto found = values.find(tag);
    return found == values.end() ? std::nullopt : std::optional(found->second);
  }
  void setValue(const std::string& tag, const std::string& value) override { values[tag] = value; }

  std::map<std::string, std::string> values;
  std::function<void()> whenRead;  ///< once
};

class SilentLog : public SystemLog {
 public:
  void line(const std::string&) override {}
  void notice(const std::string&) override {}
};

class ClaimedTagsTest : public StoreFolder {
 protected:
  void order(const std::string& online = "1") {
    store_.setValue("cvrOnline", online);
    store_.setValue("cvrDrive", "stick");
  }
  std::optional<std::string> online() { return tags_.value("cvrOnline"); }

  TagsInMemory store_;
  SilentLog log_;
  OrderClaim claim_{path()};
  OrderClaim other_{path()};
  ClaimedTags tags_{store_, claim_, "cvrOnline", log_};
};

TEST_F(ClaimedTagsTest, ReadNoOrderThatAnotherProcessHolds) {
  order();
  ASSERT_EQ(other_.take(kNoTime), Holder::us);
  EXPECT_EQ(online(), std::nullopt);
  EXPECT_EQ(tags_.value("cvrDrive"), "stick") << "nothing else is hidden";
  other_.giveUp();
  EXPECT_EQ(online(), "1");
  EXPECT_EQ(other_.take(kNoTime), Holder::another) << "whoever has read it holds it";
}

TEST_F(ClaimedTagsTest, ReadNoOrderThatCannotBeClaimed) {
  order();
  ASSERT_TRUE(std::filesystem::create_directory(path() + "-order"));
  EXPECT_EQ(online(), std::nullopt);
  EXPECT_TRUE(tags_.isOursToCarryOut()) << "but one that this process was started for is carried out";
  EXPECT_EQ(online(), "1");
}

TEST_F(ClaimedTagsTest, ReadNoOrderThatIsCalledOffBeforeItIsClaimed) {
  order();
  store_.whenRead = [this] { store_.whenRead = [this] { store_.setValue("cvrOnline", "0"); }; };
  EXPECT_EQ(online(), "0");
  EXPECT_EQ(other_.take(kNoTime), Holder::us);
}

TEST_F(ClaimedTagsTest, ClaimNothingWithoutAnOrderAndGiveUpTheClaimWithIt) {
  EXPECT_EQ(online(), std::nullopt);
  EXPECT_THAT(namesIn(folder()), ::testing::IsEmpty());
  order();
  EXPECT_EQ(online(), "1");
  order("0");
  EXPECT_EQ(online(), "0");
  EXPECT_EQ(other_.take(kNoTime), Holder::us);
}

TEST_F(ClaimedTagsTest, AreKeptByWhoeverCarriesOutTheOrderUntilItGivesUp) {
  order();
  ASSERT_TRUE(tags_.isOursToCarryOut());
  order("0");
  EXPECT_EQ(online(), "0");
  EXPECT_EQ(other_.take(kNoTime), Holder::another) << "its run goes on";
  tags_.giveUp();
  EXPECT_EQ(other_.take(kNoTime), Holder::us);
  EXPECT_FALSE(tags_.isOursToCarryOut());
}

}  // namespace
}  // namespace calvero::testing
