#pragma once

#include <string>

namespace calvero {

/// What went wrong at the operating system, in the few kinds that the controller tells apart.
enum class ErrorCode {
  none,
  notFound,      ///< no such file, directory or volume
  exists,        ///< the name is taken
  notPermitted,  ///< the process may not do this
  readOnly,      ///< the file system is read-only, or has just turned so
  full,          ///< no space left: the normal end of a fill
  overQuota,     ///< the quota is used up; there may be room for others
  storageFull,   ///< the storage under the volume is full: what the volume had taken was dropped
  busy,          ///< another run holds the filler directory
  notOurs,       ///< the filler directory's name leads to something that a run did not make
  locked,        ///< a filler directory that an earlier run left may not be changed
  gone,          ///< the medium fails or has been pulled
  noHandles,     ///< the limit of open files is reached
  thinStorage,   ///< the storage below the volume has less room than the volume shows
  closed,        ///< the run's filler directory has been given back; nothing more is created in it
  other,
};

/// An adapter's report: what was tried, on what, and how it failed. Never thrown; never shown as it is, only the
/// controller decides what a person reads. Default-constructed it means success and owns no memory.
struct Error {
  ErrorCode code = ErrorCode::none;
  std::string operation;  ///< the system call, e.g. "openat"
  std::string path;
  std::string detail;  ///< the system's own words, e.g. "Read-only file system"

  [[nodiscard]] bool failed() const { return code != ErrorCode::none; }
  /// "openat /mnt/a: Read-only file system", for the log.
  [[nodiscard]] std::string text() const { return operation + " " + path + ": " + detail; }
};

}  // namespace calvero
