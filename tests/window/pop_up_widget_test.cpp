#include "window/pop_up_widget.h"

#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;

constexpr Colour kGreen{0.2, 0.6, 0.3, 1.0};

TEST(PopUpPlace, CountsFromTheLowerLeft) {
  EXPECT_EQ(upperLeftFor({1140.0, 90.0}, QSize(300, 90), QRect(0, 0, 1440, 900)), QPoint(1140, 720));
  EXPECT_EQ(upperLeftFor({0.0, 0.0}, QSize(300, 90), QRect(1920, 100, 800, 600)), QPoint(1920, 610));
}

TEST(PopUpColours, PutTheMoreReadableOneOfBlackAndWhiteOnTheGround) {
  const Colour black{0.0, 0.0, 0.0, 1.0};
  const Colour white{1.0, 1.0, 1.0, 1.0};
  EXPECT_EQ(readableOn(white), black);
  EXPECT_EQ(readableOn(black), white);
  EXPECT_EQ(readableOn({0.0, 0.0, 0.6, 1.0}), white);
  EXPECT_EQ(readableOn({1.0, 119.0 / 255.0, 52.0 / 255.0, 1.0}), black);
}

TEST(PopUpWidget, ShowsTheTextAsItIs) {
  PopUpWidget popUp;
  popUp.setText("100 %d <b>done</b>");
  const auto* label = popUp.findChild<QLabel*>("popUpText");
  EXPECT_EQ(label->text(), "100 %d <b>done</b>");
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST(PopUpWidget, GrowsForALongText) {
  PopUpWidget popUp;
  popUp.setText("short");
  EXPECT_EQ(popUp.size().width, 300.0);
  EXPECT_EQ(popUp.size().height, 90.0);
  popUp.setText(std::string(600, 'x'));
  EXPECT_EQ(popUp.size().width, 300.0);
  EXPECT_GT(popUp.size().height, 180.0);
}

TEST(PopUpWidget, StandsWhereItIsMoved) {
  PopUpWidget popUp;
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  EXPECT_EQ(popUp.screenSize().width, screen.width());
  EXPECT_EQ(popUp.screenSize().height, screen.height());
  popUp.moveTo({10.0, 20.0});
  EXPECT_EQ(popUp.geometry().bottomLeft(), QPoint(screen.left() + 10, screen.bottom() - 20));
}

TEST(PopUpWidget, FillsItsBoxWithTheColour) {
  PopUpWidget popUp;
  popUp.setFillColour(kGreen);
  const QColor colour = popUp.grab().toImage().pixelColor(150, 8);
  EXPECT_NEAR(colour.redF(), kGreen.red, 0.01);
  EXPECT_NEAR(colour.greenF(), kGreen.green, 0.01);
  EXPECT_NEAR(colour.blueF(), kGreen.blue, 0.01);
}

TEST(PopUpWidget, StaysAboveAllAndTakesNoKeyboardByItself) {
  PopUpWidget popUp;
  popUp.setStatusWindowLevel();
  popUp.setBorderless();
  popUp.setAlertAnimation();
  popUp.bringToFront();
  EXPECT_TRUE(popUp.isVisible());
  EXPECT_TRUE(popUp.windowFlags().testFlags(Qt::ToolTip | Qt::WindowStaysOnTopHint | Qt::FramelessWindowHint));
  EXPECT_TRUE(popUp.testAttribute(Qt::WA_ShowWithoutActivating));
  QCoreApplication::processEvents();
  EXPECT_NE(QGuiApplication::focusWindow(), popUp.windowHandle());
  popUp.orderOut();
  EXPECT_FALSE(popUp.isVisible());
}

TEST(PopUpWidget, TellsEveryTrackingAreaOfThePointer) {
  PopUpWidget popUp;
  std::vector<std::string> told;
  const auto first = popUp.addTrackingArea([&] { told.emplace_back("in 1"); }, [&] { told.emplace_back("out 1"); });
  const auto second = popUp.addTrackingArea([&] { told.emplace_back("in 2"); }, [&] { told.emplace_back("out 2"); });
  EXPECT_NE(first, 0U);
  EXPECT_NE(second, first);
  auto* box = popUp.findChild<QWidget*>("popUpBox");
  QEnterEvent enters(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
  QCoreApplication::sendEvent(box, &enters);
  QEvent leaves(QEvent::Leave);
  QCoreApplication::sendEvent(box, &leaves);
  EXPECT_THAT(told, ElementsAre("in 1", "in 2", "out 1", "out 2"));
}

TEST(PopUpWidget, HandsItsTextOnWhereNothingIsDisplayed) {
  PopUpWidget popUp;
  std::string logged;
  popUp.onUndisplayed = [&](const std::string& text) { logged = text; };
  popUp.setText("done");
  popUp.bringToFront();
  EXPECT_EQ(logged, "done");
  EXPECT_FALSE(popUp.isVisible());
}

}  // namespace
}  // namespace calvero::testing
