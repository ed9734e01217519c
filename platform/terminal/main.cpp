#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <clocale>
#include <csignal>
#include <exception>

#include "platform/terminal/commands/command_list.h"
#include "platform/terminal/commands/command_ports.h"

namespace calvero {
namespace {

constexpr const char* kExitCodes =
    "Exit codes:\n"
    "  0  finished\n"
    "  1  failed: the volume or a filler file is gone, or writes failed\n"
    "  2  wrong usage\n"
    "  3  refused: read-only, not permitted, in use by another run, or no such volume\n"
    "  4  cancelled: Ctrl-C, a signal, or NO\n"
    "\n"
    "Without a command, on a terminal, the program asks for the volume and the method.";

struct CommandLine {
  CommandLine() {
    app.set_version_flag("--version", "calvero-cli " CALVERO_VERSION);
    app.footer(kExitCodes);
    app.require_subcommand(0, 1);

    volumes->add_flag("--json", list.json, "Print a JSON array");
    methods->add_flag("--json", list.json, "Print a JSON array");

    wipe->footer(kExitCodes);
    wipe->add_option("VOLUME", request.volume, "Name or mount path of the volume");
    wipe->add_option("-m,--method", request.method, "Number or word of the erase method; 1 if not given")
        ->type_name("1..9|WORD");
    wipe->add_flag("-y,--yes", request.yes, "Answer every question with its default button: erase without asking");
    wipe->add_flag("-q,--quiet", request.quiet, "No progress, only errors and the final line");
    wipe->add_flag("--json", request.json, "Print one JSON object at the end, everything else on standard error");
  }

  CLI::App app{"Erases the free space of a mounted volume, so that deleted files cannot be read back from it.",
               "calvero-cli"};
  CLI::App* volumes = app.add_subcommand("volumes", "List the volumes whose free space can be erased");
  CLI::App* methods = app.add_subcommand("methods", "List the erase methods");
  CLI::App* wipe = app.add_subcommand("wipe", "Erase the free space of a volume");
  ListRequest list;
  WipeRequest request;
};

ExitCode parseFailure(const CLI::App& app, const CLI::ParseError& error) {
  if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
    app.exit(error);  // prints the help or the version
    return ExitCode::finished;
  }
  std::string words = error.what();
  std::replace(words.begin(), words.end(), '\n', ' ');
  printError(words + "; calvero-cli --help lists what there is");
  return ExitCode::wrongUsage;
}

ExitCode runCommand(const CommandLine& line) {
  if (line.volumes->parsed()) return volumesCommand(line.list);
  if (line.methods->parsed()) return methodsCommand(line.list);
  if (line.wipe->parsed() || ::isatty(STDIN_FILENO) == 1) return wipeCommand(line.request);
  Output(STDERR_FILENO).write(line.app.help());
  return ExitCode::wrongUsage;
}

ExitCode run(int argumentCount, char** arguments) {
  CommandLine line;
  try {
    line.app.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& error) {
    return parseFailure(line.app, error);
  }
  return runCommand(line);
}

}  // namespace
}  // namespace calvero

int main(int argumentCount, char** arguments) {
  std::setlocale(LC_CTYPE, "C.UTF-8");  // for the width of characters only
  // A closed pipe or a limit of file sizes shows in the call that meets it, and must not skip the clean-up.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return static_cast<int>(calvero::run(argumentCount, arguments));
  } catch (const std::exception& error) {
    calvero::printError(error.what());
    return static_cast<int>(calvero::ExitCode::failed);
  }
}
