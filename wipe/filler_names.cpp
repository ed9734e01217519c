#include "wipe/filler_names.h"

#include "ports/files.h"

namespace calvero {

std::string fillerDirectoryPath(const std::string& volumePath) {
  return (volumePath == "/" ? volumePath : volumePath + "/") + kFillerDirectoryName;
}

std::string fillerFilePath(const std::string& volumePath, std::uint64_t number) {
  return fillerDirectoryPath(volumePath) + '/' + std::string(kFillerFilePrefix) + std::to_string(number);
}

}  // namespace calvero
