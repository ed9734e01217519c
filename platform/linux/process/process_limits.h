#pragma once

namespace calvero {

/// Lets the process open as many files as its hard limit allows: a run keeps one open for each file that it has
/// written. Where that is refused the old limit stays. Call before threads are started.
void raiseOpenFileLimit();

/// Descriptors that are never used to hold space: the run still has files to write, and tables and logs to open.
constexpr int kSpareDescriptors = 32;

/// Whether `descriptor`, just opened, is one of the spare ones. Each new descriptor gets the lowest free number, so
/// that hardly any other is left by then. Any thread.
bool isSpareDescriptor(int descriptor);

}  // namespace calvero
