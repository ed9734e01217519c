#include <memory>
#include <string>

#include "tests/contracts/files_contract.h"
#include "tests/fakes/fake_files.h"

namespace calvero::testing {
namespace {

class FakeFilesWorld : public FilesWorld {
 public:
  FakeFilesWorld() { files_.addVolume(kVolume, 1'000'000); }

  Files& files() override { return files_; }
  std::string volumePath() override { return kVolume; }

  void plantDirectory(const std::string& path) override { files_.addDirectory(kVolume, path); }
  void plantForeignDirectory(const std::string& path) override { files_.addForeignDirectory(kVolume, path); }
  void plantFile(const std::string& path, std::uint64_t bytes) override {
    files_.addEntry(parentOf(path), nameOf(path), FakeEntryKind::regularFile, bytes);
  }
  void plantSymbolicLink(const std::string& path) override {
    files_.addEntry(parentOf(path), nameOf(path), FakeEntryKind::symbolicLink);
  }
  void plantFolder(const std::string& path) override {
    files_.addEntry(parentOf(path), nameOf(path), FakeEntryKind::folder);
  }
  void plantSecondName(const std::string& existing, const std::string& path) override {
    files_.addHardLink(parentOf(path), nameOf(existing), nameOf(path));
  }

  void rename(const std::string& directory, const std::string& path) override {
    files_.renameFromOutside(directory, path);
  }
  void takeVolumeAway() override { files_.volume(kVolume).mounted = false; }

  void limitOpenFiles() override { files_.setHandleLimit(0); }
  void removeFromOutside(const std::string& path) override { files_.removeFromOutside(parentOf(path), nameOf(path)); }

  bool directoryExists(const std::string& path) override { return files_.directoryExists(path); }
  std::optional<std::uint64_t> bytesOf(const std::string& path) override {
    if (!files_.directoryExists(parentOf(path))) return std::nullopt;
    return files_.bytesOf(parentOf(path), nameOf(path));
  }

 private:
  static constexpr const char* kVolume = "/media/DATA";

  static std::string parentOf(const std::string& path) { return path.substr(0, path.find_last_of('/')); }
  static std::string nameOf(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

  Journal journal_;
  FakeFiles files_{journal_};
};

INSTANTIATE_TEST_SUITE_P(InMemory, FilesContract, ::testing::Values([]() -> std::unique_ptr<FilesWorld> {
                           return std::make_unique<FakeFilesWorld>();
                         }),
                         [](const auto&) { return "FakeFiles"; });

}  // namespace
}  // namespace calvero::testing
