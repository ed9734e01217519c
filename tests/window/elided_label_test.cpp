#include "window/elided_label.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

namespace calvero::testing {
namespace {

class ElidedLabelTest : public ::testing::Test {
 protected:
  ~ElidedLabelTest() override { QToolTip::hideText(); }

  void askForToolTip() {
    QHelpEvent asks(QEvent::ToolTip, QPoint(2, 2), label.mapToGlobal(QPoint(2, 2)));
    QCoreApplication::sendEvent(&label, &asks);
  }

  ElidedLabel label;
};

TEST_F(ElidedLabelTest, LeavesOutTheMiddleOfWhatDoesNotFit) {
  label.setText("The beginning of a name and its end");
  label.resize(label.sizeHint());
  EXPECT_EQ(label.shownText(), label.text());
  label.resize(label.width() / 2, label.height());
  EXPECT_TRUE(label.shownText().startsWith("The"));
  EXPECT_TRUE(label.shownText().endsWith("end"));
  EXPECT_LT(label.shownText().size(), label.text().size());
}

TEST_F(ElidedLabelTest, ShowsTheWholeNameAsToolTipOnlyWhenItIsCut) {
  label.setText("<i>A name</i> that does not fit into the label");
  label.resize(label.sizeHint());
  label.show();
  askForToolTip();
  EXPECT_EQ(QToolTip::text(), "");
  label.resize(60, label.height());
  askForToolTip();
  EXPECT_TRUE(QToolTip::text().contains("&lt;i&gt;A name"));
}

TEST_F(ElidedLabelTest, NeverAsksForMoreThanItsWidth) {
  label.setText(QString(500, 'x'));
  EXPECT_LT(label.minimumSizeHint().width(), 100);
}

}  // namespace
}  // namespace calvero::testing
