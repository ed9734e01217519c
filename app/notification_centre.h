#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace calvero {

// Notifications inside the application.
constexpr const char* kSelectionChanged = "SelectionChanged";  ///< the tiles' selection
constexpr const char* kTableSelectionDidChange = "NSTableViewSelectionDidChangeNotification";

/// Notifications inside the process. An observer that is added twice is called twice. Event loop thread.
class NotificationCentre {
 public:
  void addObserver(std::string name, std::function<void()> action) {
    observers_.emplace_back(std::move(name), std::move(action));
  }
  void post(const std::string& name) {
    const auto observers = observers_;  // an observer may add another one
    for (const auto& [observed, action] : observers) {
      if (observed == name) action();
    }
  }
  [[nodiscard]] std::size_t observerCount() const { return observers_.size(); }

 private:
  std::vector<std::pair<std::string, std::function<void()>>> observers_;
};

}  // namespace calvero
