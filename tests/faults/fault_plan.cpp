#include "tests/faults/fault_plan.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <stdexcept>
#include <thread>

namespace faultfs {

namespace {

// Longer than the product's timeout for a volume that does not answer.
constexpr std::chrono::milliseconds kDelay{2500};

struct NamedErrno {
  std::string_view name;
  int value;
};
constexpr std::array<NamedErrno, 5> kErrnos = {
    {{"EIO", EIO}, {"ENOSPC", ENOSPC}, {"EROFS", EROFS}, {"ENODEV", ENODEV}, {"EDQUOT", EDQUOT}}};

void readAction(std::string_view text, Fault& fault) {
  if (text.ends_with('+')) {
    fault.lasts = true;
    text.remove_suffix(1);
  }
  if (text == "tear") {
    fault.action = Action::tear;
  } else if (text == "delay") {
    fault.action = Action::delay;
  } else if (text == "die") {
    fault.action = Action::die;
  } else {
    const auto* found =
        std::find_if(kErrnos.begin(), kErrnos.end(), [&](const auto& known) { return known.name == text; });
    if (found == kErrnos.end()) throw std::invalid_argument("no such action: " + std::string(text));
    fault.errnoValue = found->value;
  }
}

}  // namespace

Fault faultFrom(const std::string& text) {
  const auto first = text.find(':');
  const auto second = text.find(':', first + 1);
  if (first == std::string::npos || second == std::string::npos) throw std::invalid_argument("no fault: " + text);
  const auto* kind = std::find(kKindNames.begin(), kKindNames.end(), text.substr(0, first));
  if (kind == kKindNames.end()) throw std::invalid_argument("no such kind of call: " + text);
  Fault fault;
  fault.kind = static_cast<Kind>(kind - kKindNames.begin());
  fault.call = std::stoull(text.substr(first + 1, second - first - 1));
  readAction(std::string_view(text).substr(second + 1), fault);
  return fault;
}

Verdict FaultPlan::meet(Kind kind) {
  const std::uint64_t call = ++calls_.at(static_cast<std::size_t>(kind));
  if (kind != fault_.kind || fault_.call == 0 || call < fault_.call || (call > fault_.call && !fault_.lasts)) return {};
  ++hits_;
  switch (fault_.action) {
    case Action::fail:
      return {.errnoValue = fault_.errnoValue};
    case Action::tear:
      return {.torn = true};
    case Action::delay:
      std::this_thread::sleep_for(kDelay);
      return {};
    case Action::die:
      die_();
  }
  return {};
}

}  // namespace faultfs
