#include <CLI/CLI.hpp>
#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QScreen>
#include <QStyleFactory>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/gallery/scenes.h"
#include "tests/gallery/text_fit.h"

namespace calvero::testing {
namespace {

struct Choices {
  std::string folder;
  std::string language = "en";
  std::vector<std::string> scenes;
  double scale = 1.0;
  bool isDark = false;
  bool isFramed = false;
  bool isSmall = false;
};

/// As Fusion looks on a desktop with dark colours.
QPalette darkPalette() {
  const QColor ground(53, 53, 53);
  const QColor grey(127, 127, 127);
  QPalette palette(ground, ground);
  palette.setColor(QPalette::Base, QColor(35, 35, 35));
  palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
  palette.setColor(QPalette::ToolTipBase, ground);
  palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(88, 166, 255));
  palette.setColor(QPalette::BrightText, Qt::red);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Disabled, role, grey);
  }
  palette.setColor(QPalette::PlaceholderText, grey);
  return palette;
}

/// The part of the screen that the windows take, once the window manager has framed them.
QPixmap fromScreen(const ShownScreen& screen) {
  constexpr std::chrono::milliseconds kTimeToBePainted{300};
  const auto deadline = std::chrono::steady_clock::now() + kTimeToBePainted;
  while (std::chrono::steady_clock::now() < deadline) {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
  }
  QRect area = screen.shown->frameGeometry();
  if (screen.window->isVisible()) area |= screen.window->frameGeometry();
  return screen.shown->screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height());
}

class Album {
 public:
  explicit Album(const Choices& choices) : choices_(choices) {}

  /// Keeps a picture of what was not seen before, if it is wanted.
  void keep(const ShownScreen& screen) {
    const auto& wanted = choices_.scenes;
    const bool isWanted = wanted.empty() || std::find(wanted.begin(), wanted.end(), screen.name) != wanted.end();
    if (!kept_.insert(screen.name).second || !isWanted) return;
    const QPixmap picture = choices_.isFramed ? fromScreen(screen) : screen.shown->grab();
    const std::string path = choices_.folder + "/" + screen.name + ".png";
    constexpr int kSmallestFile = 0;
    if (!picture.save(QString::fromStdString(path), "PNG", kSmallestFile)) {
      throw std::runtime_error("cannot write " + path);
    }
  }

 private:
  const Choices& choices_;
  std::set<std::string> kept_;
};

void makeGallery(const Choices& choices) {
  QDir().mkpath(QString::fromStdString(choices.folder));
  Album album(choices);
  int faults = 0;
  playAllScenes(choices.language, [&](const ShownScreen& screen) {
    if (choices.isSmall) screen.window->resize(1, 1);
    album.keep(screen);
    for (const QString& misfit : misfits(*screen.shown)) {
      std::printf("%s %s: %s\n", choices.language.c_str(), screen.name.c_str(), misfit.toUtf8().constData());
      ++faults;
    }
  });
  std::printf("%s: %d faults\n", choices.language.c_str(), faults);
}

int run(int argumentCount, char** arguments) {
  Choices choices;
  CLI::App options("Shows everything that the window can show, and keeps a picture of each screen.", "calvero-gallery");
  options.add_option("folder", choices.folder, "Where the pictures go")->required();
  options.add_option("--language", choices.language, "Code of the language, such as de");
  options.add_option("--only", choices.scenes, "Names of the pictures to keep");
  options.add_option("--scale", choices.scale, "Factor of the display, such as 2");
  options.add_flag("--dark", choices.isDark, "Light text on dark ground");
  options.add_flag("--small", choices.isSmall, "The window at its smallest size");
  options.add_flag("--framed", choices.isFramed, "With the window manager's frames, from the screen");
  CLI11_PARSE(options, argumentCount, arguments);

  qputenv("QT_SCALE_FACTOR", QByteArray::number(choices.scale));
  QApplication application(argumentCount, arguments);
  QApplication::setApplicationName("Calvero");
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  if (choices.isDark) QApplication::setPalette(darkPalette());
  makeGallery(choices);
  return 0;
}

}  // namespace
}  // namespace calvero::testing

int main(int argumentCount, char** arguments) {
  try {
    return calvero::testing::run(argumentCount, arguments);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "calvero-gallery: %s\n", error.what());
    return 1;
  }
}
