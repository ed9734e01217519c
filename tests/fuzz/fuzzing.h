#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "tests/scoped_folder.h"

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
