#pragma once

#include "platform/linux/files/filler_moments.h"
#include "platform/linux/files/filler_place.h"
#include "platform/linux/files/open_folder.h"
#include "ports/error.h"

namespace calvero {

enum class IfAbsent { make, report };

/// Opens the filler directory of `place` and locks it against every other run, making it first where asked; what an
/// interrupted run left in it is still there. The lock lives as long as the result. Not open, with `error` filled,
/// when it is not ours, held by another run, or cannot be made; then nothing in it was touched.
OpenFolder claimDirectory(const FillerPlace& place, IfAbsent ifAbsent, const FillerMoments& moments, Error& error);

/// Opens the filler directory if `claimDirectory` would succeed. Locks and changes nothing. Not open, with `error`
/// filled, otherwise; `notFound` when there is none.
OpenFolder openUnclaimed(const FillerPlace& place, Error& error);

}  // namespace calvero
