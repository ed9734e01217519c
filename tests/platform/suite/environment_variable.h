#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace calvero::testing {

/// An environment variable with another value, or none, for the length of a test.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* name, const std::optional<std::string>& value) : name_(name) {
    if (const char* earlier = std::getenv(name)) earlier_ = earlier;
    set(value);
  }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
  ~EnvironmentVariable() { set(earlier_); }

 private:
  void set(const std::optional<std::string>& value) const {
    constexpr int kReplace = 1;
    if (value) {
      ::setenv(name_, value->c_str(), kReplace);
    } else {
      ::unsetenv(name_);
    }
  }

  const char* name_;
  std::optional<std::string> earlier_;
};

}  // namespace calvero::testing
