#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/dbus/session_notifications.h"
#include "ports/information_file.h"
#include "ports/localisation.h"
#include "ports/pop_up_window.h"
#include "ports/suite_web.h"
#include "ports/system_notifications.h"
#include "ports/tag_store.h"
#include "ports/workspace.h"
#include "terminal/output.h"

namespace calvero {

/// A wipe that a person typed is neither redirected nor answered for by a pending remote order, so the terminal sees
/// no tags and leaves none.
class NoTags : public TagStore {
 public:
  std::optional<std::string> value(const std::string&) override { return std::nullopt; }
  void setValue(const std::string&, const std::string&) override {}
};

/// The session bus, for a command that listens: the others do not wait for it.
class NotificationsOnDemand : public SystemNotifications {
 public:
  NotificationsOnDemand(EventLoop& loop, SystemLog& log) : loop_(loop), log_(log) {}

  void observe(const std::string& name, const std::string& object, std::function<void()> action) override {
    if (!bus_) bus_.emplace(loop_, log_);
    bus_->observe(name, object, std::move(action));
  }

 private:
  EventLoop& loop_;
  SystemLog& log_;
  std::optional<SessionNotifications> bus_;
};

/// The terminal speaks English, the language of the keys.
class EnglishTexts : public Localisation {
 public:
  std::string localised(const std::string& key) const override { return key; }
};

/// The message as a line.
class PrintedPopUp : public PopUpWindow {
 public:
  explicit PrintedPopUp(const Output& output) : output_(output) {}

  void setText(const std::string& text) override { text_ = text; }
  void bringToFront() override { output_.line(text_); }
  void setFillColour(const Colour&) override {}
  void setStatusWindowLevel() override {}
  void setBorderless() override {}
  TrackingAreaId addTrackingArea(std::function<void()>, std::function<void()>) override { return kNoPointer; }
  void setAlertAnimation() override {}
  [[nodiscard]] ScreenSize screenSize() const override { return {}; }
  [[nodiscard]] ScreenSize size() const override { return {}; }
  void moveTo(const ScreenPoint&) override {}
  void orderOut() override {}

 private:
  static constexpr TrackingAreaId kNoPointer = 1;

  const Output& output_;
  std::string text_;
};

/// A terminal opens no pages and starts no applications: nothing that it offers asks for them.
class NoDesktop : public Workspace, public SuiteWeb, public InformationFile {
 public:
  void openAddress(const std::string&) override {}
  void launchApplication(const std::string&) override {}
  void bringToFront(const std::string&) override {}
  [[nodiscard]] std::string bundlePath() const override { return "/"; }
  [[nodiscard]] std::string applicationSupportFolder() const override { return "/"; }
  void openPage(std::int32_t) override {}
  [[nodiscard]] std::string portalLoginAddress() const override { return ""; }
  std::map<std::string, std::string> read(const std::string&) override { return {}; }
};

}  // namespace calvero
