#pragma once

#include "wipe/run_account.h"

namespace calvero {

/// How the programs end; documented in the help and the manual page.
enum class ExitCode {
  finished = 0,
  failed = 1,
  wrongUsage = 2,
  refused = 3,
  cancelled = 4,
};

/// A run without an outcome never started: it was declined.
inline ExitCode exitCodeOf(RunOutcome outcome, const RunAccount& account) {
  if (outcome == RunOutcome::none) return ExitCode::cancelled;
  if (outcome == RunOutcome::failed || account.directoryStays) return ExitCode::failed;
  if (outcome == RunOutcome::cancelled) return ExitCode::cancelled;
  return gradeOf(account) == RunGrade::partial ? ExitCode::failed : ExitCode::finished;
}

}  // namespace calvero
