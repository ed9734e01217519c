#include <unistd.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "app/app_delegate.h"
#include "app/program_entry.h"
#include "platform/linux/process_limits.h"
#include "platform/qt/desktop_workspace.h"
#include "platform/qt/display.h"
#include "platform/qt/stored_defaults.h"
#include "platform/qt/suite_addresses.h"
#include "platform/qt/translations.h"
#include "platform/qt/wizard/wizard_ports.h"
#include "platform/qt/wizard/wizard_session.h"
#include "platform/suite/sqlite_tag_store.h"
#include "platform/suite/suite_folder.h"

namespace calvero {
namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;
constexpr std::chrono::seconds kTimeForThreadsToEnd{2};
constexpr std::chrono::seconds kTimeForTagsToBeStored{2};

void printError(const std::string& text) {
  std::fprintf(stderr, "calvero: %s\n", text.c_str());
}

/// A wipe that was ordered needs no display; a person does.
bool canBeUsed(Authentication& authentication) {
  return !isWithoutDisplay() || authentication.GetValueForTag(kTagOnline) == "1";
}

int showWindow(int argumentCount, char** arguments) {
  SyslogLog log;
  SqliteTagStore tags(tagStorePath(), log);
  DesktopWorkspace workspace;
  SuiteAddresses addresses(workspace);
  StoredDefaults defaults;
  Authentication authentication(tags, addresses);
  Translations texts(chooseInterfaceLanguage(authentication, defaults));

  chooseDisplay();
  QApplication application(argumentCount, arguments);
  if (!canBeUsed(authentication)) {
    printError("there is no display to open a window on; in a terminal, use calvero-cli");
    return kFailed;
  }
  QApplication::setApplicationName("Calvero");
  QApplication::setDesktopFileName("calvero");
  QApplication::setQuitOnLastWindowClosed(false);  // the controller decides when the program ends
  texts.install();

  WizardPorts ports({tags, addresses, workspace, texts});
  AppDelegate app(ports.ports());
  WizardSession session(ports, app);
  ports.loop.post([&session] { session.start(); });
  const int status = ports.loop.run();

  const bool threadsEnded = ports.threads.waitForAll(kTimeForThreadsToEnd);
  tags.waitUntilStored(kTimeForTagsToBeStored);
  // A thread that hangs in the kernel would find everything destroyed under it.
  if (!threadsEnded) std::_Exit(status);
  return status;
}

int run(int argumentCount, char** arguments) {
  CLI::App options{"Erases the free space of a mounted volume, so that deleted files cannot be read back from it.",
                   "calvero"};
  options.set_version_flag("--version", "calvero " CALVERO_VERSION);
  options.footer("Opens the window. In a terminal, calvero-cli does the same.");
  try {
    options.parse(argumentCount, arguments);
  } catch (const CLI::Success& request) {
    return options.exit(request);  // prints the help or the version
  } catch (const CLI::ParseError& error) {
    printError(std::string(error.what()) + "; see calvero --help");
    return kWrongUsage;
  }
  raiseOpenFileLimit();
  return showWindow(argumentCount, arguments);
}

}  // namespace
}  // namespace calvero

int main(int argumentCount, char** arguments) {
  // A closed pipe or a limit of file sizes shows in the call that meets it, and must not skip the clean-up.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return calvero::run(argumentCount, arguments);
  } catch (const std::exception& error) {
    calvero::printError(error.what());
    return calvero::kFailed;
  }
}
