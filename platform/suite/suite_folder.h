#pragma once

#include <string>

namespace calvero {

/// The folder in which applications keep what belongs to the user: $XDG_DATA_HOME if that is an absolute path, else
/// .local/share in the home folder ($HOME, else the password database's). Empty when the user has none.
std::string userDataFolder();

/// Where the applications of the suite keep what they share. Empty when the user has no data folder.
std::string suiteFolder();

/// The tag store's file: $CALVERO_TAG_STORE if that is set and not empty, else "tags.sqlite" in the suite's folder.
/// Empty when there is no place for it.
std::string tagStorePath();

}  // namespace calvero
