#pragma once

#include <QDBusConnection>
#include <functional>
#include <utility>

#include "ports/workspace.h"

namespace calvero {

/// The desktop's browser, its launcher and its session bus. What is asked for is under way when a call returns, so that
/// the application may end at once.
class DesktopWorkspace : public Workspace {
 public:
  using Bus = std::function<QDBusConnection()>;

  explicit DesktopWorkspace(Bus sessionBus = &QDBusConnection::sessionBus) : sessionBus_(std::move(sessionBus)) {}

  /// Anything but an http or https address is ignored.
  void openAddress(const std::string& address) override;
  void launchApplication(const std::string& path) override;
  void bringToFront(const std::string& identifier) override;

  [[nodiscard]] std::string bundlePath() const override;
  [[nodiscard]] std::string applicationSupportFolder() const override;

 private:
  Bus sessionBus_;
};

}  // namespace calvero
