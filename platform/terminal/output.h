#pragma once

#include <cstddef>
#include <string_view>

namespace calvero {

/// Text to one of the standard streams, unbuffered. A failure is swallowed: a terminal that has vanished or a reader
/// that has closed its pipe must never keep a run from cleaning up.
class Output {
 public:
  explicit Output(int descriptor) : descriptor_(descriptor) {}
  /// Swallows everything.
  static Output nowhere() { return Output(-1); }

  /// Blocks for as long as the reader takes nothing. Any thread.
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

}  // namespace calvero
