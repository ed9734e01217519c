#pragma once

#include <string>

#include "ports/error.h"
#include "wipe/run_account.h"

namespace calvero {

// How a run's end is worded, the same wherever it is told. A volume is given as a person reads it.

constexpr const char* kNothingOverwritten = "Nothing was overwritten: this method writes no data.";
constexpr const char* kMayRemain = "; deleted data may remain readable there";

/// "9.20 MB of 111.00 MB": what was overwritten of what was free.
std::string overwrittenText(const RunAccount& account);

/// What is missing in a run that is partial without a failed step.
std::string missingText(const RunAccount& account, const std::string& volume);

/// Why a run was ended at once; empty for a reason that is told otherwise.
std::string causeText(ErrorCode cause, const std::string& volume);

}  // namespace calvero
