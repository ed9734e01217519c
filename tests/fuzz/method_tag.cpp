#include <algorithm>
#include <iterator>
#include <limits>

#include "methods/method_catalogue.h"
#include "tests/fuzz/fuzzing.h"

namespace calvero::fuzzing {
namespace {

std::int32_t asTheLibraryReads(const std::string& text) {
  using Limits = std::numeric_limits<std::int32_t>;
  constexpr int kDecimal = 10;
  const long value = std::strtol(text.c_str(), nullptr, kDecimal);
  return static_cast<std::int32_t>(std::clamp<long>(value, Limits::min(), Limits::max()));
}

void readMethod(const std::string& text) {
  require(integerValue(text) == asTheLibraryReads(text), "a number is read as strtol reads it, within 32 bits");
  const auto method = methodFromTag(text);
  require(!method || (*method >= 0 && *method < std::ssize(orderableMethods())), "a method is one of the catalogue");
}

}  // namespace
}  // namespace calvero::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t bytes) {
  calvero::fuzzing::readMethod(std::string(calvero::fuzzing::textOf(data, bytes)));
  return 0;
}
