#pragma once

#include <deque>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

#include "ports/alerts.h"
#include "tests/fakes/journal.h"

namespace calvero::testing {

/// Answers alerts by script, with the default button once the script is used up. Any thread.
class FakeAlerts : public Alerts {
 public:
  explicit FakeAlerts(Journal& journal) : journal_(journal) {}

  void willAnswer(AlertAnswer answer) {
    const std::scoped_lock lock(mutex_);
    answers_.push_back(answer);
  }
  /// Runs while an alert is on the screen, before it is answered.
  void whileShown(std::function<void()> hook) { hook_ = std::move(hook); }

  [[nodiscard]] std::vector<Alert> shown() const {
    const std::scoped_lock lock(mutex_);
    return shown_;
  }

  void forgetShown() {
    const std::scoped_lock lock(mutex_);
    shown_.clear();
  }

  AlertAnswer runModal(const Alert& alert) override {
    journal_.add("alert " + quoted(alert.title) + ' ' + quoted(alert.message) + ' ' + quoted(alert.defaultButton) +
                 ' ' + quoted(alert.alternateButton));
    if (hook_) hook_();
    const std::scoped_lock lock(mutex_);
    shown_.push_back(alert);
    if (answers_.empty()) return AlertAnswer::defaultButton;
    const AlertAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
  }

 private:
  Journal& journal_;
  std::function<void()> hook_;
  mutable std::mutex mutex_;
  std::deque<AlertAnswer> answers_;
  std::vector<Alert> shown_;
};

}  // namespace calvero::testing
