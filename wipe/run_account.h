#pragma once

#include <cstdint>

namespace calvero {

/// How a run ended. The first outcome that is noted stands.
enum class RunOutcome : std::uint8_t {
  none,      ///< not started, or still under way
  finished,  ///< every filler file was written in its turn; how much that came to is the account's to say
  failed,    ///< the volume or a filler file is gone, or the storage under the volume takes nothing any more
  cancelled,
};

/// What a run did, in bytes.
struct RunAccount {
  std::uint64_t freeAtStart = 0;  ///< free when the run began
  std::uint64_t covered = 0;      ///< received every pass
  std::uint64_t notHeld = 0;      ///< of these, given back before the end: others may have been covered in their place
  std::uint64_t faults = 0;
  std::int32_t passes = 0;
  bool directoryStays = false;  ///< the filler directory could not be removed

  /// Received every pass and was held until the end.
  [[nodiscard]] std::uint64_t overwritten() const { return covered > notHeld ? covered - notHeld : 0; }
  /// What is missing of what was free.
  [[nodiscard]] std::uint64_t shortBy() const { return freeAtStart > overwritten() ? freeAtStart - overwritten() : 0; }
};

/// How much of the free space a finished run has overwritten.
enum class RunGrade : std::uint8_t {
  complete,
  partial,  ///< something failed, was not held, or is missing: deleted data may remain readable
  nothing,  ///< the method writes no data
};

/// The one rule from what was done to what is told about it. A file system needs some of the free space for itself, so
/// a small shortfall is none.
RunGrade gradeOf(const RunAccount& account);

/// "complete", "partial", "nothing": for other programs.
const char* wordOf(RunGrade grade);

}  // namespace calvero
