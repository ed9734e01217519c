#pragma once

#include <cstdint>
#include <string>

namespace calvero {

/// The filler directory's name. The leading dot hides it and its files from ordinary listings.
constexpr const char* kFillerDirectoryName = ".$$XE8AQU";

/// The hidden filler directory of the volume mounted at `volumePath`: "/.$$XE8AQU" for "/", else
/// "<volumePath>/.$$XE8AQU".
std::string fillerDirectoryPath(const std::string& volumePath);

/// Filler file `number` of that volume: ".temp" and the number, inside the filler directory.
std::string fillerFilePath(const std::string& volumePath, std::uint64_t number);

}  // namespace calvero
