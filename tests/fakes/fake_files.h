#pragma once

#include <atomic>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "ports/files.h"
#include "tests/fakes/fake_disk.h"
#include "tests/fakes/fault_script.h"
#include "tests/fakes/journal.h"

namespace calvero::testing {

/// One volume of the in-memory file manager.
struct FakeVolume {
  explicit FakeVolume(std::uint64_t freeBytes) : disk(freeBytes) {}

  FakeDisk disk;
  std::atomic<bool> mounted{true};
  std::atomic<bool> readOnly{false};
  std::atomic<bool> tellsFreeSpace{true};
  /// No file can have more bytes.
  std::atomic<std::uint64_t> largestFile{std::numeric_limits<std::uint64_t>::max()};
  /// Writes to files that had lost their last name: a cancel takes them away under their writer.
  std::atomic<std::uint64_t> writesWithoutName{0};
};

/// A regular file's contents: its blocks go back to the disk when the last name and the last handle are gone.
struct FakeFileBody {
  explicit FakeFileBody(std::shared_ptr<FakeVolume> onVolume) : volume(std::move(onVolume)) {}
  FakeFileBody(const FakeFileBody&) = delete;
  FakeFileBody& operator=(const FakeFileBody&) = delete;
  ~FakeFileBody();

  std::shared_ptr<FakeVolume> volume;
  std::vector<std::size_t> blocks;
  std::uint64_t bytes = 0;
  std::atomic<std::size_t> names = 1;
};

/// What a name in a directory leads to.
enum class FakeEntryKind { regularFile, symbolicLink, folder };

struct FakeEntry {
  FakeEntryKind kind = FakeEntryKind::regularFile;
  std::shared_ptr<FakeFileBody> body;  ///< of a regular file
};

struct FakeDirectory {
  std::shared_ptr<FakeVolume> volume;
  std::string path;
  bool ours = true;  ///< false: a link, a mount point or another user's directory
  bool locked = false;
  std::map<std::string, FakeEntry> entries;  ///< by the last part of the path
};

/// A file manager in memory. It says in the journal what was asked of it and does what `script` says.
class FakeFiles : public Files {
 public:
  explicit FakeFiles(Journal& journal) : journal_(journal) {}

  FaultScript script;

  // The disk, as a test sets it up and looks at it.

  FakeVolume& addVolume(const std::string& mountPath, std::uint64_t freeBytes);
  FakeVolume& volume(const std::string& mountPath) { return *volumes_.at(mountPath); }
  /// A directory that is there before the run, empty.
  void addDirectory(const std::string& mountPath, const std::string& path);
  /// A directory under that name that no run has made.
  void addForeignDirectory(const std::string& mountPath, const std::string& path);
  /// An entry that is there before the run; a regular file takes `bytes` of the volume.
  void addEntry(const std::string& directoryPath, const std::string& name, FakeEntryKind kind, std::uint64_t bytes = 0);
  /// A second name for the same file.
  void addHardLink(const std::string& directoryPath, const std::string& existing, const std::string& name);
  void removeFromOutside(const std::string& directoryPath, const std::string& name);
  /// The directory is given another name on its volume.
  void renameFromOutside(const std::string& directoryPath, const std::string& newPath);
  [[nodiscard]] bool directoryExists(const std::string& path) const;
  /// The names in a directory, sorted.
  [[nodiscard]] Steps names(const std::string& directoryPath) const;
  [[nodiscard]] std::optional<std::uint64_t> bytesOf(const std::string& directoryPath, const std::string& name) const;
  /// How many removed files a directory can hold on to.
  void setHandleLimit(std::size_t files) { handleLimit_ = files; }

  // The port.

  bool exists(const std::string& path) override;
  Error checkFillerDirectory(const std::string& volumePath, const std::string& directoryPath) override;
  std::unique_ptr<FillerDirectory> createFillerDirectory(const std::string& volumePath,
                                                         const std::string& directoryPath, Error& error) override;
  Error removeFillerDirectory(const std::string& volumePath, const std::string& directoryPath) override;

 private:
  friend class FakeFillerDirectory;
  friend class FakeFillerFile;

  /// The obstacle to making or taking over the directory, if there is one.
  ErrorCode obstacle(const std::string& volumePath, const std::string& directoryPath) const;
  /// Whether the directory's own name still leads to it.
  [[nodiscard]] bool isAtItsPath(const FakeDirectory& directory) const;
  /// Takes the directory's name away, its own or a later one, with everything in it. Whether it had any.
  bool forget(const FakeDirectory& directory);

  Journal& journal_;
  mutable std::mutex mutex_;  // guards the maps; never held while a hook runs
  std::map<std::string, std::shared_ptr<FakeVolume>> volumes_;
  std::map<std::string, std::shared_ptr<FakeDirectory>> directories_;
  std::atomic<std::size_t> handleLimit_{1024};
};

}  // namespace calvero::testing
