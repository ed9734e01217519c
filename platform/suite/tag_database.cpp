#include "platform/suite/tag_database.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <algorithm>
#include <exception>
#include <utility>

#include "platform/suite/private_file.h"
#include "platform/suite/sqlite_connection.h"

namespace calvero {

namespace {

constexpr const char* kLayout =
    "PRAGMA application_id = 1330467923;"  // kApplicationId; a pragma takes no parameters
    "PRAGMA user_version = 1;"             // kLayoutVersion
    "CREATE TABLE tags (tag TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL) WITHOUT ROWID;";
constexpr const char* kWriteAheadLog = "PRAGMA journal_mode = WAL";

std::optional<std::string> storedValue(SQLite::Database& database, const std::string& tag) {
  SQLite::Statement query(database, "SELECT value FROM tags WHERE tag = ?");
  query.bind(1, tag);
  const int result = query.tryExecuteStep();
  if (result == SQLITE_DONE || result == SQLITE_TOOBIG) return std::nullopt;
  if (result != SQLITE_ROW) throw SQLite::Exception(database.getHandle(), result);
  const SQLite::Column column = query.getColumn(0);
  // A table that another program has made may hold numbers as such.
  if (column.isBlob() || column.isNull()) return std::nullopt;
  std::string value = column.getString();
  const bool isWithinBounds = value.size() <= kMaxValueBytes && value.find('\0') == std::string::npos;
  return isWithinBounds ? std::optional(std::move(value)) : std::nullopt;
}

bool readAs(SQLite::Database& database, const std::vector<TagValue>& expected) {
  return std::ranges::all_of(expected, [&database](const TagValue& entry) {
    return storedValue(database, entry.tag).value_or("") == entry.value;
  });
}

void storeValues(SQLite::Database& database, const std::vector<TagValue>& tags) {
  SQLite::Statement change(database,
                           "INSERT INTO tags (tag, value) VALUES (?, ?)"
                           " ON CONFLICT (tag) DO UPDATE SET value = excluded.value");
  for (const TagValue& entry : tags) {
    change.bind(1, entry.tag);
    change.bind(2, entry.value);
    change.exec();
    change.reset();
  }
}

/// A store that is not seen yet by anybody needs no journal that a crash could leave behind.
void layOutNewStore(const std::string& path) {
  SQLite::Database database(path, SQLite::OPEN_READWRITE);
  database.exec("PRAGMA journal_mode = MEMORY");
  SQLite::Transaction transaction(database);
  database.exec(kLayout);
  transaction.commit();
  database.exec(kWriteAheadLog);
}

StoreOutcome write(const std::string& path, const std::vector<TagValue>& tags, const std::vector<TagValue>& expected) {
  SQLite::Database database = openConnection(path, Access::readWrite, kWriteTimeout);
  SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
  if (verifiedContent(database) == Content::none) database.exec(kLayout);
  if (!readAs(database, expected)) return {StoreState::changed, "another program has changed it meanwhile"};
  storeValues(database, tags);
  transaction.commit();
  // Another program may have made the store without it. This needs the store for itself; the next write tries again.
  database.tryExec(kWriteAheadLog);
  return {};
}

TagReading read(const std::string& path, Access access, const std::string& tag) {
  SQLite::Database database = openConnection(path, access, kReadTimeout);
  const SQLite::Transaction snapshot(database);
  if (verifiedContent(database) == Content::none) return {.outcome = {StoreState::absent, {}}, .value = {}};
  return {.outcome = {}, .value = storedValue(database, tag)};
}

StoreState stateAfter(const SQLite::Exception& failure) {
  constexpr int kPrimaryCode = 0xFF;
  switch (failure.getErrorCode() & kPrimaryCode) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
      return StoreState::busy;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_ERROR:  // the statements are right, so the layout is not
      return StoreState::leftAlone;
    default:
      return StoreState::unusable;
  }
}

/// What became of `step`, which returns an outcome or throws.
template <typename Step>
StoreOutcome outcomeOf(Step step) {
  try {
    return step();
  } catch (const NoTagStore& refusal) {
    return {StoreState::leftAlone, refusal.what()};
  } catch (const SQLite::Exception& failure) {
    return {stateAfter(failure), failure.what()};
  } catch (const std::exception& failure) {
    return {StoreState::unusable, failure.what()};
  }
}

StoreOutcome outcomeAt(const std::string& path) {
  if (path.empty()) return {StoreState::leftAlone, "there is no folder for it"};
  switch (placeAt(path)) {
    case Place::nothing:
      return {StoreState::absent, {}};
    case Place::file:
      return {};
    case Place::somethingElse:
      return {StoreState::leftAlone, "not a file"};
    case Place::unknown:
      break;
  }
  return {StoreState::unusable, "not accessible"};
}

}  // namespace

TagReading readTag(const std::string& path, const std::string& tag) {
  TagReading reading{.outcome = outcomeAt(path), .value = {}};
  if (reading.outcome.state != StoreState::fine) return reading;
  const std::string file = withoutLinks(path);
  for (const Access access : {Access::readWrite, Access::readOnly, Access::unlocked}) {
    // An old value would be worse than none: it may be an order that was called off.
    if (access == Access::unlocked && !isComplete(file)) break;
    reading.outcome = outcomeOf([&] {
      TagReading read = calvero::read(file, access, tag);
      reading.value = std::move(read.value);
      return read.outcome;
    });
    if (reading.outcome.state != StoreState::unusable) break;
  }
  return reading;
}

StoreOutcome writeTags(const std::string& path, const std::vector<TagValue>& tags,
                       const std::vector<TagValue>& expected) {
  return outcomeOf([&] {
    StoreOutcome place = outcomeAt(path);
    if (place.state == StoreState::absent) {
      makePrivateFile(path, layOutNewStore);
    } else if (place.state != StoreState::fine) {
      return place;
    }
    return write(withoutLinks(path), tags, expected);
  });
}

}  // namespace calvero
