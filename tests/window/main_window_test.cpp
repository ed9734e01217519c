#include "window/main_window.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <cstdlib>
#include <utility>

#include "tests/window/window_fixture.h"

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;

class MainWindowTest : public WindowTest {
 protected:
  // As the wizard shows them.
  void showPage(Page page) {
    for (const Control button :
         {Control::buttonNext, Control::buttonBack, Control::buttonProceed, Control::buttonCancel}) {
      controls.show(button);
    }
    controls.selectPage(page);
    show();
  }
};

TEST_F(MainWindowTest, TellsWhichButtonWasPressed) {
  std::vector<std::string> told;
  const auto tell = [&](const std::string& what) { return [&told, what] { told.push_back(what); }; };
  window.onNext = tell("next");
  window.onReload = tell("reload");
  window.onHome = tell("home");
  window.onHelp = tell("help");
  window.onGetItNow = tell("get it now");
  window.onCloud = tell("cloud");
  window.onFacebook = tell("facebook");
  window.onTwitter = tell("twitter");
  window.onGooglePlus = tell("google");
  window.onBack = tell("back");
  window.onProceed = tell("proceed");
  window.onCancel = tell("cancel");
  window.onCompletionPageOk = tell("page ok");
  window.onCompletionOk = tell("window ok");
  showPage(Page::volume);
  for (const char* button : {"buttonNext", "reloadDrivers", "buttonHome", "helpButton", "getItNow", "buttonCloud",
                             "facebookButton", "twitterButton", "googlePlusButton"}) {
    press(button);
  }
  showPage(Page::method);
  press("buttonBack");
  press("proceedBtn");
  showPage(Page::progress);
  press("cancelBut");
  controls.bringToFront(Control::windowCompleted);
  press("completionPageOk");
  press("completedOk");
  EXPECT_THAT(told, ElementsAre("next", "reload", "home", "help", "get it now", "cloud", "facebook", "twitter",
                                "google", "back", "proceed", "cancel", "page ok", "window ok"));
}

TEST_F(MainWindowTest, IsAWindowToAScreenReader) {
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&window);
  EXPECT_EQ(accessible->role(), QAccessible::Window);
  EXPECT_EQ(accessible->text(QAccessible::Name), "Calvero");
}

TEST_F(MainWindowTest, OffersToListTheDrivesAgainWhereThereIsNone) {
  show();
  EXPECT_EQ(focused(), "reloadDrivers");
}

TEST_F(MainWindowTest, WritesThePercentageInTheDigitsOfTheOtherFigures) {
  QLocale::setDefault(QLocale("ar"));
  const MainWindow arabic;
  QLocale::setDefault(QLocale::system());
  auto* bar = arabic.findChild<QProgressBar*>("piDataWipe");
  bar->setRange(0, 100);
  bar->setValue(37);
  EXPECT_EQ(bar->text(), "37%");
}

TEST_F(MainWindowTest, DrawsOutlinesBetweenGroundAndTextOnLightAndOnDarkGround) {
  const QPalette before = QGuiApplication::palette();
  for (const auto& [ground, text] : {std::pair<QColor, QColor>("white", "black"), {"black", "white"}}) {
    QPalette colours{ground, ground};
    colours.setColor(QPalette::WindowText, text);
    QApplication::setPalette(colours);
    const int outline = find("figuresBox")->palette().color(QPalette::Mid).lightness();
    EXPECT_GT(std::abs(outline - ground.lightness()), 50);
    EXPECT_GT(std::abs(outline - text.lightness()), 50);
  }
  QApplication::setPalette(before);
}

TEST_F(MainWindowTest, HasItsWizardButtonsOnTheirPages) {
  const auto isOn = [&](const char* button, const char* page) { return find(page)->isAncestorOf(find(button)); };
  EXPECT_TRUE(isOn("buttonNext", "volumePage") && isOn("reloadDrivers", "volumePage"));
  EXPECT_TRUE(isOn("buttonBack", "methodPage") && isOn("buttonProceed", "methodPage"));
  EXPECT_TRUE(isOn("buttonCancel", "progressPage"));
  EXPECT_EQ(find("proceedBtn")->parentWidget(), find("buttonProceed"));
  EXPECT_EQ(find("cancelBut")->parentWidget(), find("buttonCancel"));
}

TEST_F(MainWindowTest, PressesThePagesDefaultButtonOnEnter) {
  std::vector<std::string> told;
  window.onNext = [&] { told.emplace_back("next"); };
  window.onProceed = [&] { told.emplace_back("proceed"); };
  window.onCancel = [&] { told.emplace_back("cancel"); };
  addVolumes({"A"});
  controls.turnOn(Control::butFastZeroWipe);
  showPage(Page::volume);
  EXPECT_EQ(focused(), "A");
  type(Qt::Key_Return);
  showPage(Page::method);
  EXPECT_EQ(focused(), "butFastZeroWipe");
  type(Qt::Key_Enter);
  showPage(Page::progress);
  type(Qt::Key_Return);
  type(Qt::Key_Space);
  EXPECT_THAT(told, ElementsAre("next", "proceed"));
}

TEST_F(MainWindowTest, PressesTheFocusedButtonOnEnter) {
  std::vector<std::string> told;
  window.onNext = [&] { told.emplace_back("next"); };
  window.onReload = [&] { told.emplace_back("reload"); };
  showPage(Page::volume);
  find("reloadDrivers")->setFocus();
  type(Qt::Key_Return);
  EXPECT_THAT(told, ElementsAre("reload"));
}

TEST_F(MainWindowTest, TakesAKeyThatIsHeldDownForOnePress) {
  int proceeded = 0;
  window.onProceed = [&] { ++proceeded; };
  showPage(Page::method);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
  QApplication::sendEvent(window.focusWidget(), &held);
  EXPECT_EQ(proceeded, 0);
}

TEST_F(MainWindowTest, PressesNoHiddenDefaultButton) {
  int told = 0;
  window.onNext = [&] { ++told; };
  showPage(Page::volume);
  controls.hide(Control::buttonNext);
  type(Qt::Key_Return);
  EXPECT_EQ(told, 0);
}

TEST_F(MainWindowTest, ClosesOnlyWhenItMay) {
  bool may = false;
  int closed = 0;
  window.onCloseRequest = [&] { return may; };
  window.onClosed = [&] { ++closed; };
  show();
  EXPECT_FALSE(window.close());
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(closed, 0);
  may = true;
  EXPECT_TRUE(window.close());
  EXPECT_EQ(closed, 1);
}

TEST_F(MainWindowTest, TellsOfBeingMinimisedAndRestored) {
  std::vector<std::string> told;
  window.onMiniaturise = [&] { told.emplace_back("minimised"); };
  window.onDeminiaturise = [&] { told.emplace_back("restored"); };
  show();
  window.showMinimized();
  EXPECT_TRUE(QTest::qWaitFor([&] { return told.size() == 1; }, kWaitMilliseconds));
  window.showNormal();
  EXPECT_TRUE(QTest::qWaitFor([&] { return told.size() == 2; }, kWaitMilliseconds));
  EXPECT_THAT(told, ElementsAre("minimised", "restored"));
}

TEST_F(MainWindowTest, SaysSoWhenThereIsNoDrive) {
  show();
  EXPECT_TRUE(find("noDrives")->isVisible());
  EXPECT_EQ(find<QLabel>("noDrivesTitle")->text(), "No drives found");
  EXPECT_FALSE(find("collectionView")->isVisible());
  addVolumes({"A"});
  EXPECT_FALSE(find("noDrives")->isVisible());
  EXPECT_TRUE(find("collectionView")->isVisible());
  controls.clearVolumes();
  EXPECT_TRUE(find("noDrives")->isVisible());
}

TEST_F(MainWindowTest, LeadsTheTabKeyThroughThePageAndThenThroughTheSideBar) {
  const auto way = [&](int steps) {
    std::vector<std::string> names;
    for (int i = 0; i < steps; ++i) {
      names.push_back(focused());
      type(Qt::Key_Tab);
    }
    return names;
  };
  addVolumes({"A", "B"});
  controls.turnOn(Control::butFastZeroWipe);
  controls.hide(Control::buttonCloud);
  showPage(Page::volume);
  EXPECT_THAT(way(9), ElementsAre("A", "buttonNext", "reloadDrivers", "getItNow", "helpButton", "buttonHome",
                                  "facebookButton", "twitterButton", "googlePlusButton"));
  showPage(Page::method);
  EXPECT_THAT(way(4), ElementsAre("butFastZeroWipe", "proceedBtn", "buttonBack", "getItNow"));
  showPage(Page::progress);
  EXPECT_THAT(way(3), ElementsAre("progressPage", "cancelBut", "getItNow"));
}

TEST_F(MainWindowTest, GrowsRatherThanCutItsCaptions) {
  controls.setText(Control::clickNext, std::string(60, 'W'));
  show();
  const auto* caption = find<QLabel>("clickNext");
  const int needed = caption->fontMetrics().horizontalAdvance(caption->text());
  EXPECT_TRUE(QTest::qWaitFor([&] { return caption->width() >= needed; }, kWaitMilliseconds));
}

}  // namespace
}  // namespace calvero::testing
