#include "remote/order_result.h"

#include <array>
#include <charconv>
#include <sstream>
#include <string_view>

#include "remote/remote_order.h"

namespace calvero {
namespace {

struct Cause {
  ErrorCode code;
  std::string_view word;
};
constexpr std::array kCauses{Cause{ErrorCode::storageFull, "cause=storage-full"},
                             Cause{ErrorCode::overQuota, "cause=quota"}, Cause{ErrorCode::gone, "cause=medium"},
                             Cause{ErrorCode::readOnly, "cause=read-only"}};

constexpr std::array kGrades{RunGrade::complete, RunGrade::partial, RunGrade::nothing};
constexpr std::string_view kFailed = "failed";
constexpr std::string_view kCancelled = "cancelled";

struct Figure {
  std::string_view name;
  std::uint64_t RunAccount::*value;
};
constexpr std::array kFigures{Figure{"free=", &RunAccount::freeAtStart}, Figure{"covered=", &RunAccount::covered},
                              Figure{"not-held=", &RunAccount::notHeld}, Figure{"faults=", &RunAccount::faults}};

bool readFirstWord(const std::string& word, OrderResult& result) {
  for (const RunGrade grade : kGrades) {
    if (word != wordOf(grade)) continue;
    result.outcome = RunOutcome::finished;
    result.grade = grade;
    return true;
  }
  result.outcome = word == kCancelled ? RunOutcome::cancelled : RunOutcome::failed;
  return word == kCancelled || word == kFailed;
}

void readWord(const std::string& word, OrderResult& result) {
  for (const Cause& cause : kCauses) {
    if (word == cause.word) result.cause = cause.code;
  }
  for (const Figure& figure : kFigures) {
    if (!word.starts_with(figure.name)) continue;
    std::from_chars(word.data() + figure.name.size(), word.data() + word.size(), result.account.*figure.value);
  }
}

}  // namespace

std::string resultTag(const OrderResult& result) {
  std::string tag(result.outcome == RunOutcome::cancelled ? kCancelled : kFailed);
  if (result.outcome == RunOutcome::finished) tag = wordOf(result.grade);
  for (const Figure& figure : kFigures) {
    tag += ' ' + std::string(figure.name) + std::to_string(result.account.*figure.value);
  }
  for (const Cause& cause : kCauses) {
    if (result.cause == cause.code) tag += ' ' + std::string(cause.word);
  }
  return tag;
}

std::optional<OrderResult> resultFromTag(const std::string& tag) {
  std::istringstream words(tag);
  std::string word;
  OrderResult result;
  if (!(words >> word) || !readFirstWord(word, result)) return std::nullopt;
  while (words >> word) readWord(word, result);
  return result;
}

std::optional<OrderResult> resultOfStatus(const std::string& tag, const std::string& status) {
  const auto result = resultFromTag(tag);
  if (!result) return std::nullopt;
  return status == (result->outcome == RunOutcome::finished ? kStatusFinished : kStatusFailed) ? result : std::nullopt;
}

}  // namespace calvero
