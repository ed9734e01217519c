#include "window/desktop_workspace.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

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
#include <csignal>
#include <map>

#include "platform/suite/suite_folder.h"
#include "platform/threads/signals.h"
#include "tests/fakes/journal.h"
#include "tests/fakes/small_fakes.h"

namespace calvero {
namespace {

testing::Journal noJournal;
testing::FakeLog noLog{noJournal};

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
  DesktopWorkspace workspace(noLog);
  workspace.openAddress("https://portal.ondrel.example/login?u1/d9/do");
  workspace.openAddress("http://www.ondrel.example/a%20b");
  workspace.openAddress("https://portal.ondrel.example/login?(null)/(null)/do");
  EXPECT_EQ(browser.opened,
            (QStringList{"https://portal.ondrel.example/login?u1/d9/do", "http://www.ondrel.example/a%20b",
                         "https://portal.ondrel.example/login?(null)/(null)/do"}));
}

TEST(DesktopWorkspace, IgnoresWhatIsNoWebAddress) {
  AddressCatcher browser;
  DesktopWorkspace workspace(noLog);
  for (const char* address : {"file:///etc/passwd", "mailto:someone@ondrel.example", "", "u1/d9/do", "https://",
                              "https:relative", "javascript:1", "/etc/passwd", "-version"}) {
    workspace.openAddress(address);
  }
  EXPECT_EQ(browser.opened, QStringList());
}

/// A folder with a program that leaves what it finds in the file "result".
class LaunchedApplication : public ::testing::Test {
 protected:
  QString install(const QString& name) const {
    QFile application(folder_.filePath(name));
    EXPECT_TRUE(application.open(QIODevice::WriteOnly));
    application.write("#!/bin/sh\n{ echo \"$#\"; pwd; grep SigIgn /proc/self/status; } > '" + result().toUtf8() +
                      ".new'\nmv '" + result().toUtf8() + ".new' '" + result().toUtf8() + "'\n");
    application.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    return application.fileName();
  }
  [[nodiscard]] QString result() const { return folder_.filePath("result"); }
  /// What the program found; nothing when it has not been started.
  [[nodiscard]] QStringList found() const {
    QFile told(result());
    if (!QTest::qWaitFor([&] { return QFile::exists(result()); }, 10000)) return {};
    return told.open(QIODevice::ReadOnly) ? QString(told.readAll()).split('\n') : QStringList();
  }

  const QTemporaryDir folder_;
  testing::Journal journal_;
  testing::FakeLog log_{journal_};
};

TEST_F(LaunchedApplication, IsStartedInTheHomeFolderWithoutArguments) {
  DesktopWorkspace(log_).launchApplication(install("a program").toStdString());
  const QStringList lines = found();
  ASSERT_GE(lines.size(), 2);
  EXPECT_EQ(lines[0], "0");
  EXPECT_EQ(QFileInfo(lines[1]).canonicalFilePath(), QFileInfo(QDir::homePath()).canonicalFilePath());
  EXPECT_EQ(journal_.all(), testing::Steps{});
}

TEST_F(LaunchedApplication, IsTheHomeApplicationOfAFolder) {
  install("home-application");
  DesktopWorkspace(log_).launchApplication(folder_.path().toStdString());
  EXPECT_FALSE(found().isEmpty());
  EXPECT_EQ(journal_.all(), testing::Steps{});
}

TEST_F(LaunchedApplication, FindsNoSignalIgnoredThatThisProgramIgnores) {
  std::map<int, void (*)(int)> before;
  for (const int signal : kIgnoredSignals) before[signal] = std::signal(signal, SIG_DFL);
  ignoreSignals();
  DesktopWorkspace(log_).launchApplication(install("a program").toStdString());
  for (const auto& [signal, handler] : before) std::signal(signal, handler);
  const QStringList lines = found();
  ASSERT_GE(lines.size(), 3);
  constexpr int kHexadecimal = 16;
  const qulonglong ignored = lines[2].section('\t', 1).toULongLong(nullptr, kHexadecimal);
  for (const int signal : kIgnoredSignals) EXPECT_EQ(ignored >> (signal - 1) & 1U, 0U) << signal;
}

TEST_F(LaunchedApplication, ThatIsNoneIsToldByTheLog) {
  DesktopWorkspace workspace(log_);
  for (const std::string& path :
       {std::string(), std::string("/no/such/program"), std::string("/etc/passwd"), folder_.path().toStdString()}) {
    workspace.launchApplication(path);
  }
  EXPECT_EQ(journal_.all(), (testing::Steps{"log no application is started: there is no program ",
                                            "log no application is started: there is no program /no/such/program",
                                            "log no application is started: there is no program /etc/passwd",
                                            "log no application is started: there is no program " +
                                                folder_.path().toStdString() + "/home-application"}));
}

TEST_F(LaunchedApplication, IsNotStartedByRootWhereAnotherUserCanChangeIt) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs the right to give files away";
  const std::string program = install("home-application").toStdString();
  ASSERT_EQ(::chmod(folder_.path().toUtf8(), 0777), 0);
  DesktopWorkspace(log_).launchApplication(folder_.path().toStdString());
  EXPECT_EQ(journal_.all(), testing::Steps{"log no application is started: root must not start " + program +
                                           ", since others than root can change " + folder_.path().toStdString()});
}

TEST(DesktopWorkspace, KnowsItsOwnPlace) {
  EXPECT_EQ(DesktopWorkspace(noLog).bundlePath(), QFileInfo("/proc/self/exe").canonicalFilePath().toStdString());
}

TEST(DesktopWorkspace, HasTheUsersFolderInWhichTheSuiteKeepsItsFiles) {
  const QByteArray before = qgetenv("XDG_DATA_HOME");
  for (const char* given : {"/data/ann", "data", ""}) {
    qputenv("XDG_DATA_HOME", given);
    EXPECT_EQ(DesktopWorkspace(noLog).applicationSupportFolder(), userDataFolder()) << given;
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
  DesktopWorkspace workspace(noLog, [&] { return QDBusConnection::connectToBus(bus.address(), "workspace"); });
  workspace.bringToFront("org.example.None");
  workspace.bringToFront("org.example.Home-App");
  QDBusConnection::disconnectFromBus("workspace");  // nothing more is sent from here on
  EXPECT_TRUE(QTest::qWaitFor([&] { return !application.calls.empty(); }, 10000));
  EXPECT_EQ(application.calls, QStringList{"/org/example/Home_App org.freedesktop.Application.Activate a{sv}"});
}

TEST(DesktopWorkspace, WithoutABusOrWithAnIdentifierThatIsNoneNothingIsBroughtToTheFront) {
  DesktopWorkspace without(noLog, [] { return QDBusConnection::connectToBus("unix:path=/no/such/socket", "none"); });
  without.bringToFront("com.PelmarSoftware.PelmarMacCleaner");
  if (QStandardPaths::findExecutable("dbus-daemon").isEmpty()) GTEST_SKIP() << "needs dbus-daemon";
  const PrivateBus bus;
  DesktopWorkspace with(noLog, [&] { return QDBusConnection::connectToBus(bus.address(), "workspace"); });
  for (const char* identifier : {"", "not a name", "..", "a/b", "plain", "a.0b", "a.b\n"})
    with.bringToFront(identifier);
  QDBusConnection::disconnectFromBus("workspace");
}

#endif

}  // namespace
}  // namespace calvero
