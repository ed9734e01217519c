#include "terminal/commands/methods_command.h"

#include <unistd.h>

#include <nlohmann/json.hpp>

#include "terminal/commands/command_list.h"
#include "terminal/json_text.h"
#include "terminal/output.h"
#include "terminal/table.h"
#include "terminal/text.h"
#include "terminal/volume_choice.h"

namespace calvero {
namespace {

const char* nameOf(Pattern pattern) {
  switch (pattern) {
    case Pattern::zeros:
      return "0x00";
    case Pattern::x55:
      return "0x55";
    case Pattern::x56:
      return "0x56";
    case Pattern::xAA:
      return "0xAA";
    case Pattern::xFF:
      return "0xFF";
    case Pattern::random:
      return "random";
    case Pattern::none:
      break;
  }
  return "nothing";
}

using Sequence = std::vector<std::string>;

/// Passes from `start` on that repeat what stands `distance` passes before them, the first `distance` included.
std::size_t repeatedFrom(const Sequence& sequence, std::size_t start, std::size_t distance) {
  std::size_t end = start + distance;
  if (end > sequence.size()) return 0;
  while (end < sequence.size() && sequence[end] == sequence[end - distance]) ++end;
  return end - start;
}

std::vector<Column> shortColumns() {
  return {{"No.", Align::right}, {"Word"}, {"Passes", Align::right}, {"Method"}};
}

std::vector<std::string> shortRow(const EraseMethod& method) {
  return {std::to_string(method.number + 1), method.word, std::to_string(method.passes),
          withSingleBlanks(method.labelKey)};
}

}  // namespace

std::optional<std::int32_t> methodNamed(const std::string& text, MethodCatalogue methods) {
  if (const auto number = numberUpTo(methods.size(), text)) return static_cast<std::int32_t>(*number) - 1;
  for (const EraseMethod& method : methods) {
    if (equalIgnoringCase(method.word, text)) return method.number;
  }
  return std::nullopt;
}

std::string validMethods(MethodCatalogue methods) {
  std::string words;
  for (const EraseMethod& method : methods) {
    words += (words.empty() ? "" : ", ") + std::to_string(method.number + 1) + " (" + method.word + ")";
  }
  return words;
}

std::vector<std::string> writtenSequence(const EraseMethod& method) {
  Sequence sequence;
  for (std::int32_t pass = 0; pass < method.passes; ++pass) sequence.emplace_back(nameOf(method.plan(pass)));
  return sequence;
}

std::string shortened(const std::vector<std::string>& sequence) {
  constexpr std::size_t kLeastInTurn = 4;
  std::string text;
  for (std::size_t at = 0; at < sequence.size();) {
    const std::size_t same = repeatedFrom(sequence, at, 1);
    const std::size_t inTurn = same > 1 ? 0 : repeatedFrom(sequence, at, 2);
    if (!text.empty()) text += ", ";
    text += sequence[at];
    if (inTurn >= kLeastInTurn) text += "/" + sequence[at + 1] + " in turn";
    const std::size_t drawnTogether = inTurn >= kLeastInTurn ? inTurn : same;
    if (drawnTogether > 1) text += " x" + std::to_string(drawnTogether);
    at += drawnTogether;
  }
  return text.empty() ? "nothing" : text;
}

std::string methodsTable(MethodCatalogue methods) {
  std::vector<std::vector<std::string>> rows;
  for (const EraseMethod& method : methods) {
    rows.push_back(shortRow(method));
    rows.back().push_back(shortened(writtenSequence(method)));
  }
  std::vector<Column> columns = shortColumns();
  columns.push_back({"Writes"});
  return table(columns, rows);
}

std::string shortMethodsTable(MethodCatalogue methods) {
  std::vector<std::vector<std::string>> rows;
  std::string warnings;
  for (const EraseMethod& method : methods) {
    rows.push_back(shortRow(method));
    if (method.passes != 0) continue;
    warnings += "Method " + std::to_string(method.number + 1) + " writes nothing: what was deleted stays readable.\n";
  }
  return table(shortColumns(), rows) + warnings;
}

std::string methodsJson(MethodCatalogue methods) {
  auto list = nlohmann::ordered_json::array();
  for (const EraseMethod& method : methods) {
    list.push_back({{"number", method.number + 1},
                    {"word", method.word},
                    {"label", method.labelKey},
                    {"passes", method.passes},
                    {"sequence", writtenSequence(method)}});
  }
  return jsonText(list);
}

ExitCode methodsCommand(const ListRequest& request) {
  Output(STDOUT_FILENO).write(request.json ? methodsJson(kMethodCatalogue) + '\n' : methodsTable(kMethodCatalogue));
  return ExitCode::finished;
}

}  // namespace calvero
