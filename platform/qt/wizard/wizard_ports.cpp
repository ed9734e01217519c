#include "platform/qt/wizard/wizard_ports.h"

#include <array>

#include "app/app_delegate.h"
#include "methods/method_catalogue.h"
#include "platform/linux/administrator.h"
#include "platform/linux/program_search.h"
#include "platform/qt/display.h"
#include "wipe/filler_names.h"

namespace calvero {
namespace {

std::array<int, kMethodCount> passesOfTheMethods() {
  std::array<int, kMethodCount> passes{};
  for (const EraseMethod& method : kMethodCatalogue) passes.at(static_cast<std::size_t>(method.number)) = method.passes;
  return passes;
}

std::optional<std::string> terminalProgram() {
  constexpr const char* kName = "calvero-cli";
  constexpr const char* kInBuildTree = "../terminal/calvero-cli";
  const auto own = findBeside(ownFolder(), {kName, kInBuildTree});
  return own ? own : findInPath(kName, searchPath());
}

std::optional<std::string> terminalCommand(const std::string& mountPath) {
  const auto program = isAdministrator() ? std::nullopt : terminalProgram();
  const auto command = program ? administratorCommand(*program, {"wipe", mountPath}, searchPath()) : std::nullopt;
  return command ? std::optional(shellText(*command)) : std::nullopt;
}

}  // namespace

WizardPorts::WizardPorts(const SuiteServices& services)
    : commandForAdministrator(terminalCommand),
      suite(services),
      log([this](const std::string&) {
        loop.post([this] {
          if (onNotice) onNotice();
        });
      }),
      threads([this](const std::string& failure) { log.line(failure); }),
      alerts(services.texts),
      volumes_([](const std::string& mountPath) {
        return PosixFiles::bytesInLeftDirectory(mountPath, fillerDirectoryPath(mountPath));
      }) {
  window.setTexts(suite.texts);
  window.setSizeFormatter(&AppDelegate::getFormattedStringForSize);
  window.setPasses(passesOfTheMethods());
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
