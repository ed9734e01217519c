#pragma once

#include <string_view>

namespace calvero {

/// Whether a property list is small and plain enough for the parsing library. A few bytes can nest so deeply that its
/// recursion runs out of stack, in the binary form objects that share their parts unfold without end, and a text with a
/// NUL ends the program. Says nothing about whether the list is well formed otherwise.
bool isModestPropertyList(std::string_view bytes);

}  // namespace calvero
