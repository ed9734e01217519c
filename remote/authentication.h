#pragma once

#include <optional>
#include <string>

namespace calvero {

class TagStore;

/// The controller's handle on the suite's tag store. Any thread.
class Authentication {
 public:
  explicit Authentication(TagStore& store) : store_(&store) {}

  /// The value of `tag`; nothing when the tag is absent.
  std::optional<std::string> GetValueForTag(const std::string& tag);
  void SetValueForTag(const std::string& tag, const std::string& value);

 private:
  TagStore* store_;
};

}  // namespace calvero
