#pragma once

#include <QDBusConnection>
#include <functional>
#include <utility>

#include "ports/workspace.h"

namespace calvero {

class SystemLog;

/// The desktop's browser, its launcher and its session bus. What is asked for is under way when a call returns, so that
/// the application may end at once.
class DesktopWorkspace : public Workspace {
 public:
  using Bus = std::function<QDBusConnection()>;

  /// `log` must outlive it.
  explicit DesktopWorkspace(SystemLog& log, Bus sessionBus = &QDBusConnection::sessionBus)
      : log_(log), sessionBus_(std::move(sessionBus)) {}

  /// Anything but an http or https address is ignored.
  void openAddress(const std::string& address) override;
  /// Starts the program at `path`; of a folder, the program "home-application" in it. Root starts nothing that another
  /// user can change. The log says why nothing has been started.
  void launchApplication(const std::string& path) override;
  void bringToFront(const std::string& identifier) override;

  /// The file of the running program, without links on the way to it.
  [[nodiscard]] std::string bundlePath() const override;
  [[nodiscard]] std::string applicationSupportFolder() const override;

 private:
  SystemLog& log_;
  Bus sessionBus_;
};

}  // namespace calvero
