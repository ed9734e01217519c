#pragma once

#include <chrono>
#include <optional>

#include "platform/terminal/commands/order_command_pending.h"
#include "platform/terminal/commands/window_program.h"

namespace calvero {

/// How often a wait looks at the tags.
constexpr std::chrono::milliseconds kTagLookInterval{200};

/// Follows a run that was ordered, from the start of its program to its end.
class OrderWatch {
 public:
  /// Both must outlive the watch.
  OrderWatch(OrderTags& tags, StartedProgram& program) : tags_(tags), program_(program) {}

  /// Whether the run has ended, in one look. Throws TagStoreFailure only where nothing is left to wait for.
  bool hasEnded(std::chrono::steady_clock::duration now);

  /// Once it has ended: what became of it. `volume` is what a person reads of it.
  [[nodiscard]] Answer result(const std::string& volume, std::int32_t method) const;

 private:
  void readTags();

  OrderTags& tags_;
  StartedProgram& program_;
  std::string status_;
  bool isCancelled_ = false;
  std::optional<std::chrono::steady_clock::duration> statusSeenAt_;
};

}  // namespace calvero
