#include "wipe/filler_names.h"

namespace calvero {
namespace {

constexpr const char* kFilePrefix = "/.temp";

}  // namespace

std::string fillerDirectoryPath(const std::string& volumePath) {
  return (volumePath == "/" ? volumePath : volumePath + "/") + kFillerDirectoryName;
}

std::string fillerFilePath(const std::string& volumePath, std::uint64_t number) {
  return fillerDirectoryPath(volumePath) + kFilePrefix + std::to_string(number);
}

}  // namespace calvero
