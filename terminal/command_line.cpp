#include "terminal/command_line.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <clocale>
#include <exception>
#include <sstream>

#include "platform/dbus/post_notification.h"
#include "platform/linux/process/administrator.h"
#include "platform/linux/process/standard_streams.h"
#include "platform/linux/process/syslog_log.h"
#include "platform/threads/signals.h"
#include "remote/remote_order.h"
#include "terminal/commands/command_list.h"
#include "terminal/commands/command_ports.h"
#include "terminal/text.h"

namespace calvero {
namespace {

constexpr const char* kExitCodes =
    "Exit codes:\n"
    "  0  finished\n"
    "  1  failed: the volume or a filler file is gone, or writes failed; or only partly erased; or something is left\n"
    "     behind; or the output could not be written\n"
    "  2  wrong usage\n"
    "  3  refused: read-only, not permitted, in use by another run, or no such volume\n"
    "  4  cancelled: Ctrl-C, a signal, or NO\n"
    "\n"
    "A volume whose root folder only the administrator may write to: pkexec calvero-cli wipe MOUNT-PATH\n"
    "\n"
    "Without a command, on a terminal, the program asks for the volume and the method.";

constexpr const char* kOrderExitCodes =
    "Exit codes:\n"
    "  0  ordered; with --wait, finished\n"
    "  1  failed: the program calvero or the tag store cannot be used; with --wait also: the run failed, or it has\n"
    "     not ended within the timeout or by a Ctrl-C, and goes on\n"
    "  2  wrong usage\n"
    "  3  refused: read-only, not permitted, in use by another run, no such volume, or an earlier order has not ended\n"
    "  4  with --wait: cancelled";

constexpr const char* kOtherOrderExitCodes =
    "Exit codes:\n"
    "  0  done\n"
    "  1  failed: the tag store cannot be used; cancel --wait also: the run has not ended yet\n"
    "  2  wrong usage\n"
    "  3  refused: cancel, when there is no run to end; clear, when there is one";

constexpr std::uint32_t kShortestWait = 1;  // seconds
constexpr std::uint32_t kLongestWait = 1'000'000'000;

bool notifyOfCancel() {
  SyslogLog log;
  return postNotification(kCancelNotificationName, kCancelNotificationObject, log);
}

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

    order->footer(kOrderExitCodes);
    order->add_option("VOLUME", placing.volume, "Name or mount path of the volume")->required();
    order->add_option("-m,--method", placing.method, "Number or word of the erase method")
        ->type_name("1..9|WORD")
        ->required();
    CLI::Option* wait = order->add_flag("--wait", placing.wait, "Wait for the end of the run");
    order->add_option("--timeout", placing.timeoutSeconds, "Wait so long at most; the run goes on")
        ->type_name("SECONDS")
        ->check(CLI::Range(kShortestWait, kLongestWait))
        ->needs(wait);
    for (CLI::App* other : {status, cancel, clear}) other->footer(kOtherOrderExitCodes);
    status->add_flag("--json", list.json, "Print a JSON object");
    cancel->add_flag("--wait", cancelling.wait, "Wait until the run has ended, two minutes at most");
  }

  CLI::App app{"Erases the free space of a mounted volume, so that deleted files cannot be read back from it.",
               "calvero-cli"};
  CLI::App* volumes = app.add_subcommand("volumes", "List the volumes whose free space can be erased");
  CLI::App* methods = app.add_subcommand("methods", "List the erase methods");
  CLI::App* wipe = app.add_subcommand("wipe", "Erase the free space of a volume");
  CLI::App* order = app.add_subcommand("order", "Order a run that calvero carries out hidden, and return");
  CLI::App* status = app.add_subcommand("status", "Show the order, its run and its last status");
  CLI::App* cancel = app.add_subcommand("cancel", "Cancel the run of the order");
  CLI::App* clear = app.add_subcommand("clear", "Remove the order once its run has ended");
  ListRequest list;
  WipeRequest request;
  OrderRequest placing;
  CancelRequest cancelling{.notify = notifyOfCancel};
};

ExitCode parseFailure(const CLI::App& app, const CLI::ParseError& error) {
  if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
    std::ostringstream text;
    app.exit(error, text, text);  // the help or the version
    Output(STDOUT_FILENO).write(text.str());
    return ExitCode::finished;
  }
  std::string words = error.what();
  std::replace(words.begin(), words.end(), '\n', ' ');
  printError(words + "; calvero-cli --help lists what there is");
  return ExitCode::wrongUsage;
}

ExitCode runCommand(const CommandLine& line, const RunScale& scale) {
  if (isStartedByPkexec() && !line.wipe->parsed()) {
    printError("Only wipe is carried out for pkexec; the other commands need no administrator");
    return ExitCode::wrongUsage;
  }
  if (line.volumes->parsed()) return volumesCommand(line.list);
  if (line.methods->parsed()) return methodsCommand(line.list);
  if (line.order->parsed()) return orderCommand(line.placing);
  if (line.status->parsed()) return statusCommand(line.list);
  if (line.cancel->parsed()) return cancelCommand(line.cancelling);
  if (line.clear->parsed()) return clearCommand();
  if (line.wipe->parsed() || ::isatty(STDIN_FILENO) == 1) return wipeCommand(line.request, scale);
  Output(STDERR_FILENO).write(line.app.help());
  return ExitCode::wrongUsage;
}

ExitCode run(int argumentCount, char** arguments, const RunScale& scale) {
  if (const auto link = linkToTagStore()) {
    printError("As root, the tag store is not looked for through a link of another user: " + printable(*link));
    return ExitCode::refused;
  }
  CommandLine line;
  try {
    line.app.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& error) {
    return parseFailure(line.app, error);
  }
  return runCommand(line, scale);
}

}  // namespace

int runCommandLine(int argumentCount, char** arguments, const RunScale& scale) {
  std::setlocale(LC_CTYPE, "C.UTF-8");  // for the width of characters only
  occupyStandardStreams();
  ignoreSignals();
  if (isStartedByPkexec()) dropEnvironmentOfCaller();
  leaveFoldersOfOthers();
  try {
    return static_cast<int>(afterOutput(run(argumentCount, arguments, scale)));
  } catch (const std::exception& error) {
    printError(error.what());
    return static_cast<int>(ExitCode::failed);
  }
}

}  // namespace calvero
