#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace calvero::testing {

/// A folder of its own in $TMPDIR that ends with its holder.
class ScopedFolder {
 public:
  ScopedFolder() : path_((std::filesystem::temp_directory_path() / "calvero-XXXXXX").string()) {  // as mkdtemp wants it
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

}  // namespace calvero::testing
