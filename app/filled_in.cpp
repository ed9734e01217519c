#include "app/filled_in.h"

#include <cstddef>

namespace calvero {

std::string filledIn(const std::string& text, const std::vector<std::string>& values) {
  std::string filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isPlaceholder = text[at] == '%' && at + 1 < text.size() && text[at + 1] >= '1' && text[at + 1] <= '9';
    const auto number = isPlaceholder ? static_cast<std::size_t>(text[at + 1] - '1') : values.size();
    if (number < values.size()) {
      filled += values[number];
      ++at;
    } else {
      filled += text[at];
    }
  }
  return filled;
}

}  // namespace calvero
