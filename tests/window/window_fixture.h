#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QStandardItemModel>
#include <QTest>
#include <string>
#include <vector>

#include "tests/fakes/small_fakes.h"
#include "window/item_view.h"
#include "window/main_window.h"
#include "window/method_page.h"
#include "window/pop_up_widget.h"
#include "window/tile_grid.h"
#include "window/volume_page.h"
#include "window/widget_controls.h"

namespace calvero::testing {

constexpr int kWaitMilliseconds = 10'000;

inline MountedVolume volume(const std::string& name) {
  MountedVolume volume;
  volume.name = name;
  volume.mountPath = "/media/" + name;
  volume.formatDescription = "ext4";
  volume.totalBytes = 2000;
  volume.availableBytes = 1000;
  return volume;
}

/// The window with its controls, as a program makes them.
class WindowTest : public ::testing::Test {
 protected:
  WindowTest() {
    window.setSizeFormatter([](std::uint64_t bytes) { return std::to_string(bytes) + " B"; });
    window.setTexts(FakeLocalisation());
  }

  void show() {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window, kWaitMilliseconds));
  }

  void addVolumes(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
      controls.addTableRow(name);
      controls.addTile(volume(name));
    }
  }

  template <typename Kind = QWidget>
  Kind* find(const char* name) {
    return window.findChild<Kind*>(name);
  }

  void press(const char* button) { QTest::mouseClick(find(button), Qt::LeftButton); }
  void type(Qt::Key key) { QTest::keyClick(window.focusWidget() != nullptr ? window.focusWidget() : &window, key); }

  std::string focused() {
    const QWidget* widget = window.focusWidget();
    if (widget == nullptr) return "nothing";
    return (widget->objectName().isEmpty() ? widget->accessibleName() : widget->objectName()).toStdString();
  }

  TileGrid& grid() { return window.volumes().tiles(); }

  MainWindow window;
  PopUpWidget popUp;
  WidgetControls controls{window, popUp};
};

}  // namespace calvero::testing
