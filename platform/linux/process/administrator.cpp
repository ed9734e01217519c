#include "platform/linux/process/administrator.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "platform/linux/process/program_search.h"
#include "platform/linux/process/trusted_path.h"
#include "platform/linux/system/posix_error.h"
#include "platform/linux/volumes/volume_names.h"
#include "platform/threads/signals.h"

namespace calvero {
namespace {

constexpr const char* kPkexec = "pkexec";
constexpr const char* kCallersId = "PKEXEC_UID";
constexpr const char* kKindOfTerminal = "TERM";

bool isPlain(char c) {
  constexpr std::string_view kPlainMarks = "/._-+,:@%";
  const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
  return isLetter || (c >= '0' && c <= '9') || kPlainMarks.find(c) != std::string_view::npos;
}

std::string quoted(const std::string& word) {
  if (!word.empty() && std::all_of(word.begin(), word.end(), isPlain)) return word;
  std::string text = "'";
  for (const char c : word) text += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return text + "'";
}

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

bool isOfAnother(const std::string& folder) {
  return folder.starts_with('/') && changeableByOthers(folder).has_value();
}

/// The display's password stays where its user has it; only its place was told by the home folder.
void keepDisplayOf(const std::string& home) {
  constexpr int kKeep = 0;
  const std::string password = home + "/.Xauthority";
  struct stat entry {};
  if (::lstat(password.c_str(), &entry) == 0 && S_ISREG(entry.st_mode)) {
    ::setenv("XAUTHORITY", password.c_str(), kKeep);
  }
}

}  // namespace

bool isAdministrator() {
  return ::geteuid() == 0;
}

bool isStartedByPkexec() {
  return isAdministrator() && std::getenv(kCallersId) != nullptr;
}

void dropEnvironmentOfCaller() {
  constexpr int kReplace = 1;
  std::vector<std::pair<const char*, std::string>> kept;
  for (const char* name : {kCallersId, kKindOfTerminal}) {
    if (const char* value = std::getenv(name)) kept.emplace_back(name, value);
  }
  ::clearenv();
  for (const auto& [name, value] : kept) ::setenv(name, value.c_str(), kReplace);
}

void leaveFoldersOfOthers() {
  constexpr int kReplace = 1;
  if (!isAdministrator()) return;
  for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
    if (isOfAnother(variable(name))) ::unsetenv(name);
  }
  const std::string home = variable("HOME");
  if (!isOfAnother(home)) return;
  keepDisplayOf(home);
  const passwd* root = ::getpwuid(::geteuid());
  const bool isKnown = root != nullptr && root->pw_dir != nullptr && !isOfAnother(root->pw_dir);
  ::setenv("HOME", isKnown ? root->pw_dir : "/", kReplace);
}

std::optional<std::string> linkToTagStore() {
  const std::string given = variable("CALVERO_TAG_STORE");
  return isAdministrator() && !given.empty() ? linkOfAnother(given) : std::nullopt;
}

AdministratorProgram administratorProgram(const std::vector<std::string>& candidates) {
  AdministratorProgram first;
  for (const std::string& candidate : candidates) {
    if (!isProgram(candidate)) continue;
    const auto changeable = changeableByOthers(candidate);
    if (!changeable) return {candidate, ""};
    if (first.path.empty()) first = {candidate, *changeable};
  }
  return first;
}

std::optional<Command> administratorCommand(const std::string& program, const std::vector<std::string>& arguments,
                                            const std::string& searchPath) {
  const auto pkexec = findInPath(kPkexec, searchPath);
  if (!pkexec) return std::nullopt;
  Command command{*pkexec, program};
  command.insert(command.end(), arguments.begin(), arguments.end());
  const auto isShownAsItIs = [](const std::string& word) { return printableLabel(word) == word; };
  return std::all_of(command.begin(), command.end(), isShownAsItIs) ? std::optional(command) : std::nullopt;
}

std::string shellText(const Command& command) {
  std::string text;
  for (const std::string& word : command) text += (text.empty() ? "" : " ") + quoted(word);
  return text;
}

std::string becomeProgram(const Command& command) {
  std::vector<std::string> words = command;
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  restoreIgnoredSignals();
  ::execv(arguments.front(), arguments.data());
  return posixError("execv", command.front(), errno).detail;
}

}  // namespace calvero
