#include "platform/linux/process/program_search.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <system_error>

namespace calvero {
std::string ownProgram() {
  std::error_code unknown;
  return std::filesystem::read_symlink("/proc/self/exe", unknown).string();
}

std::string ownFolder() {
  return std::filesystem::path(ownProgram()).parent_path().string();
}

std::string searchPath() {
  const char* folders = std::getenv("PATH");
  return folders == nullptr ? "" : folders;
}

std::string installedTerminalProgram() {
  return CALVERO_INSTALLED_TERMINAL_PROGRAM;
}

bool isProgram(const std::string& path) {
  std::error_code unknown;
  return std::filesystem::is_regular_file(path, unknown) && ::access(path.c_str(), X_OK) == 0;
}

std::optional<std::string> findBeside(const std::string& folder, const std::vector<std::string>& places) {
  for (const std::string& place : places) {
    const std::filesystem::path candidate = std::filesystem::path(folder) / place;
    if (isProgram(candidate.string())) return candidate.lexically_normal().string();
  }
  return std::nullopt;
}

std::optional<std::string> findInPath(const std::string& name, const std::string& searchPath) {
  std::istringstream folders(searchPath);
  for (std::string folder; std::getline(folders, folder, ':');) {
    const std::filesystem::path candidate = std::filesystem::path(folder) / name;
    if (candidate.is_absolute() && isProgram(candidate.string())) return candidate.string();
  }
  return std::nullopt;
}

}  // namespace calvero
