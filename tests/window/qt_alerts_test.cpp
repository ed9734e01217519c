#include "window/qt_alerts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "tests/fakes/small_fakes.h"
#include "window/event_dispatch.h"
#include "window/qt_event_loop.h"

namespace calvero {
namespace {

const Alert kQuestion{"Alert!!", "Are you sure?", "YES", "NO"};
const Alert kNotice{"Information", "Relaunch the application", "", ""};

class QtAlertsTest : public ::testing::Test {
 protected:
  using Act = std::function<void(QDialog&)>;

  /// Shows the alert, and does something with its dialog once it is up and has the keyboard.
  AlertAnswer answerTo(const Alert& alert, const Act& act) {
    std::optional<AlertAnswer> answer;
    QtEventLoop once(dispatch);
    loop = &once;
    once.startTimer(std::chrono::seconds(20), TimerKind::oneShot, [&] { once.terminate(); });
    once.post([&] {
      answer = nestedAnswerTo(alert, act);
      once.terminate();
    });
    once.run();
    loop = nullptr;
    return answer.value();
  }

  /// The same from inside the loop.
  AlertAnswer nestedAnswerTo(const Alert& alert, const Act& act) {
    const QWidget* below = QApplication::activeModalWidget();
    bool seen = false;
    QTimer look;
    look.callOnTimeout([&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || dialog == below || !dialog->isAncestorOf(QApplication::focusWidget())) return;
      look.stop();
      seen = true;
      act(*dialog);
    });
    look.start(std::chrono::milliseconds(1));
    const AlertAnswer answer = alerts.runModal(alert);
    EXPECT_TRUE(seen);
    return answer;
  }

  static Act press(Qt::Key key) {
    return [key](QDialog&) { QTest::keyClick(QApplication::focusWidget(), key); };
  }

  static QPushButton* button(const QDialog& dialog, const char* name) { return dialog.findChild<QPushButton*>(name); }

  static QStringList texts(const QDialog& dialog) {
    QStringList found;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
      if (!label->text().isEmpty()) found.append(label->text());
    }
    return found;
  }

  testing::Journal journal;
  testing::FakeLog log{journal};
  EventDispatch dispatch{log};
  QtEventLoop* loop = nullptr;  // the one that serves the alert
  testing::FakeLocalisation localisation;
  QtAlerts alerts{localisation};
};

TEST_F(QtAlertsTest, EnterGivesTheDefaultButton) {
  EXPECT_EQ(answerTo(kQuestion, press(Qt::Key_Return)), AlertAnswer::defaultButton);
  EXPECT_EQ(answerTo(kNotice, press(Qt::Key_Enter)), AlertAnswer::defaultButton);
}

TEST_F(QtAlertsTest, EscapeGivesTheAlternateButtonIfItIsDrawnElseTheDefaultOne) {
  EXPECT_EQ(answerTo(kQuestion, press(Qt::Key_Escape)), AlertAnswer::alternateButton);
  EXPECT_EQ(answerTo(kNotice, press(Qt::Key_Escape)), AlertAnswer::defaultButton);
}

TEST_F(QtAlertsTest, ClosingGivesTheAlternateButtonIfItIsDrawnElseTheDefaultOne) {
  const auto close = [](QDialog& dialog) { dialog.close(); };
  EXPECT_EQ(answerTo(kQuestion, close), AlertAnswer::alternateButton);
  EXPECT_EQ(answerTo(kNotice, close), AlertAnswer::defaultButton);
}

TEST_F(QtAlertsTest, AButtonGivesItsAnswer) {
  const auto click = [](const char* name) {
    return [name](QDialog& dialog) { QTest::mouseClick(button(dialog, name), Qt::LeftButton); };
  };
  EXPECT_EQ(answerTo(kQuestion, click("alertDefaultButton")), AlertAnswer::defaultButton);
  EXPECT_EQ(answerTo(kQuestion, click("alertAlternateButton")), AlertAnswer::alternateButton);
}

TEST_F(QtAlertsTest, TheAlternateButtonIsReachedAndPressedByKeyboard) {
  EXPECT_EQ(answerTo(kQuestion,
                     [](QDialog& dialog) {
                       QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                       EXPECT_TRUE(button(dialog, "alertAlternateButton")->hasFocus());
                       QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
                     }),
            AlertAnswer::alternateButton);
}

TEST_F(QtAlertsTest, ShowsTitleAndMessageUnderTheProgramsName) {
  answerTo(kQuestion, [](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), "alert");
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.windowTitle(), QGuiApplication::applicationDisplayName());
    EXPECT_EQ(dialog.accessibleName(), "Alert!!");
    EXPECT_EQ(dialog.accessibleDescription(), "Are you sure?");
    EXPECT_EQ(texts(dialog), (QStringList{"Alert!!", "Are you sure?"}));
    EXPECT_EQ(button(dialog, "alertDefaultButton")->text(), "YES");
    EXPECT_EQ(button(dialog, "alertAlternateButton")->text(), "NO");
    EXPECT_TRUE(button(dialog, "alertDefaultButton")->hasFocus());
    EXPECT_TRUE(button(dialog, "alertDefaultButton")->isDefault());
    dialog.reject();
  });
}

TEST_F(QtAlertsTest, AnEmptyDefaultButtonReadsTheLocalisedOkAndAnEmptyAlternateIsNotDrawn) {
  localisation.markTexts();
  answerTo(kNotice, [](QDialog& dialog) {
    EXPECT_EQ(button(dialog, "alertDefaultButton")->text(), "<OK>");
    EXPECT_EQ(button(dialog, "alertAlternateButton"), nullptr);
    EXPECT_EQ(dialog.findChildren<QPushButton*>().size(), 1);
    dialog.reject();
  });
}

TEST_F(QtAlertsTest, ATitleAloneIsSplitIntoHeadingAndTextAtItsFirstLine) {
  answerTo({"Please!! \n Close all files.", "", "", ""}, [](QDialog& dialog) {
    EXPECT_EQ(texts(dialog), (QStringList{"Please!!", "Close all files."}));
    EXPECT_EQ(dialog.accessibleName(), "Please!! \n Close all files.");
    dialog.reject();
  });
}

TEST_F(QtAlertsTest, TextsAreNeverTakenForMarkUpOrShortcuts) {
  answerTo({"<b>Title</b>", "<i>text</i> & more", "Go & see", "No & way"}, [](QDialog& dialog) {
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
      EXPECT_TRUE(label->text().isEmpty() || label->textFormat() == Qt::PlainText);
    }
    EXPECT_EQ(texts(dialog), (QStringList{"<b>Title</b>", "<i>text</i> & more"}));
    EXPECT_EQ(button(dialog, "alertDefaultButton")->text(), "Go && see");
    EXPECT_TRUE(button(dialog, "alertDefaultButton")->shortcut().isEmpty());
    EXPECT_EQ(button(dialog, "alertAlternateButton")->text(), "No && way");
    dialog.reject();
  });
}

TEST_F(QtAlertsTest, LongTextsWrapAndAreShownWhole) {
  const std::string longText = [] {
    std::string text;
    for (int i = 0; i < 60; ++i) text += "Deleted data may be readable. ";
    return text;
  }();
  answerTo({longText, longText, "Yes, erase all of the free space", "No"}, [](QDialog& dialog) {
    EXPECT_LT(dialog.width(), dialog.fontMetrics().averageCharWidth() * 120);
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
      if (label->text().isEmpty()) continue;
      EXPECT_GE(label->height(), label->heightForWidth(label->width()));
      EXPECT_TRUE(dialog.rect().contains(label->geometry()));
    }
    const QPushButton* longButton = button(dialog, "alertDefaultButton");
    EXPECT_GE(longButton->width(), longButton->fontMetrics().horizontalAdvance(longButton->text()));
    dialog.reject();
  });
}

TEST_F(QtAlertsTest, AppearsOverTheMainWindowOnlyWhileThatIsOnTheScreen) {
  auto window = std::make_unique<QWidget>();
  alerts.setMainWindow(window.get());
  const auto expectParent = [&](const QWidget* parent) {
    answerTo(kNotice, [parent](QDialog& dialog) {
      EXPECT_EQ(dialog.parentWidget(), parent);
      dialog.reject();
    });
  };
  expectParent(nullptr);
  window->show();
  expectParent(window.get());
  window->showMinimized();
  expectParent(nullptr);
  window.reset();
  expectParent(nullptr);
}

TEST_F(QtAlertsTest, SurvivesTheEndOfTheWindowThatItAppearsOver) {
  auto window = std::make_unique<QWidget>();
  window->show();
  alerts.setMainWindow(window.get());
  EXPECT_EQ(answerTo(kQuestion, [&](QDialog&) { window.reset(); }), AlertAnswer::alternateButton);
}

TEST_F(QtAlertsTest, AnAlertInsideAnAlertIsAnsweredOnItsOwn) {
  AlertAnswer inner{};
  const AlertAnswer outer = answerTo(kQuestion, [&](QDialog& first) {
    inner = nestedAnswerTo(kQuestion, [&](QDialog& second) {
      EXPECT_EQ(second.parentWidget(), &first);
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    EXPECT_TRUE(first.isVisible());
    first.reject();
  });
  EXPECT_EQ(inner, AlertAnswer::defaultButton);
  EXPECT_EQ(outer, AlertAnswer::alternateButton);
}

TEST_F(QtAlertsTest, TheLoopServesTasksWhileAnAlertIsUp) {
  bool served = false;
  answerTo(kNotice, [&](QDialog& dialog) {
    loop->post([&] {
      served = true;
      dialog.reject();
    });
  });
  EXPECT_TRUE(served);
}

TEST_F(QtAlertsTest, TheEndOfTheProgramByAnotherThreadIsAnsweredAsByEscape) {
  std::thread ender;
  AlertAnswer inner = AlertAnswer::defaultButton;
  const AlertAnswer outer = answerTo(kQuestion, [&](QDialog&) {
    inner = nestedAnswerTo(kQuestion, [&](QDialog&) { ender = std::thread([&] { loop->terminate(); }); });
  });
  ender.join();
  EXPECT_EQ(inner, AlertAnswer::alternateButton);
  EXPECT_EQ(outer, AlertAnswer::alternateButton);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(QtAlertsTest, IsNeitherMinimisedNorMaximisedNorResized) {
  answerTo(kQuestion, [](QDialog& dialog) {
    EXPECT_FALSE(dialog.windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
    dialog.reject();
  });
}

TEST_F(QtAlertsTest, MirrorsItselfForALanguageWrittenFromRightToLeft) {
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  answerTo(kQuestion, [](QDialog& dialog) {
    const auto labels = dialog.findChildren<QLabel*>();
    const auto isIcon = [](const QLabel* label) { return label->text().isEmpty(); };
    const auto icon = std::find_if(labels.begin(), labels.end(), isIcon);
    const auto text = std::find_if_not(labels.begin(), labels.end(), isIcon);
    ASSERT_TRUE(icon != labels.end() && text != labels.end());
    EXPECT_LT((*text)->x(), (*icon)->x());
    dialog.reject();
  });
  QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

}  // namespace
}  // namespace calvero
