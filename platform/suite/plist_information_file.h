#pragma once

#include <map>
#include <string>

#include "ports/information_file.h"

namespace calvero {

/// Property lists in their XML and their binary form.
class PlistInformationFile : public InformationFile {
 public:
  std::map<std::string, std::string> read(const std::string& path) override;
};

}  // namespace calvero
