#pragma once

namespace calvero {

/// How the program ends; documented in the help and the manual page.
enum class ExitCode {
  finished = 0,
  failed = 1,
  wrongUsage = 2,
  refused = 3,
  cancelled = 4,
};

}  // namespace calvero
