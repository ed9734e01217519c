#pragma once

#include <string>

namespace calvero {

/// The desktop around the application. Event loop thread. None of the requests waits for what it starts, and none
/// reports a failure.
class Workspace {
 public:
  virtual ~Workspace() = default;

  /// Opens a web address in the user's browser.
  virtual void openAddress(const std::string& address) = 0;
  /// Starts the application at `path`.
  virtual void launchApplication(const std::string& path) = 0;
  /// Brings the first running application of that identifier in front of all others, if there is one.
  virtual void bringToFront(const std::string& identifier) = 0;

  /// Where this application is installed.
  [[nodiscard]] virtual std::string bundlePath() const = 0;
  /// The user's folder for what applications keep.
  [[nodiscard]] virtual std::string applicationSupportFolder() const = 0;
};

}  // namespace calvero
