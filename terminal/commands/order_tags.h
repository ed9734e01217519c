#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "platform/suite/tag_database.h"

namespace calvero {

/// The tag store could not be read or written; the text is a line for a person.
class TagStoreFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The suite's tags as whoever orders a run needs them: a failure is told, and what belongs together is stored as one.
class OrderTags {
 public:
  virtual ~OrderTags() = default;

  /// Empty when the tag is absent. Throws TagStoreFailure.
  virtual std::string value(const std::string& tag) = 0;
  /// Stores all of `tags` or none. False, with nothing stored, when one of `expected` reads otherwise by now. Throws
  /// TagStoreFailure.
  [[nodiscard]] virtual bool store(const std::vector<TagValue>& tags, const std::vector<TagValue>& expected) = 0;
};

/// The tags in the store's file. Reading makes no file; another program's lock is waited for, for seconds at most.
class StoredOrderTags : public OrderTags {
 public:
  explicit StoredOrderTags(const std::string& path);

  std::string value(const std::string& tag) override;
  [[nodiscard]] bool store(const std::vector<TagValue>& tags, const std::vector<TagValue>& expected) override;

 private:
  [[nodiscard]] TagStoreFailure failure(const StoreOutcome& outcome) const;

  const std::string path_;
};

}  // namespace calvero
