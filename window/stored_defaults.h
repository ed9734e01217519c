#pragma once

#include <QSettings>

#include "ports/user_defaults.h"

namespace calvero {

/// The user's settings file, "Ondrel Software/Calvero.ini" in the folder for settings.
class StoredDefaults : public UserDefaults {
 public:
  StoredDefaults();

  void setTexts(const std::string& key, const std::vector<std::string>& values) override;
  void synchronise() override;

 private:
  QSettings settings_;
};

}  // namespace calvero
