#include "platform/suite/sqlite_tag_store.h"

#include <pthread.h>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/threads/stop_signals_blocked.h"
#include "ports/system_log.h"

namespace calvero {

namespace {

constexpr std::chrono::milliseconds kRetryPause{500};
constexpr int kAttemptsWorthALine = 5;  // among several programs a lock is in the way every now and then

constexpr const char* kUnreadable = "cannot be read";
constexpr const char* kUnwritable = "cannot be written yet";
constexpr const char* kLeftAlone = "is left alone and holds no tags";

bool isStorable(const std::string& text, std::size_t maxBytes) {
  return text.size() <= maxBytes && text.find('\0') == std::string::npos;
}

/// Later changes of the working directory must not lead to another store.
std::string absolutePath(const std::string& path) {
  std::error_code unknown;
  const std::filesystem::path absolute = std::filesystem::absolute(path, unknown);
  return unknown ? std::string() : absolute.string();
}

}  // namespace

SqliteTagStore::SqliteTagStore(const std::string& path, SystemLog& log, std::chrono::milliseconds longestWait)
    : path_(absolutePath(path)), log_(log), longestWait_(longestWait) {}

SqliteTagStore::~SqliteTagStore() {
  if (writer_.joinable()) {
    writer_.request_stop();
    writer_.join();
  }
  for (const Pending& left : pending_) log_.line("tag " + left.entry.tag + " could not be stored before the end");
}

std::optional<std::string> SqliteTagStore::value(const std::string& tag) {
  if (!isStorable(tag, kMaxTagBytes)) return std::nullopt;
  if (auto pending = pendingValue(tag)) return pending;
  TagReading reading = readTag(path_, tag);
  if (reading.outcome.state == StoreState::leftAlone) {
    reportOnce(kLeftAlone, reading.outcome.detail);
  } else if (!reading.outcome.detail.empty()) {
    reportOnce(kUnreadable, reading.outcome.detail);
  }
  return std::move(reading.value);
}

std::optional<std::string> SqliteTagStore::pendingValue(const std::string& tag) {
  const std::scoped_lock lock(mutex_);
  const auto found = std::ranges::find_if(pending_, [&](const Pending& pending) { return pending.entry.tag == tag; });
  return found == pending_.end() ? std::nullopt : std::optional(found->entry.value);
}

void SqliteTagStore::setValue(const std::string& tag, const std::string& value) {
  if (!isStorable(tag, kMaxTagBytes) || !isStorable(value, kMaxValueBytes)) {
    log_.line("a tag is not stored: a text of " + std::to_string(tag.size()) + " with a value of " +
              std::to_string(value.size()) + " bytes is too long or holds a NUL");
    return;
  }
  const Ticket ticket = enqueue(tag, value);
  std::unique_lock lock(mutex_);
  changed_.wait_for(lock, longestWait_, [&] { return lastSettled_ >= ticket; });
}

SqliteTagStore::Ticket SqliteTagStore::enqueue(const std::string& tag, const std::string& value) {
  const std::scoped_lock lock(mutex_);
  std::erase_if(pending_, [&](const Pending& earlier) { return earlier.entry.tag == tag; });
  pending_.push_back({.entry = {tag, value}, .ticket = ++lastGiven_});
  startWriter();
  changed_.notify_all();
  return lastGiven_;
}

void SqliteTagStore::startWriter() {
  if (writer_.joinable()) return;
  try {
    const StopSignalsBlocked blocked;
    writer_ = std::jthread([this](const std::stop_token& stop) { write(stop); });
  } catch (const std::system_error& failure) {
    log_.line(std::string("tags cannot be stored yet: ") + failure.what());  // the next one that is set tries again
  }
}

void SqliteTagStore::write(const std::stop_token& stop) {
  ::pthread_setname_np(::pthread_self(), "calvero-tags");
  std::unique_lock lock(mutex_);
  while (changed_.wait(lock, stop, [this] { return !pending_.empty(); }) && !stop.stop_requested()) {
    std::vector<TagValue> batch;
    for (const Pending& pending : pending_) batch.push_back(pending.entry);
    const Ticket last = lastGiven_;
    lock.unlock();
    const bool done = storeOrDrop(batch);
    lock.lock();
    if (done) {
      settle(last);
    } else {
      changed_.wait_for(lock, stop, kRetryPause, [&] { return lastGiven_ != last; });
    }
  }
}

/// False when it has to be tried again.
bool SqliteTagStore::storeOrDrop(const std::vector<TagValue>& batch) {
  const StoreOutcome outcome = writeTags(path_, batch);
  lockedAttempts_ = outcome.state == StoreState::busy ? lockedAttempts_ + 1 : 0;
  if (outcome.state == StoreState::fine) return true;
  if (outcome.state == StoreState::leftAlone) {
    reportOnce(kLeftAlone, outcome.detail);
    for (const TagValue& entry : batch) log_.line("tag " + entry.tag + " is not stored");
    return true;
  }
  if (lockedAttempts_ == 0 || lockedAttempts_ >= kAttemptsWorthALine) reportOnce(kUnwritable, outcome.detail);
  return false;
}

void SqliteTagStore::settle(Ticket last) {
  std::erase_if(pending_, [&](const Pending& pending) { return pending.ticket <= last; });
  lastSettled_ = last;
  changed_.notify_all();
}

bool SqliteTagStore::waitUntilStored(std::chrono::milliseconds limit) {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, limit, [this] { return pending_.empty(); });
}

void SqliteTagStore::reportOnce(const std::string& trouble, const std::string& detail) {
  {
    const std::scoped_lock lock(mutex_);
    if (!reported_.insert(trouble).second) return;
  }
  log_.line("the tag store " + path_ + ' ' + trouble + ": " + detail);
}

}  // namespace calvero
