#include "platform/suite/order_claim.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

#include "tests/platform/suite/child_process.h"
#include "tests/platform/suite/environment_variable.h"
#include "tests/platform/suite/store_folder.h"

namespace calvero::testing {
namespace {

using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;
using Holder = OrderClaim::Holder;

class OrderClaimTest : public StoreFolder {
 protected:
  [[nodiscard]] std::string file() const { return path() + "-order"; }
  [[nodiscard]] mode_t modeOf(const std::string& place) const {
    struct stat status {};
    EXPECT_EQ(::stat(place.c_str(), &status), 0);
    return status.st_mode & 07777U;
  }

  OrderClaim claim_{path()};
  OrderClaim other_{path()};
};

TEST_F(OrderClaimTest, IsTakenByOneAtATime) {
  EXPECT_FALSE(other_.isHeldByAnother());
  EXPECT_EQ(claim_.take(kNoTime), Holder::us);
  EXPECT_EQ(claim_.take(kNoTime), Holder::us) << "it is ours already";
  EXPECT_FALSE(claim_.isHeldByAnother());
  EXPECT_TRUE(other_.isHeldByAnother());
  EXPECT_EQ(other_.take(kShort), Holder::another);
  claim_.giveUp();
  EXPECT_FALSE(other_.isHeldByAnother());
  EXPECT_EQ(other_.take(kNoTime), Holder::us);
}

TEST_F(OrderClaimTest, IsAFileOfTheUserBesideTheStoreAndStaysThere) {
  const std::string place = folder() + "/new/suite/tags.sqlite";
  OrderClaim(place).take(kNoTime);
  EXPECT_THAT(namesIn(folder() + "/new/suite"), UnorderedElementsAre("tags.sqlite-order"));
  EXPECT_EQ(modeOf(place + "-order"), 0600U);
  EXPECT_EQ(modeOf(folder() + "/new/suite"), 0700U);
}

TEST_F(OrderClaimTest, MakesNothingWhereItOnlyLooksAndIsInNobodysWay) {
  EXPECT_FALSE(claim_.isHeldByAnother());
  EXPECT_THAT(namesIn(folder()), IsEmpty());
}

TEST_F(OrderClaimTest, IsOneHoweverALinkLeadsToTheStore) {
  setTag(path(), "cvrOnline", "1");
  const std::string link = folder_.make("elsewhere") + "/link";
  ASSERT_EQ(::symlink(path().c_str(), link.c_str()), 0);
  OrderClaim byTheLink(link);
  EXPECT_EQ(byTheLink.take(kNoTime), Holder::us);
  EXPECT_TRUE(other_.isHeldByAnother());
}

TEST_F(OrderClaimTest, WaitsForAnotherThatHoldsItForAMoment) {
  ASSERT_EQ(claim_.take(kNoTime), Holder::us);
  std::jthread ending([this] {
    std::this_thread::sleep_for(kShort);
    claim_.giveUp();
  });
  EXPECT_EQ(other_.take(kLong), Holder::us);
}

TEST_F(OrderClaimTest, EndsWithAProcessThatIsKilled) {
  ChildProcess holding([this] {
    OrderClaim own(path());
    while (own.take(kNoTime) == Holder::us) ::pause();
    return false;
  });
  const auto limit = std::chrono::steady_clock::now() + kLong;
  while (!claim_.isHeldByAnother() && std::chrono::steady_clock::now() < limit) std::this_thread::yield();
  EXPECT_EQ(claim_.take(kNoTime), Holder::another);
  EXPECT_TRUE(holding.kill());
  EXPECT_FALSE(claim_.isHeldByAnother());
  EXPECT_EQ(claim_.take(kNoTime), Holder::us);
}

TEST_F(OrderClaimTest, IsNeverTakenThroughALinkOrOfWhatIsNoFile) {
  putBytes(folder() + "/precious", "kept");
  ASSERT_EQ(::symlink((folder() + "/precious").c_str(), file().c_str()), 0);
  EXPECT_EQ(claim_.take(kNoTime), Holder::nobody);
  EXPECT_FALSE(other_.isHeldByAnother());
  ::unlink(file().c_str());
  ASSERT_EQ(::symlink((folder() + "/nowhere").c_str(), file().c_str()), 0);
  EXPECT_EQ(claim_.take(kNoTime), Holder::nobody);
  ::unlink(file().c_str());
  ASSERT_EQ(::mkfifo(file().c_str(), S_IRUSR | S_IWUSR), 0);
  EXPECT_EQ(claim_.take(kNoTime), Holder::nobody);
  EXPECT_FALSE(other_.isHeldByAnother());
  EXPECT_EQ(bytesOf(folder() + "/precious"), "kept");
  EXPECT_THAT(namesIn(folder()), UnorderedElementsAre("precious", "tags.sqlite-order"));
}

TEST_F(OrderClaimTest, IsNobodysWhereNoFileCanBeMade) {
  ::chmod(folder().c_str(), 0555);
  EXPECT_TRUE(succeedsAsPlainUser([this] { return OrderClaim(path()).take(kNoTime) == Holder::nobody; }));
  ::chmod(folder().c_str(), 0700);
  EXPECT_EQ(OrderClaim("").take(kNoTime), Holder::nobody);
  EXPECT_FALSE(OrderClaim("").isHeldByAnother());
}

class InheritedClaim : public OrderClaimTest {
 protected:
  /// What a program that was started with that variable does.
  [[nodiscard]] bool inherits(const std::string& text) const {
    const EnvironmentVariable variable(OrderClaim::kInheritedVariable, text);
    OrderClaim own(path());
    own.inherit();
    EXPECT_EQ(std::getenv(OrderClaim::kInheritedVariable), nullptr);
    return own.descriptor() >= 0 && ::fcntl(own.descriptor(), F_GETFD) == FD_CLOEXEC;
  }
};

TEST_F(InheritedClaim, GoesOnWhenWhoeverHandedItOverLetsGo) {
  ASSERT_EQ(claim_.take(kNoTime), Holder::us);
  const int inherited = ::dup(claim_.descriptor());
  claim_.handOver();
  EXPECT_TRUE(other_.isHeldByAnother());
  EXPECT_TRUE(inherits(std::to_string(inherited)));
  EXPECT_FALSE(other_.isHeldByAnother());
}

TEST_F(InheritedClaim, IsNoneWhereTheDescriptorIsNotThatOfTheClaim) {
  ASSERT_EQ(other_.take(kNoTime), Holder::us);
  other_.giveUp();
  const int foreign = ::open(folder().c_str(), O_RDONLY | O_DIRECTORY);
  for (const std::string& text : {std::to_string(foreign), std::string("1000"), std::string("x"), std::string("")}) {
    EXPECT_FALSE(inherits(text)) << text;
  }
  ::close(foreign);
}

TEST_F(InheritedClaim, IsNoneWhereAnotherHasTheLock) {
  ASSERT_EQ(claim_.take(kNoTime), Holder::us);
  const int withoutLock = ::open(file().c_str(), O_RDWR);
  EXPECT_FALSE(inherits(std::to_string(withoutLock)));
  ::close(withoutLock);
}

}  // namespace
}  // namespace calvero::testing
