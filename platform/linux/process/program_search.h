#pragma once

#include <optional>
#include <string>
#include <vector>

namespace calvero {

/// The full path of this process's program, and its folder; empty where that cannot be told.
std::string ownProgram();
std::string ownFolder();
/// The folders in which this process looks for programs, as PATH lists them.
std::string searchPath();

/// Where the terminal's program is once it is installed.
std::string installedTerminalProgram();

/// Whether this user can start what is at `path`.
bool isProgram(const std::string& path);
/// The full path of the first of `places`, relative to `folder`, where there is a program.
std::optional<std::string> findBeside(const std::string& folder, const std::vector<std::string>& places);
/// The full path of a program in an absolute folder of `searchPath`.
std::optional<std::string> findInPath(const std::string& name, const std::string& searchPath);

}  // namespace calvero
