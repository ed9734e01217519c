#include "terminal/commands/order_tags.h"

#include <chrono>
#include <filesystem>
#include <system_error>

#include "terminal/text.h"

namespace calvero {
namespace {

constexpr std::chrono::seconds kOtherWritersTimeout{5};

std::string absoluteStorePath(const std::string& path) {
  std::error_code unknown;
  const auto absolute = path.empty() ? std::filesystem::path() : std::filesystem::absolute(path, unknown);
  return unknown ? std::string() : absolute.string();
}

}  // namespace

StoredOrderTags::StoredOrderTags(const std::string& path) : path_(absoluteStorePath(path)) {}

std::string StoredOrderTags::value(const std::string& tag) {
  const TagReading reading = readTag(path_, tag);
  const StoreState state = reading.outcome.state;
  if (state != StoreState::fine && state != StoreState::absent) throw failure(reading.outcome);
  return reading.value.value_or("");
}

bool StoredOrderTags::store(const std::vector<TagValue>& tags, const std::vector<TagValue>& expected) {
  const auto end = std::chrono::steady_clock::now() + kOtherWritersTimeout;
  StoreOutcome outcome;
  do {
    outcome = writeTags(path_, tags, expected);  // waits for a lock itself
  } while (outcome.state == StoreState::busy && std::chrono::steady_clock::now() < end);
  if (outcome.state == StoreState::changed) return false;
  if (outcome.state != StoreState::fine) throw failure(outcome);
  return true;
}

TagStoreFailure StoredOrderTags::failure(const StoreOutcome& outcome) const {
  const std::string place = path_.empty() ? "" : ' ' + printable(path_);
  const std::string why = outcome.state == StoreState::busy ? "another program keeps it locked" : outcome.detail;
  return TagStoreFailure("The tag store" + place + " cannot be used: " + printable(why));
}

}  // namespace calvero
