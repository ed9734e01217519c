// calvero-cli-scaled: the terminal program with filler files so small that every single call of a run can be made to
// fail in turn, and without the pauses that a person needs.

#include "terminal/command_line.h"

namespace {

constexpr calvero::RunScale kScale{.fillerBytes = 100'000,
                                   .pauseBeforeStart = std::chrono::seconds::zero(),
                                   .pauseAfterLayout = std::chrono::seconds::zero()};

}  // namespace

int main(int argumentCount, char** arguments) {
  return calvero::runCommandLine(argumentCount, arguments, kScale);
}
