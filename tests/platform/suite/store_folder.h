#pragma once

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/suite/sqlite_tag_store.h"
#include "ports/system_log.h"
#include "tests/scoped_folder.h"

namespace calvero::testing {

constexpr std::chrono::seconds kLong{30};
constexpr std::chrono::milliseconds kNoTime{0};
constexpr std::chrono::milliseconds kShort{20};  // for values that cannot be stored

/// Keeps what is logged. Any thread.
class RecordingLog : public SystemLog {
 public:
  void line(const std::string& text) override {
    const std::scoped_lock lock(mutex_);
    lines_.push_back(text);
  }
  void notice(const std::string& text) override { line(text); }

  [[nodiscard]] std::vector<std::string> lines() const {
    const std::scoped_lock lock(mutex_);
    return lines_;
  }
  [[nodiscard]] std::ptrdiff_t linesWith(const std::string& part) const {
    const auto all = lines();
    return std::ranges::count_if(all, [&](const auto& text) { return text.find(part) != std::string::npos; });
  }

 private:
  mutable std::mutex mutex_;
  std::vector<std::string> lines_;
};

inline std::string bytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void putBytes(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

inline std::set<std::string> namesIn(const std::string& folder) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.insert(entry.path().filename().string());
  return names;
}

inline void setTag(const std::string& path, const std::string& tag, const std::string& value) {
  RecordingLog log;
  SqliteTagStore(path, log).setValue(tag, value);
}

inline std::optional<std::string> tagIn(const std::string& path, const std::string& tag) {
  RecordingLog log;
  return SqliteTagStore(path, log).value(tag);
}

/// What another program does with the file.
inline void runSql(const std::string& path, const std::string& sql) {
  constexpr int kTimeoutMs = 5000;
  SQLite::Database(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, kTimeoutMs).exec(sql);
}

inline std::string sqlText(const std::string& path, const std::string& query) {
  SQLite::Database database(path, SQLite::OPEN_READONLY);
  return database.execAndGet(query).getString();
}

/// Another program that keeps everybody else from writing.
class WriteLock {
 public:
  explicit WriteLock(const std::string& path) : database_(path, SQLite::OPEN_READWRITE) {
    database_.exec("BEGIN IMMEDIATE");
  }

 private:
  SQLite::Database database_;
};

class StoreFolder : public ::testing::Test {
 protected:
  [[nodiscard]] const std::string& folder() const { return folder_.path(); }
  [[nodiscard]] std::string path() const { return folder() + "/tags.sqlite"; }

  const ScopedFolder folder_;
  RecordingLog log_;
};

}  // namespace calvero::testing
