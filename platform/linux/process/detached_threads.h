#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "ports/threads.h"

namespace calvero {

/// Threads that may outlive this object and go on undisturbed.
class DetachedThreads : public Threads {
 public:
  /// Gets the text about a body that ended by an exception, on its thread. Must not throw.
  using FailureReport = std::function<void(const std::string&)>;

  /// Reports failures to the system log.
  DetachedThreads();
  explicit DetachedThreads(FailureReport onFailure);

  void detach(const std::string& name, std::function<void()> body) override;

  /// Waits until every thread started so far has ended and released what its body owned; false when that took longer
  /// than `timeout`. Any thread but one of these.
  bool waitForAll(std::chrono::milliseconds timeout);

 private:
  struct State;
  class Presence;

  const std::shared_ptr<State> state_;  // shared with the threads
};

/// How long an ending program waits for its threads.
constexpr std::chrono::seconds kTimeForThreadsToEnd{2};

/// Waits for `threads`, then has `conclude` do what is left to do. Where one of them still goes on, the process ends at
/// once with what `code` gives: a thread that hangs in the kernel would find everything destroyed under it.
void endThreads(DetachedThreads& threads, const std::function<void()>& conclude, const std::function<int()>& code,
                std::chrono::milliseconds timeout = kTimeForThreadsToEnd);

}  // namespace calvero
