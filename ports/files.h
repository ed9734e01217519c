#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ports/error.h"

namespace calvero {

/// What the name of a filler file begins with; a decimal number follows. By these names a directory that an
/// interrupted run left is told from somebody's own that was given its name.
constexpr std::string_view kFillerFilePrefix = ".temp";

/// Result of one positioned write.
struct WriteResult {
  std::int64_t bytes = 0;  ///< bytes written, or -1
  Error error;             ///< why nothing was written
};

/// One filler file, open for writing. Used by one thread; destroying it closes it.
class FillerFile {
 public:
  FillerFile() = default;
  FillerFile(const FillerFile&) = delete;
  FillerFile& operator=(const FillerFile&) = delete;
  virtual ~FillerFile() = default;

  /// Writes `bytes` bytes of `data` at `offset` (bytes from the start of the file). Blocks. Interrupted calls are
  /// retried; a short write is returned as it is; -1 on failure, a null `data` included. Fails (`gone`) at the latest
  /// one second after the volume was taken away from its path, even where the system would still write.
  virtual WriteResult pwrite(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) = 0;

  /// Flushes the file to the medium and waits for it. A failure is reported once and never retried: the kernel has
  /// dropped the data by then.
  virtual Error fsync() = 0;
};

/// The filler directory of one run, locked against every other run for as long as this object lives.
///
/// Every path given to it is a full path inside the directory; only its last part is used, relative to the directory
/// that was opened at the start, so that renaming or replacing the directory from outside leads nowhere else.
/// All calls may be made from any thread at the same time, since a cancel removes the directory while the worker is
/// still writing. After `remove` has begun nothing is created or kept any more.
class FillerDirectory {
 public:
  FillerDirectory() = default;
  FillerDirectory(const FillerDirectory&) = delete;
  FillerDirectory& operator=(const FillerDirectory&) = delete;
  /// Releases the kept space and the lock; removes nothing.
  virtual ~FillerDirectory() = default;

  /// Creates an empty regular file, mode 0600. A file, link, FIFO or socket of that name is unlinked first, never
  /// opened or followed; a folder of that name is left and reported (`exists`).
  virtual Error createEmptyFile(const std::string& path) = 0;

  /// Whether a directory entry of that name exists: none does once the volume was taken away from its path, or the
  /// directory from its own. Links are not followed.
  virtual bool exists(const std::string& path) = 0;

  /// Reads the entry's attributes, as is done before each file is written; nothing looks at them. Links are not
  /// followed.
  virtual Error readAttributes(const std::string& path) = 0;

  /// Opens a filler file made by `createEmptyFile`. Null with `error` filled when it cannot be opened or is not what
  /// was created: not a regular file, not empty, or known by a second name.
  virtual std::unique_ptr<FillerFile> openForWriting(const std::string& path, Error& error) = 0;

  /// Removes the file's name, and keeps its space taken until `releaseSpace`: a file system hands the blocks of a
  /// deleted file to the next one, which would then overwrite the same blocks again and leave the others as they
  /// were. Where the limit of open files forbids that, the name stays and keeps the space, which is a success; so it
  /// does where the file cannot be opened for another reason, which is reported.
  virtual Error removeItem(const std::string& path) = 0;

  /// Bytes of the volume that this process can fill now; nothing when that cannot be read. Blocks while the system is
  /// asked.
  virtual std::optional<std::uint64_t> availableBytes() = 0;

  /// Bytes of written files whose space was lost before it was released: another program has removed or replaced a
  /// name that kept it. Grows in `releaseSpace` and `remove`, which look.
  virtual std::uint64_t bytesNotKept() const = 0;

  /// Gives back the space of every removed file, with the names that kept it. Blocks while the file system frees it.
  virtual void releaseSpace() = 0;

  /// Grows while `releaseSpace` and `remove` get on: what tells a large clean-up from a volume that does not answer.
  virtual std::uint64_t cleanUpSteps() const = 0;

  /// Removes the directory with everything in it, also where it was given another name in the same folder; moved
  /// elsewhere it is emptied, and `notOurs`. Never follows a link, never leaves the volume. A second call, or one while
  /// another thread is in it, does no harm. `notFound` when the directory is already gone.
  virtual Error remove() = 0;
};

/// The file manager, as far as a run needs it. Any thread.
class Files {
 public:
  virtual ~Files() = default;

  /// Whether `path` exists. Used for mount paths.
  virtual bool exists(const std::string& path) = 0;

  /// Whether `createFillerDirectory` could succeed now. Creates and changes nothing. Codes: `notPermitted`,
  /// `readOnly`, `busy`, `notOurs`, `locked`, `notFound`, `thinStorage`, `gone`; the last also when the volume does not
  /// answer for seconds.
  virtual Error checkFillerDirectory(const std::string& volumePath, const std::string& directoryPath) = 0;

  /// Makes the filler directory, or takes over the one an interrupted run left, and locks it. It is taken over only if
  /// it is a real directory on the volume itself, owned by the running user, and holds nothing but filler files and
  /// empty folders; what the interrupted run left in it is removed. What the path leads to must still be the volume
  /// that was listed there (`notFound`). Null with `error` filled otherwise. Then nothing was written or removed that
  /// no run made; a directory of ours may already have the mode 0700, and where the removal failed, part of what the
  /// run left is gone.
  virtual std::unique_ptr<FillerDirectory> createFillerDirectory(const std::string& volumePath,
                                                                 const std::string& directoryPath, Error& error) = 0;

  /// Removes a filler directory that an interrupted run left, under the same conditions. Creates nothing.
  /// `notFound` when there is none.
  virtual Error removeFillerDirectory(const std::string& volumePath, const std::string& directoryPath) = 0;
};

}  // namespace calvero
