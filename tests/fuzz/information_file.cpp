#include "platform/suite/plist_information_file.h"

#include "tests/fuzz/fuzzing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t bytes) {
  using namespace calvero::fuzzing;
  static const calvero::testing::ScopedFolder folder;
  const std::string path = folder.path() + "/infoMaster.plist";
  putBytes(path, textOf(data, bytes));
  for (const auto& [key, value] : calvero::PlistInformationFile().read(path)) {
    require(key.size() <= bytes, "a key is no longer than the file");
    require(value.find('\0') == std::string::npos, "a value is a text");
  }
  return 0;
}
