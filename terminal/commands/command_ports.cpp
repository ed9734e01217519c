#include "terminal/commands/command_ports.h"

#include <unistd.h>

#include <algorithm>

#include "app/app_delegate.h"
#include "terminal/text.h"
#include "wipe/filler_names.h"

namespace calvero {

CommandPorts::CommandPorts(Output dialogueOutput, Answering answering)
    : dialogue(dialogueOutput),
      input(loop, STDIN_FILENO),
      alerts(dialogue, input, answering),
      volumes_([](const std::string& mountPath) {
        return LinuxFiles::bytesInLeftDirectory(mountPath, fillerDirectoryPath(mountPath));
      }),
      log_([this](const std::string& text) { passOn(onNotice, text); }),
      popUp_(dialogue) {}

Ports CommandPorts::ports() {
  return {.alerts = alerts,
          .clock = clock,
          .controls = controls,
          .diskLookup = volumes_,
          .eventLoop = loop,
          .files = files_,
          .informationFile = desktop_,
          .localisation = texts_,
          .mountedVolumes = volumes_,
          .popUpWindow = popUp_,
          .random = random_,
          .suiteWeb = desktop_,
          .log = log_,
          .systemNotifications = systemNotifications_,
          .tagStore = tagStore_,
          .threads = threads,
          .workspace = desktop_};
}

void CommandPorts::passOn(const Receiver& receiver, const std::string& text) {
  const auto pass = [&receiver, text] {
    if (receiver) receiver(text);
  };
  if (loop.isEventLoopThread()) {
    pass();
  } else {
    loop.post(pass);
  }
}

std::vector<MountedVolume> offeredVolumes(const AppDelegate& app) {
  const auto& listed = app.volumes().urls;
  std::vector<MountedVolume> offered;
  for (const std::string& name : app.volumes().volumeNameArray) {
    const auto found = std::find_if(listed.begin(), listed.end(), [&](const auto& v) { return v.name == name; });
    if (found != listed.end()) offered.push_back(*found);
  }
  return offered;
}

void printError(const std::string& text) {
  Output(STDERR_FILENO).line("calvero-cli: " + text);
}

ExitCode afterOutput(ExitCode code) {
  const std::string why = whyOutputIsIncomplete();
  if (why.empty()) return code;
  printError("The output could not be written: " + why);
  return code == ExitCode::finished ? ExitCode::failed : code;
}

}  // namespace calvero
