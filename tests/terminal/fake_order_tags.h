#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "remote/remote_order.h"
#include "terminal/commands/order_command_pending.h"
#include "terminal/commands/order_tags.h"
#include "terminal/commands/window_program.h"
#include "tests/fakes/fake_tag_store.h"
#include "tests/terminal/order_testing.h"

namespace calvero::testing {

/// The tags of an order in a FakeTagStore; what is stored as one is one entry of the journal.
class FakeOrderTags : public OrderTags {
 public:
  explicit FakeOrderTags(Journal& journal) : journal_(journal), store_(unseen_) {}

  void put(const std::string& tag, const std::string& value) { store_.put(tag, value); }
  void putOrder(const std::string& volume, const std::string& method) {
    put(kTagDrive, volume);
    put(kTagAlgo, method);
    put(kTagOnline, "1");
  }
  [[nodiscard]] std::string peek(const std::string& tag) const { return store_.peek(tag).value_or(""); }
  void setReadable(bool isReadable) { isReadable_ = isReadable; }
  void setWritable(bool isWritable) { isWritable_ = isWritable; }

  std::string value(const std::string& tag) override {
    if (!isReadable_) throw TagStoreFailure("unreadable");
    return store_.value(tag).value_or("");
  }
  /// What another program does just before the next change is stored.
  void beforeStore(std::function<void()> action) { beforeStore_ = std::move(action); }
  [[nodiscard]] bool store(const std::vector<TagValue>& tags, const std::vector<TagValue>& expected) override {
    if (!isWritable_) throw TagStoreFailure("unwritable");
    if (beforeStore_) std::exchange(beforeStore_, {})();
    if (std::ranges::any_of(expected, [this](const TagValue& one) { return peek(one.tag) != one.value; })) return false;
    std::string entry = "store";
    for (const TagValue& one : tags) {
      entry += ' ' + one.tag + '=' + one.value;
      store_.setValue(one.tag, one.value);
    }
    journal_.add(std::move(entry));
    return true;
  }

 private:
  Journal& journal_;
  Journal unseen_;
  FakeTagStore store_;
  bool isReadable_ = true;
  bool isWritable_ = true;
  std::function<void()> beforeStore_;
};

/// A program that ends when the test says so.
class FakeProgram : public StartedProgram {
 public:
  void end(int exitCode = 0) {
    ending_ = "exit code " + std::to_string(exitCode);
    exitCode_ = exitCode;
  }
  /// By a signal, or where nobody is told how.
  void endWithoutCode(const std::string& ending) { ending_ = ending; }

  bool hasEnded() override { return !ending_.empty(); }
  [[nodiscard]] std::string ending() const override { return ending_; }
  [[nodiscard]] std::optional<int> exitCode() const override { return exitCode_; }

 private:
  std::string ending_;
  std::optional<int> exitCode_;
};

/// Which volumes a run holds.
class FakeRuns {
 public:
  void begin(const std::string& volume) { held_.insert(volume); }
  void end(const std::string& volume) { held_.erase(volume); }
  /// A run of the order, wherever it is in its course.
  void claim() { isClaimed_ = true; }
  void giveUpClaim() { isClaimed_ = false; }
  [[nodiscard]] auto claimLookup() const {
    return [this] { return isClaimed_; };
  }
  [[nodiscard]] auto lookup() const {
    return [this](const PendingOrder& order) { return isClaimed_ || held_.contains(order.volume); };
  }

 private:
  std::set<std::string> held_;
  bool isClaimed_ = false;
};

}  // namespace calvero::testing
