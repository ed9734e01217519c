#include "platform/qt/desktop_workspace.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <array>

#include "platform/suite/suite_folder.h"

namespace calvero {
namespace {

/// Takes addresses in place of the browser.
class AddressCatcher : public QTextBrowser {
 public:
  AddressCatcher() {
    for (const char* scheme : kSchemes) QDesktopServices::setUrlHandler(scheme, this, "setSource");
  }
  ~AddressCatcher() override {
    for (const char* scheme : kSchemes) QDesktopServices::unsetUrlHandler(scheme);
  }

  QStringList opened;

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType) override { opened.append(url.toEncoded()); }

 private:
  static constexpr std::array kSchemes{"http", "https", "file", "mailto"};
};

TEST(DesktopWorkspace, OpensWebAddressesAsTheyAre) {
  AddressCatcher browser;
  DesktopWorkspace workspace;
  workspace.openAddress("https://portal.ondrel.example/login?u1/d9/do");
  workspace.openAddress("http://www.ondrel.example/a%20b");
  workspace.openAddress("https://portal.ondrel.example/login?(null)/(null)/do");
  EXPECT_EQ(browser.opened,
            (QStringList{"https://portal.ondrel.example/login?u1/d9/do", "http://www.ondrel.example/a%20b",
                         "https://portal.ondrel.example/login?(null)/(null)/do"}));
}

TEST(DesktopWorkspace, IgnoresWhatIsNoWebAddress) {
  AddressCatcher browser;
  DesktopWorkspace workspace;
  for (const char* address : {"file:///etc/passwd", "mailto:someone@ondrel.example", "", "u1/d9/do", "https://",
                              "https:relative", "javascript:1", "/etc/passwd", "-version"}) {
    workspace.openAddress(address);
  }
  EXPECT_EQ(browser.opened, QStringList());
}

TEST(DesktopWorkspace, LaunchesAnApplicationInTheHomeFolderWithoutArguments) {
  const QTemporaryDir folder;
  const QString result = folder.filePath("result");
  QFile application(folder.filePath("a program"));
  ASSERT_TRUE(application.open(QIODevice::WriteOnly));
  application.write("#!/bin/sh\n{ echo \"$#\"; pwd; } > '" + result.toUtf8() + ".new'\n" + "mv '" + result.toUtf8() +
                    ".new' '" + result.toUtf8() + "'\n");
  application.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
  application.close();

  DesktopWorkspace().launchApplication(application.fileName().toStdString());
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(result); }, 10000));
  QFile told(result);
  ASSERT_TRUE(told.open(QIODevice::ReadOnly));
  const QStringList lines = QString(told.readAll()).split('\n');
  EXPECT_EQ(lines[0], "0");
  EXPECT_EQ(QFileInfo(lines[1]).canonicalFilePath(), QFileInfo(QDir::homePath()).canonicalFilePath());
}

TEST(DesktopWorkspace, LaunchingWhatIsNoProgramIsNotAFailure) {
  DesktopWorkspace workspace;
  for (const char* path : {"", "/", "/no/such/program", "/etc/passwd"}) workspace.launchApplication(path);
}

TEST(DesktopWorkspace, KnowsItsOwnPlace) {
  EXPECT_EQ(DesktopWorkspace().bundlePath(), QFileInfo("/proc/self/exe").canonicalFilePath().toStdString());
}

TEST(DesktopWorkspace, HasTheUsersFolderInWhichTheSuiteKeepsItsFiles) {
  const QByteArray before = qgetenv("XDG_DATA_HOME");
  for (const char* given : {"/data/ann", "data", ""}) {
    qputenv("XDG_DATA_HOME", given);
    EXPECT_EQ(DesktopWorkspace().applicationSupportFolder(), userDataFolder()) << given;
  }
  before.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before);
}

// ThreadSanitizer does not see the locks between Qt and the thread that Qt serves a bus with.
#ifndef __SANITIZE_THREAD__

/// A session bus of the test's own.
class PrivateBus {
 public:
  PrivateBus() {
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address=1"});
    if (daemon_.waitForStarted() && daemon_.waitForReadyRead()) address_ = daemon_.readLine().trimmed();
  }
  ~PrivateBus() {
    daemon_.kill();
    daemon_.waitForFinished();
  }

  [[nodiscard]] const QString& address() const { return address_; }

 private:
  QProcess daemon_;
  QString address_;
};

/// An application on the bus that notes how it is called.
class RunningApplication : public QDBusVirtualObject {
 public:
  RunningApplication(const QString& address, const QString& name)
      : bus_(QDBusConnection::connectToBus(address, "application")) {
    EXPECT_TRUE(bus_.registerVirtualObject("/", this, QDBusConnection::SubPath));
    EXPECT_TRUE(bus_.registerService(name));
  }
  ~RunningApplication() override {
    bus_.unregisterObject("/", QDBusConnection::UnregisterTree);
    QDBusConnection::disconnectFromBus("application");
  }

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
    calls.append(message.path() + ' ' + message.interface() + '.' + message.member() + ' ' + message.signature());
    return true;
  }

  QStringList calls;

 private:
  QDBusConnection bus_;
};

TEST(DesktopWorkspace, AsksTheRunningApplicationOfTheIdentifierToActivateItself) {
  if (QStandardPaths::findExecutable("dbus-daemon").isEmpty()) GTEST_SKIP() << "needs dbus-daemon";
  const PrivateBus bus;
  ASSERT_FALSE(bus.address().isEmpty());
  RunningApplication application(bus.address(), "org.example.Home-App");
  DesktopWorkspace workspace([&] { return QDBusConnection::connectToBus(bus.address(), "workspace"); });
  workspace.bringToFront("org.example.None");
  workspace.bringToFront("org.example.Home-App");
  QDBusConnection::disconnectFromBus("workspace");  // nothing more is sent from here on
  EXPECT_TRUE(QTest::qWaitFor([&] { return !application.calls.empty(); }, 10000));
  EXPECT_EQ(application.calls, QStringList{"/org/example/Home_App org.freedesktop.Application.Activate a{sv}"});
}

TEST(DesktopWorkspace, WithoutABusOrWithAnIdentifierThatIsNoneNothingIsBroughtToTheFront) {
  DesktopWorkspace without([] { return QDBusConnection::connectToBus("unix:path=/no/such/socket", "none"); });
  without.bringToFront("com.PelmarSoftware.PelmarMacCleaner");
  if (QStandardPaths::findExecutable("dbus-daemon").isEmpty()) GTEST_SKIP() << "needs dbus-daemon";
  const PrivateBus bus;
  DesktopWorkspace with([&] { return QDBusConnection::connectToBus(bus.address(), "workspace"); });
  for (const char* identifier : {"", "not a name", "..", "a/b", "plain", "a.0b", "a.b\n"})
    with.bringToFront(identifier);
  QDBusConnection::disconnectFromBus("workspace");
}

#endif

}  // namespace
}  // namespace calvero
