#include "window/display.h"

#include <QGuiApplication>
#include <cstdlib>
#include <string>

namespace calvero {
namespace {

constexpr const char* kNothingShown = "offscreen";

bool isSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

}  // namespace

void chooseDisplay() {
  constexpr const char* kChoice = "QT_QPA_PLATFORM";
  if (isSet(kChoice)) return;
  std::string displays = kNothingShown;
  if (isSet("DISPLAY")) displays = "xcb;" + displays;
  if (isSet("WAYLAND_DISPLAY")) displays = "wayland;" + displays;
  qputenv(kChoice, QByteArray::fromStdString(displays));
}

bool isWithoutDisplay() {
  const QString platform = QGuiApplication::platformName();
  return platform == kNothingShown || platform == "minimal";
}

}  // namespace calvero
