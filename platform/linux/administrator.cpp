#include "platform/linux/administrator.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "platform/linux/posix_error.h"
#include "platform/linux/program_search.h"
#include "platform/linux/volume_names.h"
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

std::optional<Command> administratorCommand(const std::string& program, const std::vector<std::string>& arguments,
                                            const std::string& searchPath) {
  if (!findInPath(kPkexec, searchPath)) return std::nullopt;
  Command command{kPkexec, program};
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
  ::execvp(arguments.front(), arguments.data());
  return posixError("execvp", command.front(), errno).detail;
}

}  // namespace calvero
