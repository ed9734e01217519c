#pragma once

#include <string>

namespace calvero {

/// Where diagnostics go. Any thread; failures are swallowed.
class SystemLog {
 public:
  virtual ~SystemLog() = default;

  /// A diagnostic line for the system log.
  virtual void line(const std::string& text) = 0;

  /// Something that whoever ordered the run should know although the run goes on. Logged, and shown by a face that
  /// has a place for it.
  virtual void notice(const std::string& text) = 0;
};

}  // namespace calvero
