#pragma once

#include <functional>
#include <initializer_list>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace calvero::testing {

using Steps = std::vector<std::string>;

/// What the controller did to the outside, in order, whichever port it went through. Any thread.
class Journal {
 public:
  void add(const std::string& entry) {
    {
      const std::scoped_lock lock(mutex_);
      entries_.push_back(entry);
    }
    if (whenAdded_) whenAdded_(entry);
  }
  /// Runs at every call of a port, as it arrives, on the caller's thread. Set before other threads are there.
  void whenAdded(std::function<void(const std::string&)> hook) { whenAdded_ = std::move(hook); }

  [[nodiscard]] Steps all() const {
    const std::scoped_lock lock(mutex_);
    return entries_;
  }

  /// The entries that begin with one of `verbs`.
  [[nodiscard]] Steps only(std::initializer_list<const char*> verbs) const { return filtered(verbs, Keep::matching); }

  /// The entries that begin with none of `verbs`.
  [[nodiscard]] Steps without(std::initializer_list<const char*> verbs) const { return filtered(verbs, Keep::others); }

  void clear() {
    const std::scoped_lock lock(mutex_);
    entries_.clear();
  }

 private:
  enum class Keep { matching, others };

  [[nodiscard]] Steps filtered(std::initializer_list<const char*> verbs, Keep keep) const {
    Steps kept;
    for (const std::string& entry : all()) {
      bool matches = false;
      for (const char* verb : verbs) matches = matches || entry == verb || entry.starts_with(std::string(verb) + ' ');
      if (matches == (keep == Keep::matching)) kept.push_back(entry);
    }
    return kept;
  }

  std::function<void(const std::string&)> whenAdded_;
  mutable std::mutex mutex_;
  Steps entries_;
};

inline std::string quoted(const std::string& text) {
  return '"' + text + '"';
}

}  // namespace calvero::testing
