#pragma once

#include <array>
#include <cstdint>

#include "ports/controls.h"

namespace calvero {

/// The controls of the method page that bear a name.
struct MethodControls {
  Control button;
  Control label;
};

/// By the method's number. A method beyond them has a row without names, which `turnMethod` and `setMethodText` reach.
inline constexpr std::array kMethodControls{
    MethodControls{Control::butFastZeroWipe, Control::algorithm_1},
    MethodControls{Control::butRandomWipe, Control::algorithm_2},
    MethodControls{Control::butDOD5220, Control::algorithm_3},
    MethodControls{Control::butNAVSO, Control::algorithm_4},
    MethodControls{Control::butNATO, Control::algorithm_5},
    MethodControls{Control::butVSITR, Control::algorithm_6},
    MethodControls{Control::butFAST_ZERO_WRITE, Control::algorithm_7},
    MethodControls{Control::butPETER_GUTTMAN, Control::algorithm_8},
    MethodControls{Control::butNINTH_ALGO, Control::algorithm_9},
};

/// The order in which a change of method sets the buttons.
inline constexpr std::array kButtonOrder{
    Control::butFastZeroWipe,  Control::butRandomWipe,      Control::butDOD5220,
    Control::butNATO,          Control::butFAST_ZERO_WRITE, Control::butNAVSO,
    Control::butPETER_GUTTMAN, Control::butVSITR,           Control::butNINTH_ALGO,
};

static_assert(kButtonOrder.size() == kMethodControls.size());

/// The named controls of a method; null for one without.
constexpr const MethodControls* controlsOf(std::int32_t method) {
  const auto row = static_cast<std::size_t>(method);
  return row < kMethodControls.size() ? &kMethodControls[row] : nullptr;
}

}  // namespace calvero
