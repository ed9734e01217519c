#include "window/wizard/wizard_ports.h"

#include "app/app_delegate.h"
#include "platform/linux/process/administrator.h"
#include "platform/linux/process/program_search.h"
#include "platform/linux/volumes/volume_names.h"
#include "window/display.h"
#include "wipe/filler_names.h"

namespace calvero {
namespace {

AdministratorProgram terminalProgram() {
  constexpr const char* kName = "calvero-cli";
  constexpr const char* kInBuildTree = "../terminal/calvero-cli";
  const auto beside = findBeside(ownFolder(), {kName, kInBuildTree});
  const auto inPath = findInPath(kName, searchPath());
  return administratorProgram({installedTerminalProgram(), beside.value_or(""), inPath.value_or("")});
}

std::optional<std::string> terminalCommand(const std::string& mountPath) {
  const AdministratorProgram program = terminalProgram();
  if (isAdministrator() || !program.isTrusted()) return std::nullopt;
  const auto command = administratorCommand(program.path, {"wipe", mountPath}, searchPath());
  return command ? std::optional(shellText(*command)) : std::nullopt;
}

std::optional<std::string> untrustedTerminalProgram() {
  const AdministratorProgram program = terminalProgram();
  const bool isKeptBack = !isAdministrator() && !program.path.empty() && !program.isTrusted();
  return isKeptBack ? std::optional(printableLabel(program.path)) : std::nullopt;
}

}  // namespace

WizardPorts::WizardPorts(const SuiteServices& services)
    : commandForAdministrator(terminalCommand),
      untrustedProgram(untrustedTerminalProgram),
      suite(services),
      log([this](const std::string&) {
        loop.post([this] {
          if (onNotice) onNotice();
        });
      }),
      threads([this](const std::string& failure) { log.line(failure); }),
      alerts(services.texts),
      volumes_([](const std::string& mountPath) {
        return LinuxFiles::bytesInLeftDirectory(mountPath, fillerDirectoryPath(mountPath));
      }) {
  window.setTexts(suite.texts);
  window.setSizeFormatter(&AppDelegate::getFormattedStringForSize);
  alerts.setMainWindow(&window);
  if (isWithoutDisplay()) popUp.onUndisplayed = [this](const std::string& text) { log.line(text); };
}

Ports WizardPorts::ports() {
  return {.alerts = alerts,
          .clock = clock_,
          .controls = controls,
          .diskLookup = volumes_,
          .eventLoop = loop,
          .files = files_,
          .informationFile = informationFile_,
          .localisation = suite.texts,
          .mountedVolumes = volumes_,
          .popUpWindow = popUp,
          .random = random_,
          .suiteWeb = suite.web,
          .log = log,
          .systemNotifications = systemNotifications_,
          .tagStore = suite.tags,
          .threads = threads,
          .workspace = suite.workspace};
}

}  // namespace calvero
