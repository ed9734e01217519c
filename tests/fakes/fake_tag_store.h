#pragma once

#include <map>
#include <mutex>
#include <optional>
#include <string>

#include "ports/tag_store.h"
#include "tests/fakes/journal.h"

namespace calvero::testing {

/// The suite's store in memory. Any thread.
class FakeTagStore : public TagStore {
 public:
  explicit FakeTagStore(Journal& journal) : journal_(journal) {}

  /// Stores without a trace in the journal, as another program would.
  void put(const std::string& tag, const std::string& value) {
    const std::scoped_lock lock(mutex_);
    values_[tag] = value;
  }
  [[nodiscard]] std::optional<std::string> peek(const std::string& tag) const {
    const std::scoped_lock lock(mutex_);
    const auto found = values_.find(tag);
    if (found == values_.end()) return std::nullopt;
    return found->second;
  }

  std::optional<std::string> value(const std::string& tag) override {
    journal_.add("readTag " + tag);
    return peek(tag);
  }

  void setValue(const std::string& tag, const std::string& value) override {
    journal_.add("setTag " + tag + ' ' + quoted(value));
    put(tag, value);
  }

 private:
  Journal& journal_;
  mutable std::mutex mutex_;
  std::map<std::string, std::string> values_;
};

}  // namespace calvero::testing
