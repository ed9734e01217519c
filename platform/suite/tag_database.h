#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace calvero {

constexpr std::size_t kMaxTagBytes = 4096;
constexpr std::size_t kMaxValueBytes = 65'536;

struct TagValue {
  std::string tag;
  std::string value;
};

enum class StoreState {
  fine,
  absent,     ///< nothing is there, or an empty file
  busy,       ///< another program keeps it locked
  unusable,   ///< cannot be opened, read or written at the moment: no permission, no space
  leftAlone,  ///< what is there is no tag store, or a damaged one
  changed,    ///< a tag no longer reads as its writer took it to; nothing is stored
};

struct StoreOutcome {
  StoreState state = StoreState::fine;
  std::string detail;  ///< what is wrong; empty when fine or absent
};

struct TagReading {
  StoreOutcome outcome;
  std::optional<std::string> value;
};

/// Reads one value of the store at the absolute path `path`. Makes no store. Falls back to reading without any lock
/// where a folder or a full disk does not let the companion files of a store be made. Any thread; waits for a lock of
/// other programs for two seconds at most.
TagReading readTag(const std::string& path, const std::string& tag);

/// Stores all of `tags` or none, in a store that it makes where there is none. Never changes a store that is left
/// alone, nor one in which a tag of `expected` reads otherwise by now; there an empty value stands for an absent one
/// too. Nobody writes between that look and the change. Any thread; waits for a lock of other programs for half a
/// second at most.
StoreOutcome writeTags(const std::string& path, const std::vector<TagValue>& tags,
                       const std::vector<TagValue>& expected = {});

}  // namespace calvero
