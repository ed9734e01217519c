#pragma once

namespace calvero {

/// Lets the process open as many files as its hard limit allows: a run keeps one open for each file that it has
/// written. Where that is refused the old limit stays. Call before threads are started.
void raiseOpenFileLimit();

}  // namespace calvero
