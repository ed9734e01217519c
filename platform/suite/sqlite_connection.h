#pragma once

#include <SQLiteCpp/Database.h>

#include <chrono>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace calvero {

/// "OMTS": what tells a tag store from other databases.
constexpr std::uint32_t kApplicationId = 0x4F4D5453;
/// Raised when the table can no longer be used as before.
constexpr std::uint32_t kLayoutVersion = 1;

constexpr std::chrono::milliseconds kReadTimeout{2000};
constexpr std::chrono::milliseconds kWriteTimeout{500};

/// What is at the store's place is no tag store, or a damaged one.
class NoTagStore : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class Access {
  readWrite,
  readOnly,
  unlocked,  ///< without companion files; right only for as long as nobody writes
};

/// Whether the file alone tells everything: nothing waits in a journal beside it.
bool isComplete(const std::string& path);

/// Opens an existing file whose header is that of a tag store, or that is empty, and beside which stand only plain
/// files of its user, this one or root. Nothing else is touched. Throws NoTagStore or SQLite::Exception.
SQLite::Database openConnection(const std::string& path, Access access, std::chrono::milliseconds timeout);

enum class Content { none, tags };

/// Looks into the whole store, within a transaction that the caller began. Throws NoTagStore or SQLite::Exception.
Content verifiedContent(SQLite::Database& database);

}  // namespace calvero
