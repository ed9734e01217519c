#pragma once

#include <functional>
#include <string>

#include "ports/alerts.h"

namespace calvero {

class LineInput;
class Output;

/// Thrown out of a notice that waits for Enter when a signal or the end of input comes instead: nobody is there to say
/// whether to go on, and a notice has no button that would mean no. Only before a run has started.
struct NoticeLeft {};

/// Who presses the buttons.
enum class Answering {
  person,          ///< at the terminal
  defaultButtons,  ///< nobody: every question gets its default button
};

/// Alerts as prompts. Two buttons ask for one of their texts, or its beginning; Enter alone chooses none of them.
class TerminalAlerts : public Alerts {
 public:
  TerminalAlerts(const Output& output, LineInput& input, Answering answering)
      : output_(output), input_(input), answering_(answering) {}

  AlertAnswer runModal(const Alert& alert) override;

  /// From now on no alert waits. `makeRoom` is called before each, to end a line of progress.
  void runStarted(std::function<void()> makeRoom);

 private:
  [[nodiscard]] AlertAnswer ask(const Alert& alert);
  void waitForEnter();

  const Output& output_;
  LineInput& input_;
  const Answering answering_;
  bool runStarted_ = false;
  std::function<void()> makeRoom_;
};

}  // namespace calvero
