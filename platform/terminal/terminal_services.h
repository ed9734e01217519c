#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/terminal/output.h"
#include "ports/localisation.h"
#include "ports/pop_up_window.h"
#include "ports/system_notifications.h"
#include "ports/tag_store.h"

namespace calvero {

/// A wipe that a person typed is neither redirected nor answered for by a pending remote order, so the terminal sees
/// no tags and leaves none.
class NoTags : public TagStore {
 public:
  std::optional<std::string> value(const std::string&) override { return std::nullopt; }
  void setValue(const std::string&, const std::string&) override {}
};

/// Nothing is ever received.
class NoSystemNotifications : public SystemNotifications {
 public:
  void observe(const std::string&, const std::string&, std::function<void()>) override {}
};

/// The terminal speaks English, the language of the keys.
class EnglishTexts : public Localisation {
 public:
  std::string localised(const std::string& key) const override { return key; }
};

class PrintedPopUp : public PopUpWindow {
 public:
  explicit PrintedPopUp(const Output& output) : output_(output) {}
  void show(const Colour&, const std::string& text) override { output_.line(text); }

 private:
  const Output& output_;
};

}  // namespace calvero
