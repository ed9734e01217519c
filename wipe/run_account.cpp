#include "wipe/run_account.h"

namespace calvero {
namespace {

constexpr std::uint64_t kSmallShortfallBytes = 16'000'000;
constexpr std::uint64_t kSmallShortfallPercent = 1;

bool isShort(const RunAccount& account) {
  return account.shortBy() > kSmallShortfallBytes &&
         account.shortBy() > account.freeAtStart / 100 * kSmallShortfallPercent;
}

}  // namespace

RunGrade gradeOf(const RunAccount& account) {
  if (account.faults != 0 || account.notHeld != 0) return RunGrade::partial;
  if (account.passes == 0) return RunGrade::nothing;
  return isShort(account) ? RunGrade::partial : RunGrade::complete;
}

const char* wordOf(RunGrade grade) {
  switch (grade) {
    case RunGrade::complete:
      return "complete";
    case RunGrade::partial:
      return "partial";
    case RunGrade::nothing:
      break;
  }
  return "nothing";
}

}  // namespace calvero
