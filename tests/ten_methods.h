#pragma once

#include <vector>

#include "methods/method_catalogue.h"

namespace calvero::testing {

/// The product's erase methods, and a tenth of two passes: 0xAA, then random data.
inline MethodCatalogue tenMethods() {
  static const std::vector<EraseMethod> rows = [] {
    std::vector<EraseMethod> made(kMethodCatalogue.begin(), kMethodCatalogue.end());
    made.push_back(
        {9, "twice", "Twice over", 2, [](std::int32_t pass) { return pass == 0 ? Pattern::xAA : Pattern::random; }});
    return made;
  }();
  return rows;
}

}  // namespace calvero::testing
