#include <gtest/gtest.h>

#include <QAccessible>
#include <QDialog>

#include "tests/window/wizard_fixture.h"
#include "window/tile_grid.h"
#include "window/volume_page.h"

namespace calvero {
namespace {

using testing::FileCall;

/// What a screen reader has to say of each control.
class SpokenControls : public testing::WizardFixture {
 protected:
  /// Every control of the window that can have the keyboard, and the progress bar, has a name and a description.
  void expectSpoken(QWidget& window) {
    int controls = 0;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      const bool isText = qobject_cast<QLabel*>(widget) != nullptr;  // which says all there is to say
      const bool isControl = widget->window() == &window && widget->focusPolicy() != Qt::NoFocus && !isText;
      if (!isControl && widget->objectName() != "piDataWipe") continue;
      QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
      ASSERT_NE(spoken, nullptr);
      const std::string which = (widget->metaObject()->className() + QString(" ") + widget->objectName()).toStdString();
      EXPECT_FALSE(spoken->text(QAccessible::Name).trimmed().isEmpty()) << which;
      EXPECT_FALSE(spoken->text(QAccessible::Description).trimmed().isEmpty()) << which;
      ++controls;
    }
    EXPECT_GT(controls, 0);
  }
  /// The same of the next alert, which is then closed.
  void expectNextAlertSpoken(const std::function<void()>& next = {}) {
    ports.loop.startTimer(std::chrono::milliseconds(5), TimerKind::oneShot, [this, next] {
      auto* alert = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (alert == nullptr) return expectNextAlertSpoken(next);
      expectSpoken(*alert);
      ++alerts;
      if (next) next();
      alert->reject();
    });
  }

  int alerts = 0;
};

TEST_F(SpokenControls, HaveANameAndADescriptionInEveryWindow) {
  mountVolume("DATA");
  use([this] {
    expectSpoken(ports.window);
    expectSpoken(completed());
  });
}

TEST_F(SpokenControls, HaveANameAndADescriptionInEveryAlert) {
  mountVolume("DATA");
  ports.commandForAdministrator = [](const std::string&) { return std::optional<std::string>("pkexec calvero-cli"); };
  use([this] {
    files.script.failAt(FileCall::checkDirectory, 1, ErrorCode::notPermitted);
    expectNextAlertSpoken();
    press("buttonNext");
    EXPECT_EQ(alerts, 1) << "the command";
    press("buttonNext");
    expectNextAlertSpoken();
    press("proceedBtn");
    EXPECT_EQ(alerts, 2) << "the question";
    press("buttonNext");
    answerNextAlert(kYes, [this] { expectNextAlertSpoken(); });
    press("proceedBtn");
    EXPECT_EQ(alerts, 3) << "the notice";
    ASSERT_TRUE(comesTrue([this] { return completed().isVisible(); }));
  });
}

TEST_F(SpokenControls, HaveTheirOwnWords) {
  mountVolume("DATA");
  use([this] {
    EXPECT_EQ(named<QWidget>("piDataWipe")->accessibleName(), "Progress");
    EXPECT_EQ(named<QWidget>("googlePlusButton")->accessibleName(), "Google+");
    EXPECT_EQ(named<QWidget>("completionPageOk")->accessibleDescription(), "Returns to the drives.");
  });
}

}  // namespace
}  // namespace calvero
