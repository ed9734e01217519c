#include "window/desktop_workspace.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>
#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/linux/process/administrator.h"
#include "platform/linux/process/program_search.h"
#include "platform/linux/process/trusted_path.h"
#include "platform/suite/suite_folder.h"
#include "ports/system_log.h"

namespace calvero {
namespace {

bool isWebAddress(const QUrl& url) {
  return url.isValid() && !url.host().isEmpty() && (url.scheme() == "https" || url.scheme() == "http");
}

/// As the desktop entry specification makes it of an application's name.
QString objectPathOf(QString identifier) {
  return '/' + identifier.replace('.', '/').replace('-', '_');
}

/// libdbus ends the process over a name that is none.
bool isBusName(const QString& text) {
  constexpr qsizetype kLongest = 255;
  static const QRegularExpression form(R"(\A[A-Za-z_-][A-Za-z0-9_-]*(\.[A-Za-z_-][A-Za-z0-9_-]*)+\z)");
  return text.size() <= kLongest && form.match(text).hasMatch();
}

std::string programAt(const std::string& path) {
  constexpr const char* kProgramInFolder = "home-application";
  std::error_code unknown;
  const bool isFolder = std::filesystem::is_directory(path, unknown);
  return isFolder ? (std::filesystem::path(path) / kProgramInFolder).string() : path;
}

std::optional<std::string> whyNotToBeStarted(const std::string& program) {
  if (!isProgram(program)) return "there is no program " + program;
  const auto changeable = isAdministrator() ? changeableByOthers(program) : std::nullopt;
  if (!changeable) return std::nullopt;
  return "root must not start " + program + ", since others than root can change " + *changeable;
}

}  // namespace

void DesktopWorkspace::openAddress(const std::string& address) {
  const QUrl url(QString::fromStdString(address));
  if (isWebAddress(url)) QDesktopServices::openUrl(url);
}

void DesktopWorkspace::launchApplication(const std::string& path) {
  const std::string program = programAt(path);
  const auto refusal = whyNotToBeStarted(program);
  if (refusal) {
    log_.line("no application is started: " + *refusal);
  } else if (!QProcess::startDetached(QString::fromStdString(program), QStringList(), QDir::homePath())) {
    log_.line("no application is started: the system cannot start " + program);
  }
}

void DesktopWorkspace::bringToFront(const std::string& identifier) {
  const QString name = QString::fromStdString(identifier);
  if (!isBusName(name)) return;
  QDBusMessage call =
      QDBusMessage::createMethodCall(name, objectPathOf(name), "org.freedesktop.Application", "Activate");
  call << QVariantMap();
  call.setAutoStartService(false);  // only an application that runs
  // Written to the bus before it returns; the answer is not waited for.
  sessionBus_().send(call);
}

std::string DesktopWorkspace::bundlePath() const {
  return QCoreApplication::applicationFilePath().toStdString();
}

std::string DesktopWorkspace::applicationSupportFolder() const {
  return userDataFolder();
}

}  // namespace calvero
