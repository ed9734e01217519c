#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "methods/method_catalogue.h"

namespace calvero {

/// The zero-based number of the method that `text` names: by its one-based number, or its word in any case.
std::optional<std::int32_t> methodNamed(const std::string& text, MethodCatalogue methods);

/// What a person can type for a method, in one line.
std::string validMethods(MethodCatalogue methods);

/// What the method writes over each block, in the order of the passes: "0x55", "random".
std::vector<std::string> writtenSequence(const EraseMethod& method);

/// The sequence with repetitions drawn together: "random x4, 0x00/0xFF in turn x27"; "nothing" for an empty one.
std::string shortened(const std::vector<std::string>& sequence);

std::string methodsTable(MethodCatalogue methods);
/// Without what is written: fits a terminal of 80 columns.
std::string shortMethodsTable(MethodCatalogue methods);
std::string methodsJson(MethodCatalogue methods);

}  // namespace calvero
