#include "platform/linux/volumes/volume_names.h"

#include <algorithm>
#include <cstdint>
#include <set>

#include "platform/linux/system/last_part.h"
#include "platform/linux/system/shown_text.h"

namespace calvero {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

std::string freeName(const std::string& label, const std::set<std::string>& taken) {
  for (std::uint64_t number = 1;; ++number) {
    std::string name = label + ' ' + std::to_string(number);
    if (!taken.contains(name)) return name;
  }
}

}  // namespace

std::string printableLabel(std::string_view raw) {
  std::string shown;
  while (!raw.empty()) {
    const Character character = firstCharacter(raw);
    shown += character.codePoint && isShown(*character.codePoint) ? raw.substr(0, character.bytes) : kReplacement;
    raw.remove_prefix(character.bytes);
  }
  const std::size_t first = shown.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return shown.substr(first, shown.find_last_not_of(' ') - first + 1);
}

std::string nameFromLabel(std::string_view raw) {
  std::string name = printableLabel(raw);
  return name.starts_with('/') ? name.replace(0, 1, kReplacement) : name;
}

std::string lastPartOf(const std::string& path) {
  return path == "/" ? path : lastPart(path);
}

std::vector<std::string> uniqueNames(const std::vector<NameRequest>& requests) {
  std::set<std::string> taken;
  for (const NameRequest& request : requests) {
    if (!request.name.empty()) taken.insert(request.name);
  }
  std::vector<std::string> names;
  for (const NameRequest& request : requests) {
    const bool isFirstOfItsLabel = request.name.empty() && taken.insert(request.label).second;
    names.push_back(isFirstOfItsLabel ? request.label : request.name);
  }
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (!names[i].empty()) continue;
    names[i] = freeName(requests[i].label, taken);
    taken.insert(names[i]);
  }
  return names;
}

}  // namespace calvero
