#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "terminal/commands/clear_command.h"
#include "tests/terminal/fake_order_tags.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class ClearOrder : public ::testing::Test {
 protected:
  Answer clear() { return clearOrder(tags_, runs_.lookup()); }

  testing::Journal journal_;
  testing::FakeOrderTags tags_{journal_};
  testing::FakeRuns runs_;
};

TEST_F(ClearOrder, LeavesNoOrderAndNothingOfIt) {
  tags_.putOrder("stick", "3");
  tags_.put(kTagStatus, kStatusFinished);
  tags_.put(kTagCancel, "1");
  const Answer answer = clear();
  EXPECT_EQ(answer.exitCode, ExitCode::finished);
  EXPECT_THAT(answer.line, HasSubstr("stick"));
  EXPECT_THAT(journal_.all(), ElementsAre("store cvrOnline=0 cvrDrive= cvrAlgo= CVRCANCEL= cvrResult= cvrStatus= "
                                          "cvrNamed= cvrMountPath= cvrVolumeUuid="));
  EXPECT_FALSE(readPendingOrder(tags_).exists());
}

TEST_F(ClearOrder, IsRefusedWhileARunIsUnderWay) {
  tags_.putOrder("stick", "3");
  runs_.begin("stick");
  const Answer answer = clear();
  EXPECT_EQ(answer.exitCode, ExitCode::refused);
  EXPECT_THAT(answer.line, HasSubstr("calvero-cli cancel"));
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(ClearOrder, IsRefusedWhileARunOfTheOrderHoldsNoVolumeYetOrNoLonger) {
  tags_.putOrder("stick", "3");
  tags_.put(kTagStatus, kStatusFinished);
  runs_.claim();
  EXPECT_EQ(clear().exitCode, ExitCode::refused);
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(ClearOrder, IsRefusedWhenARunBeginsBeforeItIsRemoved) {
  tags_.putOrder("disk", "3");
  tags_.put(kTagStatus, kStatusFinished);
  tags_.beforeStore([this] {
    tags_.putOrder("stick", "8");
    runs_.begin("stick");
  });
  EXPECT_EQ(clear().exitCode, ExitCode::refused);
  EXPECT_EQ(tags_.peek(kTagDrive), "stick");
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(ClearOrder, StoresNothingWhereNothingIs) {
  EXPECT_EQ(clear().exitCode, ExitCode::finished);
  EXPECT_THAT(journal_.all(), IsEmpty());
}

TEST_F(ClearOrder, RemovesAlsoARequestOrAStatusThatWasLeftAlone) {
  for (const char* tag : {kTagCancel, kTagStatus, kTagAlgo}) {
    tags_.put(tag, "1");
    EXPECT_EQ(clear().exitCode, ExitCode::finished);
    EXPECT_EQ(tags_.peek(tag), "") << tag;
  }
}

TEST_F(ClearOrder, TellsWhenTheStoreCannotBeWritten) {
  tags_.putOrder("stick", "3");
  tags_.setWritable(false);
  EXPECT_THROW(clear(), TagStoreFailure);
}

}  // namespace
}  // namespace calvero
