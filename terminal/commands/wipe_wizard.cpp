#include "terminal/commands/wipe_wizard.h"

#include <string>

#include "terminal/commands/methods_command.h"
#include "terminal/commands/volumes_command.h"
#include "terminal/line_input.h"
#include "terminal/output.h"
#include "terminal/text.h"
#include "terminal/volume_choice.h"

namespace calvero {

std::optional<std::size_t> askForVolume(const Output& output, LineInput& input,
                                        const std::vector<MountedVolume>& volumes) {
  output.write(numberedVolumes(volumes));
  const std::string range = volumes.size() == 1 ? "1" : "1 to " + std::to_string(volumes.size());
  while (true) {
    output.write("Volume (" + range + "): ");
    const auto line = input.readLine();
    if (!line) break;
    if (const auto number = numberUpTo(volumes.size(), *line)) return *number - 1;
    output.line("Please type a number of the list.");
  }
  output.line("");
  return std::nullopt;
}

std::optional<std::int32_t> askForMethod(const Output& output, LineInput& input, MethodCatalogue methods) {
  constexpr std::int32_t kDefaultMethod = 0;
  output.write(shortMethodsTable(methods));
  while (true) {
    output.write("Method (number or word, Enter for 1): ");
    const auto line = input.readLine();
    if (!line) break;
    const std::string typed = withSingleBlanks(*line);
    if (typed.empty()) return kDefaultMethod;
    if (const auto method = methodNamed(typed, methods)) return method;
    output.line("Please type a number or a word of the list.");
  }
  output.line("");
  return std::nullopt;
}

}  // namespace calvero
