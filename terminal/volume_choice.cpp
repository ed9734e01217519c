#include "terminal/volume_choice.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <system_error>

#include "terminal/text.h"

namespace calvero {
namespace {

std::string withoutSlashesAtEnd(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

/// Made absolute, with "." and ".." taken out, and links resolved where the path exists.
std::string fullPath(const std::string& typed) {
  std::error_code error;
  const auto path = std::filesystem::weakly_canonical(std::filesystem::absolute(typed, error), error);
  return withoutSlashesAtEnd(error ? typed : path.string());
}

bool isBelow(const std::string& path, const std::string& mountPath) {
  return mountPath == "/" ||
         (path.size() > mountPath.size() && path.starts_with(mountPath) && path[mountPath.size()] == '/');
}

const MountedVolume* innermostAbove(const std::string& path, const std::vector<MountedVolume>& volumes) {
  const MountedVolume* innermost = nullptr;
  for (const MountedVolume& volume : volumes) {
    if (!isBelow(path, volume.mountPath)) continue;
    if (innermost == nullptr || volume.mountPath.size() > innermost->mountPath.size()) innermost = &volume;
  }
  return innermost;
}

std::string namesOf(const std::vector<MountedVolume>& volumes) {
  std::string names;
  for (const MountedVolume& volume : volumes) names += (names.empty() ? "" : ", ") + printable(volume.name);
  return names;
}

std::string refusalOf(const std::string& given, const std::vector<MountedVolume>& volumes) {
  if (volumes.empty()) return "No volume can be wiped: none is mounted";
  const std::string known = "the volumes are: " + namesOf(volumes);
  if (given.find('/') == std::string::npos) return "There is no volume \"" + printable(given) + "\"; " + known;
  if (const MountedVolume* above = innermostAbove(fullPath(given), volumes)) {
    return printable(given) + " is no volume but lies below " + printable(above->mountPath) + " on " +
           printable(above->name) + "; only a whole volume can be wiped, by its name or mount path";
  }
  return "No volume is mounted at " + printable(given) + "; " + known;
}

}  // namespace

VolumeChoice chooseVolume(const std::string& given, const std::vector<MountedVolume>& volumes) {
  const auto indexWhere = [&volumes](const auto& matches) -> std::optional<std::size_t> {
    const auto found = std::find_if(volumes.begin(), volumes.end(), matches);
    if (found == volumes.end()) return std::nullopt;
    return static_cast<std::size_t>(found - volumes.begin());
  };
  auto index = indexWhere([&given](const MountedVolume& volume) { return volume.name == given; });
  const std::string typed = withoutSlashesAtEnd(given);
  if (!index) index = indexWhere([&typed](const MountedVolume& volume) { return volume.mountPath == typed; });
  if (!index && given.find('/') != std::string::npos) {
    index = indexWhere([path = fullPath(given)](const MountedVolume& volume) { return volume.mountPath == path; });
  }
  return index ? VolumeChoice{index, ""} : VolumeChoice{std::nullopt, refusalOf(given, volumes)};
}

std::string ambiguityOf(const std::string& given, const MountedVolume& chosen,
                        const std::vector<MountedVolume>& volumes) {
  if (given != chosen.name || given == chosen.mountPath) return "";
  std::string places;
  int found = 0;
  for (const MountedVolume& volume : volumes) {
    if (volume.label != chosen.label) continue;
    places += (found++ == 0 ? "" : ", ") + printable(volume.mountPath);
  }
  if (found < 2) return "";
  return std::to_string(found) + " mounted volumes are called \"" + printable(chosen.label) +
         "\"; name the one that you mean by its mount path: " + places;
}

std::optional<std::size_t> numberUpTo(std::size_t count, const std::string& typed) {
  const std::string text = withSingleBlanks(typed);
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number < 1 || number > count) return std::nullopt;
  return number;
}

}  // namespace calvero
