#pragma once

#include <cstdint>
#include <string>

namespace calvero {

/// The suite's web pages, whose addresses are the packager's.
class SuiteWeb {
 public:
  virtual ~SuiteWeb() = default;

  /// Opens the page of that index in the browser: 0, 1 and 2 are the maker's pages on Facebook, Twitter and Google+, 4
  /// is the help page. An index without a page opens nothing. Event loop thread.
  virtual void openPage(std::int32_t index) = 0;
  /// The login address of the portal, to which the identifiers are appended.
  [[nodiscard]] virtual std::string portalLoginAddress() const = 0;
};

}  // namespace calvero
