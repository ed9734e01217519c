#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/exit_code.h"
#include "ports/error.h"
#include "wipe/wipe_run.h"

namespace calvero {

/// What a wipe came to, for the last words on the terminal and for other programs.
struct WipeReport {
  std::string volume;  ///< as it was typed, where no volume was found for it
  std::optional<std::string> mountPath;
  std::optional<std::int32_t> method;  ///< zero-based
  std::string methodWord;
  std::int32_t passes = 0;
  std::uint64_t freeBytes = 0;  ///< as listed before the run
  RunAccount account;
  std::uint64_t bytesWritten = 0;
  double seconds = 0;
  Error firstFault;
  Error cause;    ///< why a failed run was ended at once
  Error refusal;  ///< why the run could not make its filler directory
  Error remains;  ///< why the filler directory is still there
  RunOutcome outcome = RunOutcome::none;
  std::string message;  ///< the last line that a person is told
  ExitCode exitCode = ExitCode::refused;
};

/// The volume as a person reads it: name and mount path.
std::string volumeText(const WipeReport& report);

/// Takes the run's figures, outcome and exit code; a null run never started.
void addRun(WipeReport& report, const WipeRun* run);

/// One JSON object.
std::string reportJson(const WipeReport& report);

/// "Finished: ...", "Partial: ...", "Cancelled ...": the last line of a run that did not fail.
std::string closingLine(const WipeReport& report);

/// What went wrong and what it means for the deleted data; empty for a run without a flaw. `isMounted`: whether the
/// volume is still there.
std::string failureLine(const WipeReport& report, bool isMounted);

/// What is left on the volume, why, and what to do; empty where nothing is, or with the volume lost.
std::string remainsLine(const WipeReport& report);

/// Why the volume may not be wiped, and what to do about it.
std::string refusalLine(const WipeReport& report, const Error& error);

}  // namespace calvero
