#pragma once

#include <optional>
#include <string>
#include <vector>

namespace calvero {

/// A program and its arguments.
using Command = std::vector<std::string>;

/// Whether this process has the administrator's rights already.
bool isAdministrator();

/// Whether pkexec gave this process these rights, on behalf of a user who has fewer.
bool isStartedByPkexec();

/// Removes from the environment all that this user could have put there; only the kind of the terminal stays. Call
/// before threads are started.
void dropEnvironmentOfCaller();

/// The command that runs `program` with the administrator's rights, once whoever is at the screen has given the
/// administrator's password. Nothing where there is no pkexec in `searchPath`, and for words that cannot be shown as
/// they are: pasted into a terminal they would do something else than they seem to.
std::optional<Command> administratorCommand(const std::string& program, const std::vector<std::string>& arguments,
                                            const std::string& searchPath);

/// The command as a shell understands it.
std::string shellText(const Command& command);

/// Becomes the command's program, found as a shell finds it, with this process's standard streams and the settings of
/// signals that a program starts with. Returns only where that fails, with the system's words.
std::string becomeProgram(const Command& command);

}  // namespace calvero
