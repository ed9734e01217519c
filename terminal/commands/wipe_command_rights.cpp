#include "terminal/commands/wipe_command_rights.h"

#include <algorithm>

#include "platform/linux/process/program_search.h"
#include "terminal/commands/command_list.h"
#include "terminal/commands/wipe_command_report.h"
#include "terminal/text.h"

namespace calvero {
namespace {

std::string mayNotWrite(const WipeReport& report) {
  return "may not create files in the root folder of " + volumeText(report);
}

}  // namespace

std::vector<std::string> wipeArguments(const WipeRequest& request, const std::string& mountPath) {
  std::vector<std::string> arguments{"wipe", mountPath};
  if (request.method) arguments.insert(arguments.end(), {"--method", *request.method});
  if (request.yes) arguments.emplace_back("--yes");
  if (request.quiet) arguments.emplace_back("--quiet");
  if (request.json) arguments.emplace_back("--json");
  return arguments;
}

AdministratorProgram programForAdministrator() {
  return administratorProgram({installedTerminalProgram(), ownProgram()});
}

std::optional<Command> commandForAdministrator(const AdministratorProgram& program, const WipeRequest& request,
                                               const std::string& mountPath) {
  if (isAdministrator() || !program.isTrusted()) return std::nullopt;
  return administratorCommand(program.path, wipeArguments(request, mountPath), searchPath());
}

std::string notPermittedLine(const WipeReport& report, const Command& command) {
  return "You " + mayNotWrite(report) + "; to wipe it as administrator: " + shellText(command);
}

std::string untrustedProgramLine(const WipeReport& report, const AdministratorProgram& program) {
  return "You " + mayNotWrite(report) + "; root must not start " + printable(program.path) +
         ", since others than root can change " + printable(program.changeable) +
         ": have root install the program, then run " + installedTerminalProgram() + " as root";
}

Alert administratorQuestion(const WipeReport& report, const Command& command) {
  return {"You " + mayNotWrite(report) + ".", "Wipe it as administrator, with: " + shellText(command), "YES", "NO"};
}

VolumeChoice chooseListedVolume(const std::string& given, const std::vector<MountedVolume>& volumes) {
  const bool isPath = given.starts_with('/');
  const auto found = std::find_if(volumes.begin(), volumes.end(), [&](const MountedVolume& volume) {
    return given == (isPath ? volume.mountPath : volume.name);
  });
  if (found != volumes.end()) return {static_cast<std::size_t>(found - volumes.begin()), ""};
  return {std::nullopt, "As administrator, name a volume exactly as calvero-cli volumes lists it; there is no \"" +
                            printable(given) + "\""};
}

}  // namespace calvero
