#include "platform/dbus/post_notification.h"

#include <gmock/gmock.h>

#include "tests/platform/dbus/notifications_fixture.h"

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using PostingANotification = NotificationsOnABus;

TEST_F(PostingANotification, ReachesItsObserversAndNoOthers) {
  SessionNotifications notifications(loop_, log_);
  std::vector<std::string> received;
  notifications.observe(kName, "disc", [&] { received.emplace_back("disc"); });
  notifications.observe(kName, kObject, [&] { received.emplace_back("cancel"); });
  EXPECT_TRUE(postNotification(kName, kObject, log_));
  EXPECT_TRUE(serveUntil([&] { return !received.empty(); }));
  EXPECT_THAT(received, ElementsAre("cancel"));
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(PostingANotification, SucceedsThoughNobodyObserves) {
  EXPECT_TRUE(postNotification(kName, kObject, log_));
  EXPECT_TRUE(waitUntilNoThreadUsesABus());
}

TEST_F(PostingANotification, FailsWithTextsThatTheBusCannotCarryWhole) {
  EXPECT_FALSE(postNotification(std::string("cancel wipe\0more", 16), kObject, log_));
  EXPECT_FALSE(postNotification(kName, "\xFF", log_));
  EXPECT_THAT(log_.lines(), ElementsAre(HasSubstr("NUL"), HasSubstr("is not sent")));
}

TEST_F(PostingANotification, FailsOnceTheBusHasGoneAway) {
  bus_.kill();
  EXPECT_FALSE(postNotification(kName, kObject, log_));
  EXPECT_THAT(log_.lines(), ElementsAre(HasSubstr("is not sent")));
}

}  // namespace
}  // namespace calvero::testing
