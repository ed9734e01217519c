#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "terminal/commands/status_command.h"
#include "tests/terminal/fake_order_tags.h"

namespace calvero {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

PendingOrder orderOf(const std::string& volume, const std::string& method, const std::string& status = "") {
  return {.online = "1",
          .volume = volume,
          .method = method,
          .status = status,
          .cancel = "",
          .result = "",
          .named = "",
          .mountPath = "",
          .volumeUuid = ""};
}

nlohmann::json jsonOf(const PendingOrder& order, RunState run = RunState::none) {
  return nlohmann::json::parse(statusJson(order, run));
}

TEST(ReadPendingOrder, TakesOnlyOneForPending) {
  testing::Journal journal;
  testing::FakeOrderTags tags(journal);
  EXPECT_FALSE(readPendingOrder(tags).exists());
  tags.putOrder("stick", "3");
  EXPECT_TRUE(readPendingOrder(tags).isPending());
  for (const char* other : {"", "0", "01", "1 ", "true"}) {
    tags.put(kTagOnline, other);
    EXPECT_FALSE(readPendingOrder(tags).isPending()) << other;
    EXPECT_TRUE(readPendingOrder(tags).exists()) << other;
  }
}

TEST(StatusText, IsThreeLines) {
  EXPECT_EQ(statusText({}, RunState::none), "Order:  none\nRun:    none\nStatus: none\n");
  EXPECT_EQ(statusText(orderOf("stick", "3"), RunState::underWay),
            "Order:  \"stick\" with method 3 (dod), pending\nRun:    under way\nStatus: none yet\n");
}

TEST(StatusText, TellsWhereTheOrderedVolumeIsAndWhatItCallsItselfWhereTheOrderSaysSo) {
  PendingOrder order = orderOf("stick", "3");
  order.mountPath = "/media/a\nb";
  order.volumeUuid = "12-34";
  order.named = "disk";
  EXPECT_THAT(statusText(order, RunState::none), Not(HasSubstr("12-34"))) << "that was another order";
  EXPECT_TRUE(jsonOf(order)["mountPath"].is_null());
  order.named = "stick";
  EXPECT_THAT(statusText(order, RunState::none), HasSubstr(", pending\nPlace:  /media/a\\012b\nUUID:   12-34\nRun:"));
  EXPECT_EQ(jsonOf(order)["mountPath"], "/media/a\nb");
  EXPECT_EQ(jsonOf(order)["volumeUuid"], "12-34");
}

TEST(StatusText, SaysTheStatusInWordsAndAsANumber) {
  EXPECT_THAT(statusText(orderOf("stick", "3", "2"), RunState::none), HasSubstr("Status: 2, finished\n"));
  EXPECT_THAT(statusText(orderOf("stick", "3", "3"), RunState::none), HasSubstr("Status: 3, not finished: "));
}

TEST(StatusText, TellsWhatTheStatusDoesNot) {
  const auto statusLineOf = [](const char* status, const char* result) {
    PendingOrder order = orderOf("stick", "3", status);
    order.result = result;
    const std::string text = statusText(order, RunState::none);
    return text.substr(text.find("Status: "));
  };
  EXPECT_EQ(statusLineOf("2", "complete free=5 covered=5"), "Status: 2, finished\n");
  EXPECT_EQ(statusLineOf("2", "partial free=111000000 covered=9200000"),
            "Status: 2, finished in part: 9.20 MB of 111.00 MB of free space erased; deleted data may remain readable "
            "there\n");
  EXPECT_EQ(statusLineOf("2", "nothing"),
            "Status: 2, finished. Nothing was overwritten: this method writes no data.\n");
  EXPECT_EQ(statusLineOf("3", "cancelled"), "Status: 3, not finished: the run was cancelled\n");
  EXPECT_EQ(statusLineOf("3", "failed"), "Status: 3, not finished: the volume is missing or vanished\n");
  EXPECT_THAT(statusLineOf("3", "failed cause=storage-full"), HasSubstr("the storage under stick is full"));
  EXPECT_THAT(statusLineOf("3", "partial free=1"), HasSubstr("vanished, or the run was cancelled"))
      << "an earlier run's";
}

TEST(StatusText, TellsOfARequestToCancel) {
  PendingOrder order = orderOf("stick", "3");
  EXPECT_THAT(statusText(order, RunState::underWay), Not(HasSubstr("Cancel")));
  order.cancel = "1";
  EXPECT_THAT(statusText(order, RunState::underWay), HasSubstr("\nCancel: asked for\n"));
}

TEST(StatusText, SaysWhichMethodARunTakesWhereNoneIsNamed) {
  EXPECT_THAT(statusText(orderOf("stick", "abc"), RunState::none),
              HasSubstr("with method 1 (zero), since \"abc\" names none, pending\n"));
}

TEST(StatusText, ShowsHostileTextsAsEscapes) {
  EXPECT_EQ(statusText(orderOf("a\033[2J", "\n", "\r"), RunState::none),
            "Order:  \"a\\033[2J\" with method 1 (zero), since \"\\012\" names none, pending\nRun:    none\n"
            "Status: unknown: \"\\015\"\n");
}

TEST(StatusText, KeepsAnOrderThatIsNotPendingApart) {
  PendingOrder order = orderOf("stick", "3", "2");
  order.online = "0";
  EXPECT_THAT(statusText(order, RunState::none), HasSubstr("(dod), not pending\n"));
}

TEST(StatusJson, IsNullWhereThereIsNoOrder) {
  EXPECT_EQ(
      jsonOf({}),
      nlohmann::json::parse(
          R"({"pending": false, "volume": null, "method": null, "mountPath": null, "volumeUuid": null, "running": false,
      "cancelAsked": false, "status": null, "outcome": "none", "grade": null, "bytesOverwritten": null,
      "shortBy": null})"));
}

TEST(StatusJson, GivesTheOrderItsRunAndItsStatus) {
  PendingOrder order = orderOf("stick", "9", "3");
  order.cancel = "1";
  EXPECT_EQ(
      jsonOf(order, RunState::underWay),
      nlohmann::json::parse(
          R"({"pending": true, "volume": "stick", "method": 9, "mountPath": null, "volumeUuid": null, "running": true,
      "cancelAsked": true, "status": 3, "outcome": "failed", "grade": null, "bytesOverwritten": null,
      "shortBy": null})"));
}

TEST(StatusJson, GivesTheGradeOfAFinishedRun) {
  PendingOrder order = orderOf("stick", "3", "2");
  order.result = "partial free=111000000 covered=9200000";
  EXPECT_EQ(jsonOf(order)["outcome"], "finished");
  EXPECT_EQ(jsonOf(order)["grade"], "partial");
  EXPECT_EQ(jsonOf(order)["bytesOverwritten"], 9'200'000);
  EXPECT_EQ(jsonOf(order)["shortBy"], 101'800'000);
}

TEST(StatusJson, KnowsTheTwoStatusesOnly) {
  EXPECT_EQ(jsonOf(orderOf("stick", "1", "2"))["outcome"], "finished");
  EXPECT_EQ(jsonOf(orderOf("stick", "1"))["outcome"], "none");
  EXPECT_EQ(jsonOf(orderOf("stick", "1", "12"))["outcome"], "unknown");
  EXPECT_TRUE(jsonOf(orderOf("stick", "1", "12"))["status"].is_null());
}

TEST(StatusJson, GivesTheMethodThatARunTakesWhereNoneIsNamed) {
  EXPECT_EQ(jsonOf(orderOf("stick", "0"))["method"], 1);
}

}  // namespace
}  // namespace calvero
