#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <functional>

#include "tests/window/wizard_fixture.h"

namespace calvero {
namespace {

using testing::FileCall;
using ::testing::HasSubstr;

constexpr const char* kCommand = "pkexec /usr/bin/calvero-cli wipe /media/DATA";

/// A volume that only the administrator may write to.
class AdministratorCommandInWindow : public testing::WizardFixture {
 protected:
  AdministratorCommandInWindow() {
    mountVolume("DATA");
    ports.commandForAdministrator = [this](const std::string& mountPath) {
      askedFor = mountPath;
      return command;
    };
    ports.untrustedProgram = [this] { return untrusted; };
  }

  /// Presses Next, is refused, and does something with the dialog before it is closed.
  void refuse(const std::function<void(QDialog&)>& act) {
    files.script.failAt(FileCall::checkDirectory, files.script.count(FileCall::checkDirectory) + 1,
                        ErrorCode::notPermitted);
    whenShown(act);
    press("buttonNext");
  }
  void whenShown(const std::function<void(QDialog&)>& act) {
    ports.loop.startTimer(std::chrono::milliseconds(5), TimerKind::oneShot, [this, act] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || !dialog->isAncestorOf(QApplication::focusWidget())) return whenShown(act);
      act(*dialog);
      dialog->reject();
    });
  }
  static QLineEdit* lineOf(const QDialog& dialog) { return dialog.findChild<QLineEdit*>("alertCommand"); }

  std::optional<std::string> command = kCommand;
  std::optional<std::string> untrusted;
  std::string askedFor;
};

TEST_F(AdministratorCommandInWindow, IsShownWithTheRefusalInsteadOfTheMethods) {
  use([this] {
    QString explanation;
    QString shown;
    refuse([&](QDialog& dialog) {
      explanation = dialog.accessibleDescription();
      ASSERT_NE(lineOf(dialog), nullptr);
      shown = lineOf(dialog)->text();
      EXPECT_TRUE(lineOf(dialog)->isReadOnly());
      EXPECT_EQ(lineOf(dialog)->accessibleName(), "Command");
    });
    EXPECT_THAT(explanation.toStdString(), HasSubstr("You are not allowed to write to this drive."));
    EXPECT_THAT(explanation.toStdString(), HasSubstr("as administrator"));
    EXPECT_EQ(shown, kCommand);
    EXPECT_EQ(askedFor, "/media/DATA");
    EXPECT_EQ(page(), 0);
  });
}

TEST_F(AdministratorCommandInWindow, IsCopiedByItsButtonWhichKeepsTheDialog) {
  QGuiApplication::clipboard()->setText("something else");
  use([this] {
    refuse([](QDialog& dialog) {
      dialog.findChild<QPushButton*>("alertCopyButton")->click();
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_EQ(lineOf(dialog)->selectedText(), kCommand);
    });
    EXPECT_EQ(QGuiApplication::clipboard()->text(), kCommand);
  });
}

TEST_F(AdministratorCommandInWindow, HasNoMenuOfTheToolkitsInAnotherLanguage) {
  use([this] {
    refuse([](QDialog& dialog) {
      for (QWidget* widget : dialog.findChildren<QWidget*>()) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), widget->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(widget, &event);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << widget->metaObject()->className();
      }
    });
  });
}

TEST_F(AdministratorCommandInWindow, IsReachedByTheKeyboardAndEnterStillCloses) {
  use([this] {
    bool isReached = false;
    bool isClosed = false;
    refuse([&](QDialog& dialog) {
      for (int tabs = 0; tabs < 5 && !isReached; ++tabs) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        isReached = lineOf(dialog)->hasFocus();
      }
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
      isClosed = !dialog.isVisible();
    });
    EXPECT_TRUE(isReached);
    EXPECT_TRUE(isClosed);
  });
}

TEST_F(AdministratorCommandInWindow, IsWrittenFromLeftToRightInEveryLanguage) {
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  use([this] { refuse([](QDialog& dialog) { EXPECT_EQ(lineOf(dialog)->layoutDirection(), Qt::LeftToRight); }); });
  QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

TEST_F(AdministratorCommandInWindow, IsLeftOutWhereThereIsNone) {
  command.reset();
  use([this] {
    QString explanation;
    refuse([&](QDialog& dialog) {
      explanation = dialog.accessibleDescription();
      EXPECT_EQ(lineOf(dialog), nullptr);
      EXPECT_EQ(dialog.findChild<QPushButton*>("alertCopyButton"), nullptr);
    });
    EXPECT_THAT(explanation.toStdString(), HasSubstr("ask its administrator"));
  });
}

TEST_F(AdministratorCommandInWindow, IsNotOfferedForAProgramThatAUserCanChange) {
  command.reset();
  untrusted = "/home/ann/calvero-cli";
  use([this] {
    QString explanation;
    refuse([&](QDialog& dialog) {
      explanation = dialog.accessibleDescription();
      EXPECT_EQ(lineOf(dialog), nullptr);
    });
    EXPECT_THAT(explanation.toStdString(), HasSubstr("/home/ann/calvero-cli"));
    EXPECT_THAT(explanation.toStdString(), HasSubstr("Have the administrator install Calvero"));
  });
}

TEST_F(AdministratorCommandInWindow, IsNotOfferedAgainstAReadOnlyVolume) {
  use([this] {
    files.volume("/media/DATA").readOnly = true;
    volumes.remove("DATA");
    MountedVolume readOnly;
    readOnly.name = "DATA";
    readOnly.mountPath = "/media/DATA";
    readOnly.readOnly = true;
    volumes.add(readOnly);
    whenShown([](QDialog& dialog) { EXPECT_EQ(lineOf(dialog), nullptr); });
    press("buttonNext");
    EXPECT_EQ(askedFor, "");
    EXPECT_EQ(page(), 0);
  });
}

}  // namespace
}  // namespace calvero
