#include "terminal/text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cwchar>

#include "platform/linux/system/shown_text.h"

namespace calvero {
namespace {

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
    if (next.codePoint && isShown(*next.codePoint)) {
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
    const bool isKept = !next.codePoint || isShown(*next.codePoint) || *next.codePoint == '\n';
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
