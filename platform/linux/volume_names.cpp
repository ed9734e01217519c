#include "platform/linux/volume_names.h"

#include <algorithm>
#include <cstdint>
#include <set>

namespace calvero {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

struct Character {
  std::size_t bytes = 1;
  char32_t codePoint = 0;
  bool valid = false;
};

struct Lead {
  std::size_t bytes = 0;  // 0: no character begins with this byte
  char32_t bits = 0;
  char32_t smallest = 0;  // below it, the same character has a shorter form, which alone is valid
};

Lead leadOf(unsigned char byte) {
  if (byte < 0x80) return {1, byte, 0};
  if ((byte & 0xE0U) == 0xC0) return {2, byte & 0x1FU, 0x80};
  if ((byte & 0xF0U) == 0xE0) return {3, byte & 0x0FU, 0x800};
  if ((byte & 0xF8U) == 0xF0) return {4, byte & 0x07U, 0x10000};
  return {};
}

/// The first character of a text that is not empty; one byte that is not valid when none begins there.
Character firstCharacter(std::string_view text) {
  const Lead lead = leadOf(static_cast<unsigned char>(text.front()));
  if (lead.bytes == 0 || lead.bytes > text.size()) return {};
  char32_t codePoint = lead.bits;
  for (const char next : text.substr(1, lead.bytes - 1)) {
    const auto byte = static_cast<unsigned char>(next);
    if ((byte & 0xC0U) != 0x80) return {};
    codePoint = (codePoint << 6U) | (byte & 0x3FU);
  }
  const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
  if (codePoint < lead.smallest || codePoint > 0x10FFFF || isSurrogate) return {};
  return {lead.bytes, codePoint, true};
}

bool isShown(char32_t c) {
  const bool isControl = c < 0x20 || (c >= 0x7F && c <= 0x9F);
  const bool changesDirection =
      c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
  const bool breaksLine = c == 0x2028 || c == 0x2029;
  return !isControl && !changesDirection && !breaksLine;
}

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
    shown += character.valid && isShown(character.codePoint) ? raw.substr(0, character.bytes) : kReplacement;
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
  return path == "/" ? path : path.substr(path.rfind('/') + 1);
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
