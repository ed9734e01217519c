#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "ports/information_file.h"
#include "ports/localisation.h"
#include "ports/pop_up_window.h"
#include "ports/random_source.h"
#include "ports/suite_web.h"
#include "ports/system_log.h"
#include "ports/system_notifications.h"
#include "ports/user_defaults.h"
#include "ports/workspace.h"
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

/// A pop-up of 300 by 90 on a screen of 1440 by 900. Its preparation is noted as "popUpWindow", its showing, with
/// colour and text, as "popUp". Event loop thread.
class FakePopUp : public PopUpWindow {
 public:
  explicit FakePopUp(Journal& journal) : journal_(journal) {}

  /// The pointer comes to rest on the box, or leaves it: every tracking area is told.
  void pointerEnters() {
    for (const auto& [entered, exited] : areas_) entered();
  }
  void pointerLeaves() {
    for (const auto& [entered, exited] : areas_) exited();
  }
  [[nodiscard]] bool shown() const { return shown_; }
  [[nodiscard]] std::size_t trackingAreas() const { return areas_.size(); }

  void setText(const std::string& text) override {
    text_ = text;
    journal_.add("popUpWindow setText");
  }
  void setFillColour(const Colour& colour) override {
    colour_ = colour;
    journal_.add("popUpWindow setFillColour");
  }
  void setStatusWindowLevel() override { journal_.add("popUpWindow setStatusWindowLevel"); }
  void setBorderless() override { journal_.add("popUpWindow setBorderless"); }
  TrackingAreaId addTrackingArea(std::function<void()> entered, std::function<void()> exited) override {
    journal_.add("popUpWindow addTrackingArea");
    areas_.emplace_back(std::move(entered), std::move(exited));
    return areas_.size();
  }
  void setAlertAnimation() override { journal_.add("popUpWindow setAlertAnimation"); }
  [[nodiscard]] ScreenSize screenSize() const override { return {1440, 900}; }
  [[nodiscard]] ScreenSize size() const override { return {300, 90}; }
  void moveTo(const ScreenPoint& origin) override {
    std::ostringstream entry;
    entry << "popUpWindow moveTo " << origin.x << ' ' << origin.y;
    journal_.add(entry.str());
  }
  void bringToFront() override {
    std::ostringstream entry;
    entry << "popUp " << colour_.red << ' ' << colour_.green << ' ' << colour_.blue << ' ' << colour_.alpha << ' '
          << quoted(text_);
    journal_.add(entry.str());
    shown_ = true;
  }
  void orderOut() override {
    journal_.add("popUpWindow orderOut");
    shown_ = false;
  }

 private:
  Journal& journal_;
  std::vector<std::pair<std::function<void()>, std::function<void()>>> areas_;
  std::string text_;
  Colour colour_;
  bool shown_ = false;
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

/// The desktop around the application, its settings and the suite's pages.
class FakeDesktop : public Workspace, public SuiteWeb, public UserDefaults, public InformationFile {
 public:
  explicit FakeDesktop(Journal& journal) : journal_(journal) {}

  void installAt(std::string bundlePath) { bundlePath_ = std::move(bundlePath); }
  /// What the property list at that path holds.
  void putInformation(const std::string& path, std::map<std::string, std::string> entries) {
    information_[path] = std::move(entries);
  }

  void openAddress(const std::string& address) override { journal_.add("openAddress " + address); }
  void launchApplication(const std::string& path) override { journal_.add("launchApplication " + path); }
  void bringToFront(const std::string& identifier) override { journal_.add("activate " + identifier); }
  [[nodiscard]] std::string bundlePath() const override { return bundlePath_; }
  [[nodiscard]] std::string applicationSupportFolder() const override { return "/home/user/.local/share"; }

  void openPage(std::int32_t index) override { journal_.add("openPage " + std::to_string(index)); }
  [[nodiscard]] std::string portalLoginAddress() const override { return "https://portal.ondrel.example/login?"; }

  void setTexts(const std::string& key, const std::vector<std::string>& values) override {
    std::string entry = "setTexts " + key;
    for (const std::string& value : values) entry += ' ' + quoted(value);
    journal_.add(entry);
  }
  void synchronise() override { journal_.add("synchronise"); }

  std::map<std::string, std::string> read(const std::string& path) override {
    const auto found = information_.find(path);
    return found == information_.end() ? std::map<std::string, std::string>{} : found->second;
  }

 private:
  Journal& journal_;
  std::string bundlePath_ = "/opt/suite/a/b/c/d/e/calvero";
  std::map<std::string, std::map<std::string, std::string>> information_;
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
