#include "volumes/refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

namespace calvero {
namespace {

using ::testing::HasSubstr;

constexpr ErrorCode kRefusing[] = {ErrorCode::notFound, ErrorCode::readOnly, ErrorCode::gone,   ErrorCode::notPermitted,
                                   ErrorCode::busy,     ErrorCode::notOurs,  ErrorCode::locked, ErrorCode::thinStorage};

TEST(RefusalWords, TellEveryReasonInASentenceOfItsOwn) {
  std::set<std::string> sentences;
  for (const ErrorCode code : kRefusing) {
    EXPECT_EQ(refusalWords(code).code, code);
    sentences.insert(refusalWords(code).key);
  }
  EXPECT_EQ(sentences.size(), std::size(kRefusing));
}

TEST(RefusalWords, CallAnyOtherFailureUnknownAndNameItInTheTerminal) {
  for (const ErrorCode code : {ErrorCode::exists, ErrorCode::full, ErrorCode::overQuota, ErrorCode::storageFull,
                               ErrorCode::noHandles, ErrorCode::closed, ErrorCode::other}) {
    EXPECT_STREQ(refusalWords(code).key, "Unknown Error Occured");
    EXPECT_THAT(refusalWords(code).line, HasSubstr("%4"));
  }
}

TEST(RefusalWords, HaveAValueWhereTheSentenceHasAPlace) {
  for (const ErrorCode code : kRefusing) {
    const bool hasPlace = std::string(refusalWords(code).key).find("%1") != std::string::npos;
    EXPECT_EQ(hasPlace, refusalWords(code).value != RefusalValue::none) << refusalWords(code).key;
  }
}

}  // namespace
}  // namespace calvero
