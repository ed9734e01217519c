#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace calvero {

/// The zero-based number of the method that `text` names: "1" to "9" or a method's word in any case.
std::optional<std::int32_t> methodNamed(const std::string& text);

/// What a person can type for a method, in one line.
std::string validMethods();

/// What the method writes over each block, in the order of the passes: "0x55", "random".
std::vector<std::string> writtenSequence(std::int32_t method);

/// The sequence with repetitions drawn together: "random x4, 0x00/0xFF in turn x27"; "nothing" for an empty one.
std::string shortened(const std::vector<std::string>& sequence);

std::string methodsTable();
/// Without what is written: fits a terminal of 80 columns.
std::string shortMethodsTable();
std::string methodsJson();

}  // namespace calvero
