#include <unistd.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <cstdio>
#include <exception>
#include <sstream>
#include <system_error>

#include "app/app_delegate.h"
#include "app/exit_code.h"
#include "app/program_entry.h"
#include "platform/linux/process/administrator.h"
#include "platform/linux/process/detached_threads.h"
#include "platform/linux/process/process_limits.h"
#include "platform/linux/process/standard_streams.h"
#include "platform/suite/claimed_tags.h"
#include "platform/suite/order_claim.h"
#include "platform/suite/sqlite_tag_store.h"
#include "platform/suite/suite_folder.h"
#include "platform/threads/signals.h"
#include "window/desktop_workspace.h"
#include "window/display.h"
#include "window/stored_defaults.h"
#include "window/suite_addresses.h"
#include "window/translations.h"
#include "window/wizard/wizard_ports.h"
#include "window/wizard/wizard_session.h"

namespace calvero {
namespace {

constexpr int kFinished = static_cast<int>(ExitCode::finished);
constexpr int kFailed = static_cast<int>(ExitCode::failed);
constexpr int kWrongUsage = static_cast<int>(ExitCode::wrongUsage);
constexpr int kRefused = static_cast<int>(ExitCode::refused);
constexpr std::chrono::seconds kTimeForTagsToBeStored{2};
constexpr std::chrono::seconds kTimeForTheStatusToBeStored{600};

void printError(const std::string& text) {
  std::fprintf(stderr, "calvero: %s\n", text.c_str());
}

int print(const std::string& text) {
  const int failure = writeAll(STDOUT_FILENO, text, kReaderTimeout);
  if (failure == 0) return kFinished;
  printError("The output could not be written: " +
             (failure == kNobodyReads ? "nobody reads it" : std::generic_category().message(failure)));
  return kFailed;
}

/// An order that no run was started for has failed: nobody has declined it.
int exitCodeOf(const WipeRun& run) {
  if (run.outcome == RunOutcome::none) return kFailed;
  return static_cast<int>(exitCodeOf(run.outcome, run.account()));
}

/// A hidden program is in nobody's way, and whoever ordered its run waits for the status. Once it is told to end, by
/// whoever ends the session or the machine, it does not go on for long.
void waitForTheStatus(SqliteTagStore& tags, const WizardSession& session) {
  constexpr std::chrono::milliseconds kLookInterval{100};
  const auto begin = std::chrono::steady_clock::now();
  const auto isOver = [begin, &session] {
    const auto passed = std::chrono::steady_clock::now() - begin;
    return passed >= (session.wasToldToEnd() ? kTimeForTagsToBeStored : kTimeForTheStatusToBeStored);
  };
  while (!tags.waitUntilStored(kLookInterval) && !isOver()) {
  }
}

int showWindow(int argumentCount, char** arguments) {
  SyslogLog log;
  SqliteTagStore tags(tagStorePath(), log);
  DesktopWorkspace workspace(log);
  SuiteAddresses addresses(workspace);
  StoredDefaults defaults;
  Authentication authentication(tags, addresses);
  Translations texts(chooseInterfaceLanguage(authentication, defaults));
  OrderClaim claim(tagStorePath());
  claim.inherit();
  const bool isOrdered = authentication.GetValueForTag(kTagOnline) == "1";
  ClaimedTags claimedTags(tags, claim, kTagOnline, log);
  if (isOrdered && !claimedTags.isOursToCarryOut()) return kRefused;

  chooseDisplay();
  QApplication application(argumentCount, arguments);
  if (!isOrdered && isWithoutDisplay()) {  // an ordered run needs none; a person does
    printError("there is no display to open a window on; in a terminal, use calvero-cli");
    return kFailed;
  }
  QApplication::setApplicationName("Calvero");
  QApplication::setDesktopFileName("calvero");
  QApplication::setQuitOnLastWindowClosed(false);  // the controller decides when the program ends
  texts.install();

  WizardPorts ports({claimedTags, addresses, workspace, texts});
  AppDelegate app(ports.ports());
  const auto isRemoteNow = [&app] { return app.order().cloudInitiation != 0; };
  const bool beganRemote = isRemoteNow();
  if (!beganRemote) claimedTags.giveUp();
  WizardSession session(ports, app);
  ports.loop.post([&session] { session.start(); });
  int code = ports.loop.run();
  const auto conclude = [&] {
    if (beganRemote || isRemoteNow()) {  // listing the volumes anew reads the order anew
      waitForTheStatus(tags, session);
      claim.giveUp();
      code = exitCodeOf(*app.currentRun());
    } else {
      tags.waitUntilStored(kTimeForTagsToBeStored);
    }
  };
  endThreads(ports.threads, conclude, [&code] { return code; });
  return code;
}

int run(int argumentCount, char** arguments) {
  if (const auto link = linkToTagStore()) {
    printError("As root, the tag store is not looked for through a link of another user: " + *link);
    return kRefused;
  }
  CLI::App options{"Erases the free space of a mounted volume, so that deleted files cannot be read back from it.",
                   "calvero"};
  options.set_version_flag("--version", "calvero " CALVERO_VERSION);
  options.footer("Opens the window. In a terminal, calvero-cli does the same.");
  try {
    options.parse(argumentCount, arguments);
  } catch (const CLI::Success& request) {
    std::ostringstream text;
    options.exit(request, text, text);  // the help or the version
    return print(text.str());
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
  calvero::occupyStandardStreams();
  calvero::ignoreSignals();
  calvero::leaveFoldersOfOthers();
  try {
    return calvero::run(argumentCount, arguments);
  } catch (const std::exception& error) {
    calvero::printError(error.what());
    return calvero::kFailed;
  }
}
