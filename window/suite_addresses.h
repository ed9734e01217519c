#pragma once

#include <map>
#include <string>

#include "ports/suite_web.h"

namespace calvero {

class Workspace;

/// The suite's web addresses from an ini file: in the group "pages" an address for each index, in "portal" the key
/// "login".
class SuiteAddresses : public SuiteWeb {
 public:
  explicit SuiteAddresses(Workspace& workspace, const std::string& file = ":/addresses.ini");

  void openPage(std::int32_t index) override;
  /// Empty if the file has none.
  [[nodiscard]] std::string portalLoginAddress() const override { return portalLogin_; }

 private:
  Workspace& workspace_;
  std::map<std::string, std::string> pages_;
  std::string portalLogin_;
};

}  // namespace calvero
