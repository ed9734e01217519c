#pragma once

#include <optional>
#include <string>

#include "ports/error.h"
#include "wipe/wipe_run.h"

namespace calvero {

class Localisation;

/// Why the volume may not be erased and what to do about it; nothing when it may.
std::optional<std::string> refusalText(const Localisation& texts, const Error& error);

/// What leads to the command with which the administrator erases a volume that this user may not.
std::string administratorText(const Localisation& texts);

/// Why there is no such command: root must not start that program.
std::string untrustedProgramText(const Localisation& texts, const std::string& program);

/// How a run has ended. A flawed one left something undone that its account does not tell.
std::string outcomeText(const Localisation& texts, const WipeRun& run, bool isFlawed);

/// How a run has ended whose one flaw is what it could not remove.
std::string remainsText(const Localisation& texts, const Error& remains);

}  // namespace calvero
