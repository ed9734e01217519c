#pragma once

#include <QLocale>
#include <QTranslator>
#include <string>

#include "ports/localisation.h"

namespace calvero {

/// The table of one language, read from `folder`/calvero_<locale>.qm.
class Translations : public Localisation {
 public:
  /// `language` is a code such as "de", "pt-BR" or "zh_Hans". Without a table for the very place, one for another place
  /// where the language is written alike serves; a language without any reads English.
  explicit Translations(const std::string& language, const std::string& folder = ":/i18n");

  [[nodiscard]] std::string localised(const std::string& key) const override;

  /// Makes the language that is read the application's, with its direction of writing: English where the one asked for
  /// has no table. Event loop thread.
  void install() const;

 private:
  QTranslator translator_;  // only read once it is loaded
  QLocale locale_;
};

}  // namespace calvero
