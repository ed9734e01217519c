#pragma once

#include "wipe/run_scale.h"

namespace calvero {

/// The whole terminal program, from its arguments to its exit code.
int runCommandLine(int argumentCount, char** arguments, const RunScale& scale = {});

}  // namespace calvero
