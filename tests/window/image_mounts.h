#pragma once

#include <string>
#include <vector>

#include "tests/platform/linux/volumes/mounted_images.h"

namespace calvero::testing {

/// Mounted images for a test whose fixture is another one.
class ImageMounts : public MountedImages {
 public:
  void TestBody() override {}
  void open() { SetUp(); }
  void close() { TearDown(); }
  /// A new file system; its mount path, or nothing.
  std::string mountNew(std::vector<std::string> mkfs, const char* type, std::uint64_t mebibytes) {
    const auto device = makeFileSystem(std::move(mkfs), mebibytes);
    std::string path = makeFolder("volume");
    return device && mount(device->path(), path, type) ? path : "";
  }
};

}  // namespace calvero::testing
