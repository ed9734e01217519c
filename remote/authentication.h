#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace calvero {

class SuiteWeb;
class TagStore;

/// The controller's handle on what the suite shares: its tags (any thread) and its web pages.
class Authentication {
 public:
  Authentication(TagStore& store, SuiteWeb& web) : store_(&store), web_(&web) {}

  /// The value of `tag`; nothing when the tag is absent.
  std::optional<std::string> GetValueForTag(const std::string& tag);
  void SetValueForTag(const std::string& tag, const std::string& value);
  /// Opens one of the suite's pages in the browser. Event loop thread.
  void ondrelSoftwareWeb(std::int32_t page);

 private:
  TagStore* store_;
  SuiteWeb* web_;
};

}  // namespace calvero
