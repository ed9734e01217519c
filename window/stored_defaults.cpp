#include "window/stored_defaults.h"

#include <QStringList>

namespace calvero {

StoredDefaults::StoredDefaults() : settings_(QSettings::IniFormat, QSettings::UserScope, "Ondrel Software", "Calvero") {
  settings_.setFallbacksEnabled(false);
}

void StoredDefaults::setTexts(const std::string& key, const std::vector<std::string>& values) {
  QStringList list;
  for (const std::string& value : values) list.append(QString::fromStdString(value));
  settings_.setValue(QString::fromStdString(key), list);
}

void StoredDefaults::synchronise() {
  settings_.sync();
}

}  // namespace calvero
