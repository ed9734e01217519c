#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/exit_code.h"
#include "terminal/commands/order_tags.h"

namespace calvero {

/// What the tag store holds of an order. A text that is absent is empty.
struct PendingOrder {
  std::string online;  ///< see `isPending`
  std::string volume;
  std::string method;  ///< as it was ordered; see `orderedMethod`
  std::string status;
  std::string cancel;
  std::string result;      ///< what became of the run beyond its status; see remote/order_result.h
  std::string named;       ///< what `volume` was when the next two were stored
  std::string mountPath;   ///< see `isPinned`
  std::string volumeUuid;  ///< likewise

  /// Whether the order says more of its volume than the name.
  [[nodiscard]] bool isPinned() const { return exists() && named == volume; }
  [[nodiscard]] bool isPending() const;
  [[nodiscard]] bool exists() const { return isPending() || !volume.empty(); }
  /// A run has reported its end. Says nothing for an order whose writer left an old status in the store.
  [[nodiscard]] bool hasEnded() const { return !status.empty(); }
};

/// How a command ends: a line for standard output, or for standard error where the exit code is not `finished`.
struct Answer {
  ExitCode exitCode = ExitCode::finished;
  std::string line;
};

/// Whether a run of the order, or another one on its volume, is under way.
using RunLookup = std::function<bool(const PendingOrder& order)>;

/// Throws TagStoreFailure.
PendingOrder readPendingOrder(OrderTags& tags);

/// What a command makes of an order: its answer, and the tags to store for it, if any.
struct OrderChange {
  Answer answer;
  std::vector<TagValue> tags;
};

/// Has `decide` look at the order and stores the tags that it returns. When another program changes the order between
/// the two, nothing is stored and it is decided anew: of several commands at the same moment each sees what the one
/// before has stored. Throws TagStoreFailure.
Answer changeOrder(OrderTags& tags, const std::function<OrderChange(const PendingOrder& order)>& decide);

/// The method (0 to 8) that a run of the order uses: the default one where none is named.
std::int32_t orderedMethod(const PendingOrder& order);

/// "method 3 (dod)"
std::string numberAndWord(std::int32_t method);

/// Prints the line where it belongs and returns the exit code.
ExitCode give(const Answer& answer);

}  // namespace calvero
