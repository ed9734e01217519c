#include "window/method_page.h"

#include <QAbstractButton>
#include <QLabel>

#include "tests/gallery/text_fit.h"
#include "tests/window/window_fixture.h"
#include "window/label_button.h"
#include "window/selection_button.h"

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;

constexpr std::array kButtons{"butFastZeroWipe", "butRandomWipe",      "butDOD5220",       "butNAVSO",     "butNATO",
                              "butVSITR",        "butFAST_ZERO_WRITE", "butPETER_GUTTMAN", "butNINTH_ALGO"};

class MethodPageTest : public WindowTest {
 protected:
  MethodPageTest() {
    window.setPasses({1, 1, 3, 1, 7, 7, 0, 35, 38});
    window.onMethod = [this](int method) {
      told.push_back(method);
      if (follows) choose(method);
    };
  }
  ~MethodPageTest() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

  void choose(int method) {
    for (int i = 0; i < 9; ++i) {
      const auto button = static_cast<Control>(static_cast<int>(Control::butFastZeroWipe) + i);
      i == method ? controls.turnOn(button) : controls.turnOff(button);
    }
  }

  void showPage() {
    choose(0);
    controls.selectPage(Page::method);
    show();
  }

  bool follows = true;
  std::vector<int> told;
};

TEST_F(MethodPageTest, TellsTheSlotOfItsButtonAndOfItsLabel) {
  showPage();
  for (std::size_t i = 0; i < kButtons.size(); ++i) {
    press(kButtons[i]);
    press(QStringLiteral("algorithm_%1").arg(i + 1).toLatin1().constData());
  }
  EXPECT_THAT(told, ElementsAre(0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7, 7, 8, 8));
}

TEST_F(MethodPageTest, ChangesNothingByItself) {
  follows = false;
  showPage();
  press("butNATO");
  press("butFastZeroWipe");
  EXPECT_FALSE(find<QAbstractButton>("butNATO")->isChecked());
  EXPECT_TRUE(find<QAbstractButton>("butFastZeroWipe")->isChecked());
}

TEST_F(MethodPageTest, MovesThroughThePageWithTheArrowKeys) {
  showPage();
  for (int i = 0; i < 9; ++i) type(Qt::Key_Down);
  EXPECT_THAT(told, ElementsAre(1, 3, 6, 2, 4, 5, 7, 8));
  told.clear();
  type(Qt::Key_Up);
  type(Qt::Key_Left);
  type(Qt::Key_Right);
  EXPECT_THAT(told, ElementsAre(7, 5, 7));
  EXPECT_EQ(focused(), "butPETER_GUTTMAN");
}

TEST_F(MethodPageTest, MirrorsTheArrowKeysFromRightToLeft) {
  QApplication::setLayoutDirection(Qt::RightToLeft);
  showPage();
  type(Qt::Key_Left);
  type(Qt::Key_Right);
  EXPECT_THAT(told, ElementsAre(1, 0));
}

TEST_F(MethodPageTest, IsEnteredWithTheTabKeyAtTheMethodThatIsOn) {
  showPage();
  choose(4);
  find("proceedBtn")->setFocus();
  type(Qt::Key_Backtab);
  EXPECT_EQ(focused(), "butNATO");
  type(Qt::Key_Tab);
  EXPECT_EQ(focused(), "proceedBtn");
}

TEST_F(MethodPageTest, FramesTheLabelWhoseButtonHasTheKeyboard) {
  controls.setText(Control::algorithm_5, "Fifth");
  showPage();
  const QImage plain = find("algorithm_5")->grab().toImage();
  find("butNATO")->setFocus();
  EXPECT_NE(find("algorithm_5")->grab().toImage(), plain);
  find("proceedBtn")->setFocus();
  EXPECT_EQ(find("algorithm_5")->grab().toImage(), plain);
}

TEST_F(MethodPageTest, ShowsAndSpeaksThePasses) {
  controls.setText(Control::algorithm_9, "Ninth & last ");
  EXPECT_EQ(find<QLabel>("passes_9")->text(), "Passes: 38");
  EXPECT_EQ(find("butNINTH_ALGO")->accessibleName(), "Ninth & last, Passes: 38");
}

TEST_F(MethodPageTest, SaysThatAMethodWithoutPassesWritesNothing) {
  controls.setText(Control::algorithm_7, "Seventh");
  const QString nothing = "Writes nothing: the free space is laid out and given back as it was.";
  EXPECT_TRUE(find("butFAST_ZERO_WRITE")->accessibleDescription().endsWith(nothing));
  EXPECT_TRUE(find("algorithm_7")->toolTip().contains(nothing));
  EXPECT_FALSE(find("butFastZeroWipe")->accessibleDescription().contains(nothing));
  EXPECT_EQ(find("algorithm_1")->toolTip(), "");
  showPage();
  EXPECT_EQ(find<QLabel>("passes_7")->text(), "Writes nothing");
  EXPECT_TRUE(find("passes_7")->isVisible()) << "not in a tool tip alone";
  EXPECT_EQ(find("butFAST_ZERO_WRITE")->accessibleName(), "Seventh, Writes nothing");
}

TEST_F(MethodPageTest, DescribesEachMethodByTheCaptionAboveItAndItsPasses) {
  controls.setText(Control::low, "LOW");
  controls.setText(Control::medium, "MEDIUM");
  controls.setText(Control::high, "HIGH");
  showPage();
  const std::array captions{find<QLabel>("low"), find<QLabel>("medium"), find<QLabel>("high")};
  for (std::size_t i = 0; i < kButtons.size(); ++i) {
    const QWidget* button = find(kButtons[i]);
    const QLabel* above = nullptr;
    for (const QLabel* caption : captions) {
      if (caption->y() <= button->y()) above = caption;
    }
    ASSERT_NE(above, nullptr);
    const QString passes = find<QLabel>(QStringLiteral("passes_%1").arg(i + 1).toLatin1().constData())->text();
    EXPECT_TRUE(button->accessibleDescription().startsWith(above->text() + ", " + passes))
        << kButtons[i] << ": " << button->accessibleDescription().toStdString();
  }
}

TEST_F(MethodPageTest, ShowsAFurtherMethodBelowTheLastOfItsTier) {
  window.setPasses({1, 1, 3, 1, 7, 7, 0, 35, 38, 2});
  controls.setMethodText(9, "Tenth & last ");
  controls.setText(Control::medium, "MEDIUM");
  showPage();
  EXPECT_EQ(find<LabelButton>("algorithm_10")->label(), "Tenth & last");
  EXPECT_EQ(find<QLabel>("passes_10")->text(), "Passes: 2");
  EXPECT_EQ(find("butMethod_10")->accessibleName(), "Tenth & last, Passes: 2");
  EXPECT_EQ(find("butMethod_10")->accessibleDescription(), "MEDIUM, Passes: 2");
  EXPECT_LT(find("butVSITR")->y(), find("butMethod_10")->y());
  EXPECT_LT(find("butMethod_10")->y(), find("lineAbove_high")->y());
  EXPECT_EQ(find("butVSITR")->x(), find("butMethod_10")->x());
  EXPECT_EQ(find("algorithm_6")->x(), find("algorithm_10")->x());
  EXPECT_EQ(find("passes_6")->geometry().right(), find("passes_10")->geometry().right());
  EXPECT_THAT(misfits(window), ElementsAre());
}

TEST_F(MethodPageTest, PlacesAFurtherMethodOfEachTierAtItsEnd) {
  window.setPasses({1, 1, 3, 1, 7, 7, 0, 35, 38, 8, 1});
  showPage();
  EXPECT_LT(find("butNINTH_ALGO")->y(), find("butMethod_10")->y());
  EXPECT_LT(find("butFAST_ZERO_WRITE")->y(), find("butMethod_11")->y());
  EXPECT_LT(find("butMethod_11")->y(), find("lineAbove_medium")->y());
  EXPECT_EQ(find<SelectionButton>("butMethod_10")->focusPolicy(), Qt::ClickFocus) << "as of each that is not on";
}

TEST_F(MethodPageTest, ChoosesAFurtherMethodByItsButtonItsLabelAndTheKeys) {
  window.setPasses({1, 1, 3, 1, 7, 7, 0, 35, 38, 2});
  showPage();
  press("butMethod_10");
  press("algorithm_10");
  EXPECT_THAT(told, ElementsAre(9, 9));
  controls.turnMethod(9, true);
  EXPECT_TRUE(find<SelectionButton>("butMethod_10")->isChecked());
  find("proceedBtn")->setFocus();
  type(Qt::Key_Backtab);
  EXPECT_EQ(focused(), "butMethod_10");
  told.clear();
  type(Qt::Key_Up);
  type(Qt::Key_Down);
  type(Qt::Key_Down);
  EXPECT_THAT(told, ElementsAre(5, 9, 7));
  controls.turnMethod(9, false);
  EXPECT_FALSE(find<SelectionButton>("butMethod_10")->isChecked());
}

TEST_F(MethodPageTest, CutsNoLabelHoweverLongALanguageMakesIt) {
  controls.setText(Control::algorithm_5,
                   "The long name of a method in a language of long names, given here in full, "
                   "so that it cannot stand in one line of the smallest window");
  window.resize(window.minimumSizeHint());
  showPage();
  const auto* label = find<LabelButton>("algorithm_5");
  EXPECT_GT(label->height(), 2 * label->fontMetrics().height());
  EXPECT_GE(label->height(), label->heightForWidth(label->width()));
}

}  // namespace
}  // namespace calvero::testing
