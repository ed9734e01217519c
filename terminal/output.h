#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace calvero {

/// Text to one of the standard streams, unbuffered. A failure is only noted, for the end of the program: a terminal
/// that has vanished or a reader that has closed its pipe must never keep a run from cleaning up.
class Output {
 public:
  explicit Output(int descriptor) : descriptor_(descriptor) {}
  /// Swallows everything.
  static Output nowhere() { return Output(-1); }

  /// Waits while a terminal is stopped, and for a reader that takes nothing ten seconds at most. Any thread.
  void write(std::string_view text) const;
  void line(std::string_view text) const;
  /// Drops the text when the reader takes nothing at the moment (a stopped terminal, a full pipe): for progress, which
  /// must not hold up the event loop and the signals that it serves.
  void writeIfReady(std::string_view text) const;

  [[nodiscard]] bool isTerminal() const;
  /// The terminal's width now; 80 where there is none to ask.
  [[nodiscard]] std::size_t columns() const;

 private:
  int descriptor_;
};

/// Why standard output has not got all that was written to it; empty when it has. Any thread.
std::string whyOutputIsIncomplete();

}  // namespace calvero
