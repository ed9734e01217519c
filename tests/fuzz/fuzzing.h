#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

// What libFuzzer calls, again and again in one process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t bytes);

namespace calvero::fuzzing {

/// Ends the program, which the fuzzer takes for a crash, when a promise is broken.
inline void require(bool kept, const char* promise) {
  if (kept) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}

inline std::string_view textOf(const std::uint8_t* data, std::size_t bytes) {
  return {reinterpret_cast<const char*>(data), bytes};
}

/// A folder in $TMPDIR that ends with the program.
class ScratchFolder {
 public:
  ScratchFolder() : path_(std::filesystem::temp_directory_path().string() + "/calvero-fuzz-XXXXXX") {
    require(::mkdtemp(path_.data()) != nullptr, "a folder can be made");
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] std::string file(const std::string& name) const { return path_ + '/' + name; }

 private:
  std::string path_;
};

inline void putBytes(const std::string& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  require(file.flush().good(), "a file can be written");
}

inline std::string bytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace calvero::fuzzing
