#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "ports/localisation.h"
#include "ports/pop_up_window.h"
#include "ports/random_source.h"
#include "ports/system_log.h"
#include "ports/system_notifications.h"
#include "tests/fakes/journal.h"

namespace calvero::testing {

class FakeLog : public SystemLog {
 public:
  explicit FakeLog(Journal& journal) : journal_(journal) {}

  void line(const std::string& text) override { journal_.add("log " + text); }
  void notice(const std::string& text) override { journal_.add("notice " + text); }

 private:
  Journal& journal_;
};

/// Counting words: the first is 0x01020304, each next one is greater by one.
class FakeRandom : public RandomSource {
 public:
  static constexpr std::uint32_t kFirst = 0x01020304;

  std::uint32_t next() override { return kFirst + drawn_++; }
  [[nodiscard]] std::uint32_t drawn() const { return drawn_; }

 private:
  std::atomic<std::uint32_t> drawn_{0};
};

class FakePopUp : public PopUpWindow {
 public:
  explicit FakePopUp(Journal& journal) : journal_(journal) {}

  void show(const Colour& colour, const std::string& text) override {
    std::ostringstream entry;
    entry << "popUp " << colour.red << ' ' << colour.green << ' ' << colour.blue << ' ' << colour.alpha << ' '
          << quoted(text);
    journal_.add(entry.str());
  }

 private:
  Journal& journal_;
};

class FakeSystemNotifications : public SystemNotifications {
 public:
  explicit FakeSystemNotifications(Journal& journal) : journal_(journal) {}

  void observe(const std::string& name, const std::string& object, std::function<void()> action) override {
    journal_.add("observe " + quoted(name) + ' ' + quoted(object));
    observers_.push_back({name, object, std::move(action)});
  }

  /// Another program sends a notification.
  void send(const std::string& name, const std::string& object) {
    const auto observers = observers_;
    for (const Observer& observer : observers) {
      if (observer.name == name && observer.object == object) observer.action();
    }
  }
  [[nodiscard]] std::size_t observerCount() const { return observers_.size(); }

 private:
  struct Observer {
    std::string name;
    std::string object;
    std::function<void()> action;
  };

  Journal& journal_;
  std::vector<Observer> observers_;
};

/// Gives the key back, or, to prove that a text went through the table, the key in brackets.
class FakeLocalisation : public Localisation {
 public:
  void markTexts() { marked_ = true; }

  [[nodiscard]] std::string localised(const std::string& key) const override { return marked_ ? '<' + key + '>' : key; }

 private:
  std::atomic<bool> marked_{false};
};

}  // namespace calvero::testing
