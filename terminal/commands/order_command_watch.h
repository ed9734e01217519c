#pragma once

#include <chrono>
#include <functional>

#include "terminal/commands/order_command_pending.h"
#include "terminal/commands/window_program.h"

namespace calvero {

/// How often a wait looks at the tags.
constexpr std::chrono::milliseconds kTagLookInterval{200};

/// Follows a run that was ordered, from the start of its program to its end.
class OrderWatch {
 public:
  /// `hasLeft`: whether the program has given up its claim to the order, as it does last of all. The kernel may keep a
  /// program that has left until a medium answers. Both objects must outlive the watch.
  OrderWatch(OrderTags& tags, StartedProgram& program, std::function<bool()> hasLeft)
      : tags_(tags), program_(program), hasLeft_(std::move(hasLeft)) {}

  /// Whether the run has ended, in one look. Throws TagStoreFailure only where nothing is left to wait for.
  bool hasEnded();

  /// Once it has ended: what became of it. `volume` is what a person reads of it.
  [[nodiscard]] Answer result(const std::string& volume, std::int32_t method) const;

 private:
  void readTags();
  [[nodiscard]] bool isCancelled() const;
  [[nodiscard]] Answer finished(const std::string& volume, std::int32_t method) const;

  OrderTags& tags_;
  StartedProgram& program_;
  const std::function<bool()> hasLeft_;
  std::string status_;
  std::string result_;
  bool isCancelAsked_ = false;
};

}  // namespace calvero
