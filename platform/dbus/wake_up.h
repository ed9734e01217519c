#pragma once

namespace calvero {

/// Wakes a thread that waits for something else at the same time.
class WakeUp {
 public:
  /// Throws std::system_error when no more files can be opened.
  WakeUp();
  WakeUp(const WakeUp&) = delete;
  WakeUp& operator=(const WakeUp&) = delete;
  ~WakeUp();

  /// Ends the wait in progress, or the next one. Any thread; never blocks.
  void wake() const;

  /// Waits until it is woken, one of poll's `events` happens on `descriptor`, or `timeoutMs` have passed, if that is
  /// not negative.
  void waitFor(int descriptor, short events, int timeoutMs) const;

 private:
  const int descriptor_;
};

}  // namespace calvero
