#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace faultfs {

/// The calls that are counted and can be made to fail.
enum class Kind : std::uint8_t {
  lookup,
  getattr,
  setattr,
  create,
  open,
  write,
  fsync,
  unlink,
  mkdir,
  rmdir,
  opendir,
  readdir,
  statfs,
};
inline constexpr std::array<std::string_view, 13> kKindNames = {"lookup",  "getattr", "setattr", "create", "open",
                                                                "write",   "fsync",   "unlink",  "mkdir",  "rmdir",
                                                                "opendir", "readdir", "statfs"};

enum class Action : std::uint8_t {
  fail,   ///< the call gets `errnoValue` and does nothing
  tear,   ///< a write takes half of what it was given
  delay,  ///< the call is answered late
  die,    ///< the file system ends at once, as that of a pulled disk does
};

struct Fault {
  Kind kind = Kind::statfs;
  std::uint64_t call = 0;  ///< which call of that kind, from 1; 0: none
  bool lasts = false;      ///< the calls of that kind behind it too
  Action action = Action::fail;
  int errnoValue = 0;
};

/// Reads "KIND:CALL:ACTION"; ACTION is "EIO" and its like, "tear", "delay" or "die", with a "+" behind it to last.
/// Throws std::invalid_argument.
Fault faultFrom(const std::string& text);

/// What the file system does with one call.
struct Verdict {
  int errnoValue = 0;  ///< 0: it is carried out
  bool torn = false;
};

/// Counts the calls and carries out the fault. One thread.
class FaultPlan {
 public:
  /// `die` ends the process.
  FaultPlan(const Fault& fault, std::function<void()> die) : fault_(fault), die_(std::move(die)) {}

  /// Counts one call. Blocks for as long as the call is to be delayed.
  Verdict meet(Kind kind);

  [[nodiscard]] std::uint64_t calls(std::size_t kind) const { return calls_.at(kind); }
  /// How many calls the fault has hit.
  [[nodiscard]] std::uint64_t hits() const { return hits_; }

 private:
  const Fault fault_;
  const std::function<void()> die_;
  std::array<std::uint64_t, kKindNames.size()> calls_{};
  std::uint64_t hits_ = 0;
};

}  // namespace faultfs
