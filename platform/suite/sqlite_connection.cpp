#include "platform/suite/sqlite_connection.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string_view>

#include "platform/suite/private_file.h"

namespace calvero {

namespace {

constexpr const char* kForeign = "a database of another kind";
constexpr const char* kNoDatabase = "not a database";
constexpr int kMaxRowBytes = 1 << 18;  // ours are smaller; a huge one is not worth its memory

/// The first bytes of a database file, as its format lays them down.
class Header {
 public:
  static constexpr std::string_view kMagic{"SQLite format 3\0", 16};
  static constexpr std::uint32_t kUtf8 = 1;

  explicit Header(sqlite3_file* file) : result_(file->pMethods->xRead(file, bytes_.data(), kBytes, 0)) {}

  /// What reading gave; a file that is too short counts as filled up with zeros.
  [[nodiscard]] int result() const { return result_ == SQLITE_IOERR_SHORT_READ ? SQLITE_OK : result_; }
  [[nodiscard]] bool hasMagic() const { return std::string_view(bytes_.data(), bytes_.size()).starts_with(kMagic); }
  /// 65536 does not fit and is written as 1.
  [[nodiscard]] std::uint64_t pageBytes() const { return number(16, 2) == 1 ? 65'536 : number(16, 2); }
  [[nodiscard]] std::uint32_t encoding() const { return number(56, 4); }
  [[nodiscard]] std::uint32_t applicationId() const { return number(68, 4); }
  [[nodiscard]] bool hasNoTables() const { return number(103, 2) == 0; }

 private:
  static constexpr int kBytes = 112;

  [[nodiscard]] std::uint32_t number(std::size_t position, std::size_t width) const {
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < width; ++index) {
      value = value << 8U | static_cast<unsigned char>(bytes_.at(position + index));
    }
    return value;
  }

  std::array<char, kBytes> bytes_ = {};
  int result_;
};

bool isCutOff(const std::string& path, const Header& header) {
  // A write that was interrupted is completed from its journal.
  return header.pageBytes() == 0 || (isComplete(path) && fileBytes(path) % header.pageBytes() != 0);
}

/// SQLite opens what it finds beside a store: a pipe would hold it up for ever, a link or another user's journal would
/// have it write into other files or put foreign tags into the store.
void checkCompanion(const std::string& store, const char* ending) {
  struct stat about {};
  const std::string path = store + ending;
  if (::lstat(path.c_str(), &about) != 0) {
    if (errno == ENOENT) return;
    throw NoTagStore(path + " beside it cannot be looked at");
  }
  if (!S_ISREG(about.st_mode)) throw NoTagStore(path + " beside it is not a file; remove it");
  struct stat owned {};
  const bool isOfStore = ::stat(store.c_str(), &owned) == 0 && about.st_uid == owned.st_uid;
  constexpr uid_t kRoot = 0;
  if (!isOfStore && about.st_uid != ::geteuid() && about.st_uid != kRoot) {
    throw NoTagStore(path + " beside it is another user's; remove it");
  }
}

/// Reads through the connection's own descriptor: closing any other one would drop the locks that this process holds
/// on the file.
void checkHeader(const SQLite::Database& database, const std::string& path) {
  if (fileBytes(path) == 0) return;
  sqlite3_file* file = nullptr;
  database.check(::sqlite3_file_control(database.getHandle(), "main", SQLITE_FCNTL_FILE_POINTER, &file));
  const Header header(file);
  database.check(header.result());
  if (!header.hasMagic()) throw NoTagStore(kNoDatabase);
  if (isCutOff(path, header)) throw NoTagStore("its end is missing");
  const bool isOurs = header.applicationId() == kApplicationId && header.encoding() == Header::kUtf8;
  // One that is just being made by another program may have its first page still without, and its tables in the log.
  const bool isUndecided = header.applicationId() == 0 && header.hasNoTables();
  if (!isOurs && !isUndecided) throw NoTagStore(kForeign);
}

enum class LogAtTheEnd { moved, left };

/// Whether closing the last connection moves what is in the write-ahead log into the file.
void setLogAtTheEnd(const SQLite::Database& database, LogAtTheEnd choice) {
  const int noCheckpoint = choice == LogAtTheEnd::left ? 1 : 0;
  ::sqlite3_db_config(database.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, noCheckpoint, nullptr);
}

std::string uriOf(const std::string& path) {
  constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string uri = "file:";
  for (const char letter : path) {
    const auto byte = static_cast<unsigned char>(letter);
    if (kPlain.find(letter) != std::string_view::npos) {
      uri += letter;
    } else {
      uri += {'%', kDigits[byte >> 4U], kDigits[byte & 0x0FU]};
    }
  }
  return uri;
}

SQLite::Database opened(const std::string& path, Access access, int timeoutMs) {
  if (access == Access::readWrite) return {path, SQLite::OPEN_READWRITE, timeoutMs};
  if (access == Access::readOnly) return {path, SQLite::OPEN_READONLY, timeoutMs};
  return {uriOf(path) + "?immutable=1", SQLite::OPEN_READONLY | SQLite::OPEN_URI, timeoutMs};
}

}  // namespace

bool isComplete(const std::string& path) {
  return fileBytes(path + "-wal") == 0 && fileBytes(path + "-journal") == 0;
}

SQLite::Database openConnection(const std::string& path, Access access, std::chrono::milliseconds timeout) {
  for (const char* ending : {"-journal", "-wal", "-shm"}) checkCompanion(path, ending);
  SQLite::Database database = opened(path, access, static_cast<int>(timeout.count()));
  ::sqlite3_limit(database.getHandle(), SQLITE_LIMIT_LENGTH, kMaxRowBytes);
  checkHeader(database, path);
  if (fileBytes(path + "-wal") > 0) setLogAtTheEnd(database, LogAtTheEnd::left);
  return database;
}

Content verifiedContent(SQLite::Database& database) {
  const auto applicationId = static_cast<std::uint32_t>(database.execAndGet("PRAGMA application_id").getInt());
  const auto version = static_cast<std::uint32_t>(database.execAndGet("PRAGMA user_version").getInt());
  const int entries = database.execAndGet("SELECT count(*) FROM sqlite_schema").getInt();
  const bool isEmpty = applicationId == 0 && version == 0 && entries == 0;
  if (applicationId != kApplicationId && !isEmpty) throw NoTagStore(kForeign);
  // Views, triggers and virtual tables have no pages of their own: they run what somebody else wrote, maybe without
  // end.
  const int programs =
      database.execAndGet("SELECT count(*) FROM sqlite_schema WHERE coalesce(rootpage, 0) < 1").getInt();
  const bool isKnown = version == kLayoutVersion && programs == 0;
  if (applicationId == kApplicationId && !isKnown) throw NoTagStore("its layout is not known");
  const std::string finding = database.execAndGet("PRAGMA quick_check(1)").getString();
  if (finding != "ok") throw NoTagStore(finding);
  setLogAtTheEnd(database, LogAtTheEnd::moved);
  return entries == 0 ? Content::none : Content::tags;
}

}  // namespace calvero
