#include <unistd.h>

#include <cstdlib>
#include <memory>

#include "app/app_delegate.h"
#include "methods/method_catalogue.h"
#include "platform/linux/process/detached_threads.h"
#include "platform/linux/process/process_limits.h"
#include "terminal/commands/command_list.h"
#include "terminal/commands/command_ports.h"
#include "terminal/commands/methods_command.h"
#include "terminal/commands/wipe_command_report.h"
#include "terminal/commands/wipe_command_rights.h"
#include "terminal/commands/wipe_command_session.h"
#include "terminal/commands/wipe_wizard.h"
#include "terminal/text.h"
#include "terminal/volume_choice.h"

namespace calvero {
namespace {

/// Where a person reads the questions: never where another program reads the result.
Output dialogueOutput(const WipeRequest& request, bool isPersonThere) {
  const Output output(STDOUT_FILENO);
  const bool asks = isPersonThere && (!request.yes || !request.volume);
  if (asks) return request.json || !output.isTerminal() ? Output(STDERR_FILENO) : output;
  return request.json || request.quiet ? Output::nowhere() : output;
}

class WipeCommand {
 public:
  WipeCommand(const WipeRequest& request, std::optional<std::int32_t> method, bool isPersonThere, const RunScale& scale)
      : request_(request),
        isPersonThere_(isPersonThere),
        method_(method),
        ports_(dialogueOutput(request, isPersonThere), request.yes ? Answering::defaultButtons : Answering::person),
        app_(ports_.ports(), {.scale = scale}) {
    report_.volume = request.volume.value_or("");
  }

  ExitCode run() {
    app_.applicationDidFinishLaunching();
    const Output progress(request_.json || request_.quiet ? Output::nowhere() : Output(STDOUT_FILENO));
    const auto style =
        request_.json || request_.quiet ? ProgressStyle::none : progressStyleOf(progress, std::getenv("TERM"));
    WipeCommandSession session(ports_, app_, progress, style);
    if (!isChosen()) return closed();
    announce();
    session.run();
    endThreads(
        ports_.threads, [&] { conclude(session); }, [&] { return static_cast<int>(afterOutput(report_.exitCode)); });
    return report_.exitCode;
  }

 private:
  bool isChosen() {
    try {
      return choose() && enterMethodPage();
    } catch (const NoticeLeft&) {
      return cancel();
    }
  }

  /// Volume and method, from the command line or by asking; false when there is none.
  bool choose() {
    const auto volumes = offeredVolumes(app_);
    std::optional<std::size_t> row;
    if (request_.volume || volumes.empty()) {
      const VolumeChoice choice =
          isStartedByPkexec() ? chooseListedVolume(report_.volume, volumes) : chooseVolume(report_.volume, volumes);
      if (!choice.index) return refuse(choice.refusal);
      row = choice.index;
    } else if (!(row = askForVolume(ports_.dialogue, ports_.input, volumes))) {
      return cancel();
    }
    report_.volume = volumes[*row].name;
    report_.mountPath = volumes[*row].mountPath;
    report_.freeBytes = volumes[*row].availableBytes;
    app_.setCurrentSelection(*row);
    const Error error = app_.checkSelectedVolume();
    if (error.code == ErrorCode::notPermitted) return refuseForWantOfRights(error);
    if (error.failed()) return refuse(refusalLine(report_, error));
    if (!method_ && isPersonThere_ && !request_.yes) {
      method_ = askForMethod(ports_.dialogue, ports_.input, app_.methods());
      if (!method_) return cancel();
    }
    return true;
  }

  /// Refuses, unless a person has the administrator's program take the place of this one.
  bool refuseForWantOfRights(const Error& error) {
    const AdministratorProgram program = programForAdministrator();
    if (!isAdministrator() && !program.changeable.empty()) return refuse(untrustedProgramLine(report_, program));
    const auto command = commandForAdministrator(program, request_, *report_.mountPath);
    if (!command) return refuse(refusalLine(report_, error));
    if (!isPersonThere_ || request_.yes) return refuse(notPermittedLine(report_, *command));
    const AlertAnswer answer = ports_.alerts.runModal(administratorQuestion(report_, *command));
    if (answer == AlertAnswer::alternateButton) return cancel();
    return refuse(command->front() + " cannot be started: " + becomeProgram(*command));
  }

  bool enterMethodPage() {
    app_.next();
    if (ports_.controls.page() != Page::method) return refuse(refusalLine(report_, {ErrorCode::readOnly, "", "", ""}));
    if (method_) app_.chooseMethod(*method_);
    report_.method = app_.methodChoice().eraseMethodSelected;
    report_.methodWord = methodAt(app_.methods(), *report_.method).word;
    report_.passes = app_.methodChoice().numPassSelected;
    return true;
  }

  void announce() {
    const EraseMethod& method = methodAt(app_.methods(), *report_.method);
    ports_.dialogue.line("Free space of " + printable(report_.volume) + " (" + printable(*report_.mountPath) +
                         "): " + AppDelegate::getFormattedStringForSize(report_.freeBytes) + ". Method " +
                         std::to_string(method.number + 1) + ": " + withSingleBlanks(method.labelKey) + ", writes " +
                         shortened(writtenSequence(method)) + ".");
  }

  void conclude(const WipeCommandSession& session) {
    const RunPtr& run = session.theRun();
    addRun(report_, run.get());
    report_.seconds = session.seconds();
    const bool isMounted = report_.exitCode != ExitCode::failed || app_.getVolumePath(report_.volume).has_value();
    const std::string failure = failureLine(report_, isMounted);
    if (!failure.empty()) tell(failure);
    const bool isCancelled = report_.outcome == RunOutcome::cancelled || report_.exitCode == ExitCode::cancelled;
    if (isCancelled) tell(closingLine(report_));
    if (const std::string remains = remainsLine(report_); !remains.empty()) tell(remains);
    if (report_.exitCode == ExitCode::refused) tell(refusalLine(report_, report_.refusal));
    if (report_.outcome == RunOutcome::finished) conclude(closingLine(report_));
    printJson();
  }

  void conclude(const std::string& line) {
    if (report_.message.empty()) report_.message = line;
    if (!request_.json) Output(STDOUT_FILENO).line(line);
  }

  void tell(const std::string& line) {
    report_.message = line;
    printError(line);
  }

  bool refuse(const std::string& line) {
    report_.exitCode = ExitCode::refused;
    tell(line);
    return false;
  }

  bool cancel() {
    report_.exitCode = ExitCode::cancelled;
    tell(closingLine(report_));
    return false;
  }

  ExitCode closed() {
    printJson();
    return report_.exitCode;
  }

  void printJson() const {
    if (request_.json) Output(STDOUT_FILENO).line(reportJson(report_));
  }

  const WipeRequest& request_;
  const bool isPersonThere_;
  std::optional<std::int32_t> method_;
  WipeReport report_;
  CommandPorts ports_;
  AppDelegate app_;
};

ExitCode wrongUsage(const std::string& line) {
  printError(line);
  return ExitCode::wrongUsage;
}

}  // namespace

ExitCode wipeCommand(const WipeRequest& request, const RunScale& scale) {
  std::optional<std::int32_t> method;
  if (request.method) {
    method = methodNamed(*request.method, kMethodCatalogue);
    if (!method) {
      return wrongUsage("There is no method \"" + printable(*request.method) + "\"; choose one of " +
                        validMethods(kMethodCatalogue));
    }
  }
  const bool isPersonThere = ::isatty(STDIN_FILENO) == 1;
  if (!isPersonThere && !request.volume) {
    return wrongUsage("Name the volume to erase; calvero-cli volumes lists them");
  }
  if (!isPersonThere && !request.yes) {
    return wrongUsage("Nobody can answer the questions without a terminal; add --yes to erase without being asked");
  }
  if (isStartedByPkexec() && !request.volume) {
    return wrongUsage("As administrator, name the volume to erase; calvero-cli volumes lists them");
  }
  raiseOpenFileLimit();
  return WipeCommand(request, method, isPersonThere, scale).run();
}

}  // namespace calvero
