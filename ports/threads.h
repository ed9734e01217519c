#pragma once

#include <functional>
#include <string>

namespace calvero {

/// Starts threads that nobody joins.
class Threads {
 public:
  virtual ~Threads() = default;

  /// Runs `body` on a new thread named `name` (at most 15 bytes). `body` must own or share whatever it uses, since
  /// the thread may outlive its starter. Throws std::system_error when no thread can be made.
  virtual void detach(const std::string& name, std::function<void()> body) = 0;
};

}  // namespace calvero
