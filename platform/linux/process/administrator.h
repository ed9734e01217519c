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

/// Has root keep what is its own: where HOME or a folder of XDG is another user's, this process goes on with root's own
/// home folder of the password database. Others would get files there that are not theirs, and could have root follow
/// their links. Does nothing for other users. Call before threads are started.
void leaveFoldersOfOthers();

/// The link of another user on the way to root's tag store, where the environment names one: a decision of whoever
/// started root's program, but not for that other user to redirect. Nothing for other users.
std::optional<std::string> linkToTagStore();

/// The program that root is to start, in place of the one that runs now.
struct AdministratorProgram {
  std::string path;  ///< empty where there is none
  std::string
      changeable;  ///< what on the way to it another user can change, so that root must not start it; else empty

  [[nodiscard]] bool isTrusted() const { return !path.empty() && changeable.empty(); }
};

/// The first of `candidates` that nobody but root can change; where there is none, the first that is a program at all,
/// with the reason. Empty candidates are passed over.
AdministratorProgram administratorProgram(const std::vector<std::string>& candidates);

/// The command that runs `program` with the administrator's rights, once whoever is at the screen has given the
/// administrator's password; it starts with the full path of the pkexec in `searchPath`. Nothing where there is none,
/// and for words that cannot be shown as they are: pasted into a terminal they would do something else than they seem
/// to.
std::optional<Command> administratorCommand(const std::string& program, const std::vector<std::string>& arguments,
                                            const std::string& searchPath);

/// The command as a shell understands it.
std::string shellText(const Command& command);

/// Becomes the command's program, named by its full path, with this process's standard streams and the settings of
/// signals that a program starts with. Returns only where that fails, with the system's words.
std::string becomeProgram(const Command& command);

}  // namespace calvero
