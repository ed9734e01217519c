#pragma once

#include <string>

namespace calvero {

/// The identifier that the file system mounted at `mountPath` was given when it was made, as it is written elsewhere:
/// "0b1e9d4c-...". Empty when it tells none. Needs no privileges. Opens the folder: not for network file systems.
std::string uuidFromFileSystem(const std::string& mountPath);

}  // namespace calvero
