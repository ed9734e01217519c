#pragma once

#include "ports/error.h"

namespace calvero {

/// Whether a failure under a run means that its volume is lost: pulled, failing, or turned read-only. Other failures
/// leave the run as it is.
constexpr bool meansLostVolume(ErrorCode code) {
  return code == ErrorCode::readOnly || code == ErrorCode::gone;
}

}  // namespace calvero
