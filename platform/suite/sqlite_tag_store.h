#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

#include "platform/suite/tag_database.h"
#include "ports/tag_store.h"

namespace calvero {

class SystemLog;

/// The suite's tag store in a SQLite file, which is made by the first value that is set. No file stays open between
/// two calls. A store that cannot be read, is damaged or belongs to another program is logged once and holds no tags;
/// the latter two are never changed.
class SqliteTagStore : public TagStore {
 public:
  /// Touches nothing yet. `log` must outlive the store. `longestWait` bounds what `setValue` takes.
  SqliteTagStore(const std::string& path, SystemLog& log,
                 std::chrono::milliseconds longestWait = std::chrono::seconds(1));
  SqliteTagStore(const SqliteTagStore&) = delete;
  SqliteTagStore& operator=(const SqliteTagStore&) = delete;
  /// Waits for an attempt to store that is in progress, not for its success. What is still pending is logged.
  ~SqliteTagStore() override;

  std::optional<std::string> value(const std::string& tag) override;
  void setValue(const std::string& tag, const std::string& value) override;

  /// Waits until nothing that was set is pending; false when that takes longer than `limit`. For the program's end. Any
  /// thread.
  bool waitUntilStored(std::chrono::milliseconds limit);

 private:
  using Ticket = std::uint64_t;
  struct Pending {
    TagValue entry;
    Ticket ticket;
  };

  std::optional<std::string> pendingValue(const std::string& tag);
  Ticket enqueue(const std::string& tag, const std::string& value);
  void startWriter();
  void write(const std::stop_token& stop);
  bool storeOrDrop(const std::vector<TagValue>& batch);
  void settle(Ticket last);
  void reportOnce(const std::string& trouble, const std::string& detail);

  const std::string path_;
  SystemLog& log_;
  const std::chrono::milliseconds longestWait_;
  std::mutex mutex_;
  std::condition_variable_any changed_;
  // Guarded by the mutex:
  std::vector<Pending> pending_;  // the latest value of each tag, the tag that was set last at the end
  Ticket lastGiven_ = 0;
  Ticket lastSettled_ = 0;
  std::set<std::string> reported_;
  int lockedAttempts_ = 0;  // in a row; the writer's own
  std::jthread writer_;
};

}  // namespace calvero
