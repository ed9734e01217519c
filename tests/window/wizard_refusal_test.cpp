#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/window/wizard_fixture.h"

namespace calvero {
namespace {

using testing::FileCall;
using ::testing::HasSubstr;

/// Which volumes are not erased, and when the user is told why.
class RefusingWindowSession : public testing::WizardFixture {};

struct Refusal {
  ErrorCode code;
  const char* words;
};

TEST_F(RefusingWindowSession, RefusesAVolumeThatCannotBeErasedAndSaysWhy) {
  mountVolume("DATA");
  use([this] {
    for (const Refusal& refusal : {Refusal{ErrorCode::notPermitted, "You are not allowed to write"},
                                   Refusal{ErrorCode::busy, "being erased by another process"},
                                   Refusal{ErrorCode::notOurs, "a folder \".$$XE8AQU\" that was not made by Calvero"},
                                   Refusal{ErrorCode::locked, "that an earlier run left and that is locked"},
                                   Refusal{ErrorCode::thinStorage, "has less room than the drive shows"},
                                   Refusal{ErrorCode::other, "Unknown Error Occured"}}) {
      alertText.clear();
      files.script.failAt(FileCall::checkDirectory, files.script.count(FileCall::checkDirectory) + 1, refusal.code);
      answerNextAlert();
      press("buttonNext");
      EXPECT_THAT(alertText, HasSubstr(refusal.words));
      EXPECT_EQ(page(), 0);
    }
  });
}

TEST_F(RefusingWindowSession, AcceptsAVolumeWhoseReadOnlyAttributeCannotBeReadAndRefusesItBeforeTheRun) {
  mountVolume("DATA");
  volumes.hideReadOnlyFlag("/media/DATA");
  files.script.failFrom(FileCall::checkDirectory, 1, ErrorCode::gone);
  use([this] {
    press("buttonNext");
    EXPECT_EQ(page(), 1);
    answerNextAlert();
    press("proceedBtn");
    EXPECT_THAT(alertText, HasSubstr("does not respond"));
    EXPECT_EQ(page(), 1);
    EXPECT_EQ(app->shell().wipingProcessOn, 0);
  });
}

TEST_F(RefusingWindowSession, AcceptsAVolumeWithoutFiguresAndRefusesItBeforeTheRun) {
  mountVolume("DATA", 0);
  use([this] {
    press("buttonNext");
    EXPECT_EQ(page(), 1);
    answerNextAlert();
    press("proceedBtn");
    EXPECT_THAT(alertText, HasSubstr("does not respond"));
    EXPECT_EQ(page(), 1);
  });
}

TEST_F(RefusingWindowSession, RefusesAVolumeThatWasPulledSinceItWasListed) {
  mountVolume("DATA");
  use([this] {
    unmountVolume("DATA");
    answerNextAlert();
    press("buttonNext");
    EXPECT_THAT(alertText, HasSubstr("not connected any more"));
    EXPECT_EQ(page(), 0);
  });
}

TEST_F(RefusingWindowSession, LooksAgainBeforeARunWhetherTheVolumeCanBeErased) {
  mountVolume("DATA");
  use([this] {
    press("buttonNext");
    ASSERT_EQ(page(), 1);
    files.script.failAt(FileCall::checkDirectory, files.script.count(FileCall::checkDirectory) + 1, ErrorCode::busy);
    answerNextAlert();
    press("proceedBtn");
    EXPECT_THAT(alertText, HasSubstr("being erased by another process"));
    EXPECT_EQ(page(), 1);
    EXPECT_EQ(app->shell().wipingProcessOn, 0);
  });
}

}  // namespace
}  // namespace calvero
