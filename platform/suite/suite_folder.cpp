#include "platform/suite/suite_folder.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

namespace calvero {

namespace {

std::string environmentText(const char* name) {
  const char* text = std::getenv(name);
  return text == nullptr ? std::string() : std::string(text);
}

bool isAbsolute(const std::string& path) {
  return path.starts_with('/');
}

std::string homeInPasswordDatabase() {
  constexpr std::size_t kEntryBytes = 16384;
  std::vector<char> buffer(kEntryBytes);
  passwd entry = {};
  passwd* found = nullptr;
  if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) return {};
  return entry.pw_dir == nullptr ? std::string() : std::string(entry.pw_dir);
}

std::string inFolder(const std::string& folder, const char* name) {
  return folder.empty() ? std::string() : folder + '/' + name;
}

}  // namespace

std::string userDataFolder() {
  std::string folder = environmentText("XDG_DATA_HOME");
  if (isAbsolute(folder)) return folder;
  std::string home = environmentText("HOME");
  if (!isAbsolute(home)) home = homeInPasswordDatabase();
  return isAbsolute(home) ? home + "/.local/share" : std::string();
}

std::string suiteFolder() {
  return inFolder(userDataFolder(), "Ondrel Software/Ondrel MORE");
}

std::string tagStorePath() {
  std::string given = environmentText("CALVERO_TAG_STORE");
  return given.empty() ? inFolder(suiteFolder(), "tags.sqlite") : given;
}

}  // namespace calvero
