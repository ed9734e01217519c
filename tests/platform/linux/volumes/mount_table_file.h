#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/scoped_folder.h"

namespace calvero::testing {

/// A mount table as a test wants the kernel to tell it.
class MountTableFile {
 public:
  explicit MountTableFile(const std::string& text = "") { tell(text); }

  void tell(const std::string& text) const { std::ofstream(path()) << text; }
  void remove() const { std::filesystem::remove(path()); }
  [[nodiscard]] std::string path() const { return folder_.path() + "/mountinfo"; }

 private:
  ScopedFolder folder_;
};

}  // namespace calvero::testing
