#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/process/administrator.h"
#include "ports/alerts.h"
#include "terminal/volume_choice.h"

namespace calvero {

struct WipeReport;
struct WipeRequest;

/// The program's arguments for the wipe that was asked for, on the volume mounted there.
std::vector<std::string> wipeArguments(const WipeRequest& request, const std::string& mountPath);

/// The program that an administrator is to start: the installed one, else this one.
AdministratorProgram programForAdministrator();

/// The command with which an administrator starts the wipe that was asked for, with `program`, on the volume mounted
/// there. Nothing where this machine has no such command or this process has these rights already.
std::optional<Command> commandForAdministrator(const AdministratorProgram& program, const WipeRequest& request,
                                               const std::string& mountPath);

/// Why the user may not wipe the volume, and the command that does it.
std::string notPermittedLine(const WipeReport& report, const Command& command);

/// The same as a question whether to start the command now.
Alert administratorQuestion(const WipeReport& report, const Command& command);

/// Why the user may not wipe the volume, and why no command is offered for it: root must not start this program.
std::string untrustedProgramLine(const WipeReport& report, const AdministratorProgram& program);

/// Finds a volume for somebody else than the one who runs the program: `given` must be exactly a mount path, or a name
/// that does not read like one. Nothing is looked up for it on the disk.
VolumeChoice chooseListedVolume(const std::string& given, const std::vector<MountedVolume>& volumes);

}  // namespace calvero
