#include "terminal/commands/status_command.h"

#include <unistd.h>

#include "methods/method_catalogue.h"
#include "platform/suite/suite_folder.h"
#include "remote/order_result.h"
#include "remote/remote_order.h"
#include "terminal/commands/command_list.h"
#include "terminal/commands/command_runs.h"
#include "terminal/commands/command_words.h"
#include "terminal/json_text.h"
#include "terminal/text.h"

namespace calvero {
namespace {

std::string methodInWords(const PendingOrder& order) {
  const std::string method = numberAndWord(orderedMethod(order));
  return methodFromTag(order.method) ? method : method + ", since \"" + printable(order.method) + "\" names none";
}

/// One word for each status, for other programs.
std::string statusWord(const std::string& status) {
  if (status.empty()) return "none";
  if (status == kStatusFinished) return "finished";
  return status == kStatusFailed ? "failed" : "unknown";
}

std::string failureInWords(const PendingOrder& order, const OrderResult& result) {
  if (result.outcome == RunOutcome::cancelled) return "the run was cancelled";
  const std::string cause = causeText(result.cause, printable(order.volume));
  return cause.empty() ? "the volume is missing or vanished" : cause;
}

std::string statusInWords(const PendingOrder& order) {
  const std::string& status = order.status;
  const auto result = resultOfStatus(order.result, status);
  if (status.empty()) return "none yet";
  if (result && status == kStatusFailed) return "3, not finished: " + failureInWords(order, *result);
  if (result && result->grade == RunGrade::partial) {
    return "2, finished in part: " + overwrittenText(result->account) + " of free space erased" + kMayRemain;
  }
  if (result && result->grade == RunGrade::nothing) return std::string("2, finished. ") + kNothingOverwritten;
  if (status == kStatusFinished) return "2, finished";
  if (status == kStatusFailed) return "3, not finished: the volume is missing or vanished, or the run was cancelled";
  return "unknown: \"" + printable(status) + "\"";
}

}  // namespace

std::string statusText(const PendingOrder& order, RunState run) {
  std::string text = "Order:  ";
  if (order.exists()) {
    text += "\"" + printable(order.volume) + "\" with " + methodInWords(order) +
            (order.isPending() ? ", pending" : ", not pending") + '\n';
  } else {
    text += "none\n";
  }
  if (order.isPinned()) {
    if (!order.mountPath.empty()) text += "Place:  " + printable(order.mountPath) + '\n';
    if (!order.volumeUuid.empty()) text += "UUID:   " + printable(order.volumeUuid) + '\n';
  }
  text += std::string("Run:    ") + (run == RunState::underWay ? "under way" : "none") + '\n';
  if (order.cancel == "1") text += "Cancel: asked for\n";
  return text + "Status: " + (order.exists() || order.hasEnded() ? statusInWords(order) : "none") + '\n';
}

std::string statusJson(const PendingOrder& order, RunState run) {
  nlohmann::ordered_json json{{"pending", order.isPending()}};
  json["volume"] = order.exists() ? nlohmann::ordered_json(order.volume) : nullptr;
  json["method"] = order.exists() ? nlohmann::ordered_json(orderedMethod(order) + 1) : nullptr;
  const auto pinned = [&order](const std::string& text) {
    return order.isPinned() && !text.empty() ? nlohmann::ordered_json(text) : nullptr;
  };
  json["mountPath"] = pinned(order.mountPath);
  json["volumeUuid"] = pinned(order.volumeUuid);
  json["running"] = run == RunState::underWay;
  json["cancelAsked"] = order.cancel == "1";
  const std::string word = statusWord(order.status);
  const bool isKnown = order.status == kStatusFinished || order.status == kStatusFailed;
  json["status"] = isKnown ? nlohmann::ordered_json(std::stoi(order.status)) : nullptr;
  json["outcome"] = word;
  const auto result = resultOfStatus(order.result, order.status);
  const bool isFinished = result && result->outcome == RunOutcome::finished;
  json["grade"] = isFinished ? nlohmann::ordered_json(wordOf(result->grade)) : nullptr;
  json["bytesOverwritten"] = result ? nlohmann::ordered_json(result->account.overwritten()) : nullptr;
  json["shortBy"] = result ? nlohmann::ordered_json(result->account.shortBy()) : nullptr;
  return jsonText(json);
}

ExitCode statusCommand(const ListRequest& request) {
  StoredOrderTags tags(tagStorePath());
  const PendingOrder order = readPendingOrder(tags);
  const RunState run = OrderRuns().isUnderWay(order) ? RunState::underWay : RunState::none;
  const Output output(STDOUT_FILENO);
  if (request.json) {
    output.line(statusJson(order, run));
  } else {
    output.write(statusText(order, run));
  }
  return ExitCode::finished;
}

}  // namespace calvero
