#include <sys/stat.h>

#include "tests/contracts/files_contract.h"
#include "tests/platform/linux/posix_files_test_volume.h"

namespace calvero::testing {
namespace {

namespace fs = std::filesystem;

class PosixWorld : public FilesWorld {
 public:
  PosixWorld() {
    std::string pattern = ::testing::TempDir() + "calvero-contract-XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr) throw fs::filesystem_error("mkdtemp", std::error_code());
    volume_ = pattern;
  }
  ~PosixWorld() override {
    std::error_code ignored;
    fs::remove_all(volume_, ignored);
  }

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

  bool directoryExists(const std::string& path) override { return fs::is_directory(path); }
  std::optional<std::uint64_t> bytesOf(const std::string& path) override {
    if (!fs::is_regular_file(fs::symlink_status(path))) return std::nullopt;
    return fs::file_size(path);
  }

 private:
  std::string volume_;
  PosixFiles files_;
};

INSTANTIATE_TEST_SUITE_P(RealDisk, FilesContract,
                         ::testing::Values(FilesWorldFactory([] { return std::make_unique<PosixWorld>(); })),
                         [](const auto&) { return "PosixFiles"; });

}  // namespace
}  // namespace calvero::testing
