#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace calvero::testing {

/// A folder that ends with the test.
class ScopedFolder {
 public:
  ScopedFolder() : path_(::testing::TempDir() + "calvero-XXXXXX") {
    if (::mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no folder can be made in " + path_);
  }
  ScopedFolder(const ScopedFolder&) = delete;
  ScopedFolder& operator=(const ScopedFolder&) = delete;
  ~ScopedFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::string& path() const { return path_; }
  /// A folder inside, made with those above it.
  [[nodiscard]] std::string make(const std::string& name) const {
    std::filesystem::create_directories(path_ + '/' + name);
    return path_ + '/' + name;
  }

 private:
  std::string path_;
};

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
