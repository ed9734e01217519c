#include "platform/terminal/text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cwchar>
#include <optional>

namespace calvero {
namespace {

struct Character {
  std::optional<char32_t> codePoint;  ///< nothing for a byte that is not UTF-8
  std::size_t bytes = 1;
};

std::size_t sequenceBytes(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  if (first >= 0xF0 && first < 0xF5) return 4;
  return 0;
}

Character firstCharacter(std::string_view text) {
  constexpr std::array<char32_t, 5> kSmallest{0, 0, 0x80, 0x800, 0x10000};
  constexpr std::array<unsigned, 5> kFirstBits{0, 0x7F, 0x1F, 0x0F, 0x07};
  const auto byteAt = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const std::size_t bytes = sequenceBytes(byteAt(0));
  if (bytes == 0 || bytes > text.size()) return {};
  char32_t codePoint = byteAt(0) & kFirstBits[bytes];
  for (std::size_t at = 1; at < bytes; ++at) {
    if ((byteAt(at) & 0xC0) != 0x80) return {};
    codePoint = (codePoint << 6) | (byteAt(at) & 0x3FU);
  }
  const bool isSurrogate = codePoint >= 0xD800 && codePoint < 0xE000;
  if (codePoint < kSmallest[bytes] || codePoint > 0x10FFFF || isSurrogate) return {};
  return {codePoint, bytes};
}

bool isHarmless(char32_t c) {
  const bool isControl = c < 0x20 || (c >= 0x7F && c < 0xA0);
  const bool changesDirection =
      c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
  const bool breaksLine = c == 0x2028 || c == 0x2029;
  return !isControl && !changesDirection && !breaksLine;
}

std::string octal(std::string_view bytes) {
  std::string escaped;
  for (const char byte : bytes) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "\\%03o", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    escaped += text.data();
  }
  return escaped;
}

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::string printable(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const Character next = firstCharacter(text);
    const std::string_view bytes = text.substr(0, next.bytes);
    if (next.codePoint && isHarmless(*next.codePoint)) {
      shown += bytes;
    } else {
      shown += octal(bytes);
    }
    text.remove_prefix(next.bytes);
  }
  return shown;
}

std::string withJsonEscapes(std::string_view json) {
  std::string escaped;
  while (!json.empty()) {
    const Character next = firstCharacter(json);
    const bool isKept = !next.codePoint || isHarmless(*next.codePoint) || *next.codePoint == '\n';
    std::array<char, 8> escape{};
    if (!isKept) std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(*next.codePoint));
    escaped += isKept ? json.substr(0, next.bytes) : std::string_view(escape.data());
    json.remove_prefix(next.bytes);
  }
  return escaped;
}

std::size_t columnsOf(std::string_view text) {
  std::size_t columns = 0;
  while (!text.empty()) {
    const Character next = firstCharacter(text);
    const int width = next.codePoint ? ::wcwidth(static_cast<wchar_t>(*next.codePoint)) : 1;
    columns += width < 0 ? 1 : static_cast<std::size_t>(width);
    text.remove_prefix(next.bytes);
  }
  return columns;
}

std::string withSingleBlanks(std::string_view text) {
  std::string single;
  for (const char c : text) {
    if (c != ' ' || (!single.empty() && single.back() != ' ')) single += c;
  }
  if (!single.empty() && single.back() == ' ') single.pop_back();
  return single;
}

bool equalIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

}  // namespace calvero
