#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "methods/method_catalogue.h"
#include "ports/mounted_volumes.h"

namespace calvero {

class LineInput;
class Output;

/// Offers the volumes by number until one is chosen; nothing at the end of input or on a signal.
std::optional<std::size_t> askForVolume(const Output& output, LineInput& input,
                                        const std::vector<MountedVolume>& volumes);

/// Offers the methods until one is chosen, the first one for Enter alone; nothing at the end of input or on a signal.
std::optional<std::int32_t> askForMethod(const Output& output, LineInput& input, MethodCatalogue methods);

}  // namespace calvero
