#pragma once

#include <chrono>
#include <string>

namespace calvero {

/// Who may carry out the order of a tag store, or change it: one process at a time. The claim is a lock on a file
/// beside the store, which the kernel drops with the process. Not thread-safe.
class OrderClaim {
 public:
  enum class Holder { us, another, nobody };

  /// How a program that is started for an order learns of the claim that it inherits: the number of its descriptor.
  static constexpr const char* kInheritedVariable = "CALVERO_ORDER_CLAIM";

  /// Touches nothing yet.
  explicit OrderClaim(std::string tagStorePath);
  OrderClaim(const OrderClaim&) = delete;
  OrderClaim& operator=(const OrderClaim&) = delete;
  /// Lets go of it; a program that has inherited it keeps it.
  ~OrderClaim();

  /// Takes the claim that whoever started this process has handed over, if it is one of this store; no child of this
  /// process inherits it. Before there are other threads.
  void inherit();

  /// Takes the claim, and waits for another process that holds it for `timeout` at most. Makes the file where there is
  /// none. `nobody` when that is not possible: nothing keeps others out then. Once taken, it stays ours.
  Holder take(std::chrono::milliseconds timeout);

  /// Whether another process holds it now. Makes nothing, and is in nobody's way.
  [[nodiscard]] bool isHeldByAnother() const;

  /// Ends the claim, also for a thread that hangs in the kernel and would keep the file open.
  void giveUp();
  /// Closes the file. What was started with the descriptor keeps the claim.
  void handOver();

  /// To be inherited by a program that is started; negative where the claim is not ours.
  [[nodiscard]] int descriptor() const { return descriptor_; }

 private:
  [[nodiscard]] std::string path() const;

  const std::string tagStorePath_;
  int descriptor_ = -1;
};

}  // namespace calvero
