#include "window/completed_window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

namespace calvero::testing {
namespace {

class CompletedWindowTest : public ::testing::Test {
 protected:
  CompletedWindowTest() {
    window.onOk = [this] { ++pressed; };
    window.setOkTexts("OK", "Goes back.");
  }

  QWidget main;
  CompletedWindow window{&main};
  int pressed = 0;
};

TEST_F(CompletedWindowTest, TakesEnterEscapeAndItsCloseButtonForItsButton) {
  window.show();
  QTest::keyClick(&window, Qt::Key_Return);
  EXPECT_EQ(pressed, 1);
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(pressed, 2);
  window.close();
  EXPECT_EQ(pressed, 3);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(CompletedWindowTest, StandsAboveTheMainWindowWithoutBlockingIt) {
  EXPECT_EQ(window.parentWidget(), &main);
  EXPECT_TRUE(window.isWindow());
  EXPECT_FALSE(window.isModal());
}

TEST_F(CompletedWindowTest, ShowsTheWholeOutcomeHoweverLongTheDrivesName) {
  window.setOutcome("Short.", OutcomeKind::finished);
  window.show();
  const QString text = "The free space of " + QString(300, 'X') + " has been erased.";
  window.setOutcome(text, OutcomeKind::warning);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  const auto* label = window.findChild<QLabel*>("outcomeText");
  EXPECT_EQ(label->text(), text);
  EXPECT_GE(label->height(), label->heightForWidth(label->width()));
  EXPECT_LT(window.width(), 700);
}

TEST_F(CompletedWindowTest, TellsAWarningByItsPicture) {
  window.setOutcome("A", OutcomeKind::finished);
  const auto* picture = window.findChild<QLabel*>("outcomeIcon");
  const QImage finished = picture->pixmap().toImage();
  ASSERT_FALSE(finished.isNull());
  window.setOutcome("A", OutcomeKind::warning);
  EXPECT_NE(picture->pixmap().toImage(), finished);
}

}  // namespace
}  // namespace calvero::testing
