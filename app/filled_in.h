#pragma once

#include <string>
#include <vector>

namespace calvero {

/// `text` with the values in the places of "%1", "%2" and so on. No value is looked through for the placeholder of
/// another; a placeholder without a value stays.
std::string filledIn(const std::string& text, const std::vector<std::string>& values);

}  // namespace calvero
