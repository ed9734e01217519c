#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <optional>

#include "platform/linux/files/linux_files.h"
#include "tests/contracts/files_contract.h"
#include "tests/platform/linux/files/scoped_open_file_limit.h"
#include "tests/scoped_folder.h"

namespace calvero::testing {
namespace {

namespace fs = std::filesystem;

class LinuxWorld : public FilesWorld {
 public:
  Files& files() override { return files_; }
  std::string volumePath() override { return volume_; }

  void plantDirectory(const std::string& path) override { fs::create_directory(path); }
  void plantForeignDirectory(const std::string& path) override { std::ofstream(path) << "precious"; }
  void plantFile(const std::string& path, std::uint64_t bytes) override {
    std::ofstream(path) << std::string(static_cast<std::size_t>(bytes), 'x');
  }
  void plantSymbolicLink(const std::string& path) override { fs::create_symlink("elsewhere", path); }
  void plantFolder(const std::string& path) override { fs::create_directory(path); }
  void plantSecondName(const std::string& existing, const std::string& path) override {
    fs::create_hard_link(existing, path);
  }

  void rename(const std::string& directory, const std::string& path) override { fs::rename(directory, path); }
  void takeVolumeAway() override { fs::rename(volume_, folder_.path() + "/elsewhere"); }

  void limitOpenFiles() override { limit_.emplace(kNeededAtOneTime); }
  void removeFromOutside(const std::string& path) override { fs::remove(path); }

  bool directoryExists(const std::string& path) override { return fs::is_directory(path); }
  std::optional<std::uint64_t> bytesOf(const std::string& path) override {
    if (!fs::is_regular_file(fs::symlink_status(path))) return std::nullopt;
    return fs::file_size(path);
  }

 private:
  static constexpr std::size_t kNeededAtOneTime = 4;

  const ScopedFolder folder_;
  const std::string volume_ = folder_.make("volume");
  LinuxFiles files_;
  std::optional<ScopedOpenFileLimit> limit_;
};

INSTANTIATE_TEST_SUITE_P(RealDisk, FilesContract,
                         ::testing::Values(FilesWorldFactory([] { return std::make_unique<LinuxWorld>(); })),
                         [](const auto&) { return "LinuxFiles"; });

}  // namespace
}  // namespace calvero::testing
