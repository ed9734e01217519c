#pragma once

#include <optional>
#include <string>

#include "ports/error.h"
#include "wipe/run_account.h"

namespace calvero {

/// What became of an ordered run, beyond the two values that its status can take.
struct OrderResult {
  RunOutcome outcome = RunOutcome::failed;
  RunGrade grade = RunGrade::complete;  ///< of a finished run
  RunAccount account;                   ///< without the passes
  ErrorCode cause = ErrorCode::none;    ///< why a failed run was ended at once; the codes of a failed flush
};

/// As the tag holds it: a word and figures, "partial free=111000000 covered=9200000 not-held=0 faults=0".
std::string resultTag(const OrderResult& result);

/// Nothing for a text that is no such tag. Figures and words that are not known are passed over.
std::optional<OrderResult> resultFromTag(const std::string& tag);

/// The result in the tag where it belongs to that status: a program that writes no result may have left an earlier one.
std::optional<OrderResult> resultOfStatus(const std::string& tag, const std::string& status);

}  // namespace calvero
