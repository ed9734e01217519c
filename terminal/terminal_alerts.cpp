#include "terminal/terminal_alerts.h"

#include <optional>
#include <utility>

#include "terminal/line_input.h"
#include "terminal/output.h"
#include "terminal/text.h"

namespace calvero {
namespace {

bool begins(const std::string& text, const std::string& typed) {
  return typed.size() <= text.size() && equalIgnoringCase(text.substr(0, typed.size()), typed);
}

std::optional<AlertAnswer> answerOf(const std::string& line, const Alert& alert) {
  const std::string typed = withSingleBlanks(line);
  if (typed.empty()) return std::nullopt;
  const bool isDefault = begins(alert.defaultButton, typed);
  const bool isAlternate = begins(alert.alternateButton, typed);
  if (isDefault == isAlternate) return std::nullopt;
  return isDefault ? AlertAnswer::defaultButton : AlertAnswer::alternateButton;
}

std::string promptOf(const Alert& alert) {
  return "[" + alert.defaultButton + "/" + alert.alternateButton + "] ";
}

}  // namespace

void TerminalAlerts::runStarted(std::function<void()> makeRoom) {
  runStarted_ = true;
  makeRoom_ = std::move(makeRoom);
}

AlertAnswer TerminalAlerts::runModal(const Alert& alert) {
  if (makeRoom_) makeRoom_();
  for (const std::string& part : {alert.title, alert.message}) {
    if (!part.empty()) output_.line(part);
  }
  const Alert drawn{alert.title, alert.message, alert.defaultButton.empty() ? "OK" : alert.defaultButton,
                    alert.alternateButton};
  const bool isQuestion = !drawn.alternateButton.empty();
  if (answering_ == Answering::person && !runStarted_) {
    if (isQuestion) return ask(drawn);
    waitForEnter();
  } else if (isQuestion) {
    output_.line(promptOf(drawn) + drawn.defaultButton);
  }
  return AlertAnswer::defaultButton;
}

AlertAnswer TerminalAlerts::ask(const Alert& alert) {
  while (true) {
    output_.write(promptOf(alert));
    const auto line = input_.readLine();
    if (!line) {
      output_.line("");
      return AlertAnswer::alternateButton;
    }
    if (const auto answer = answerOf(*line, alert)) return *answer;
    output_.line("Please type " + alert.defaultButton + " or " + alert.alternateButton + ".");
  }
}

void TerminalAlerts::waitForEnter() {
  output_.write("[Enter] ");
  if (input_.readLine()) return;
  output_.line("");
  throw NoticeLeft();
}

}  // namespace calvero
