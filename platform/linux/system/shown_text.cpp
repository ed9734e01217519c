#include "platform/linux/system/shown_text.h"

namespace calvero {

namespace {

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

}  // namespace

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
  return {codePoint, lead.bytes};
}

bool isShown(char32_t c) {
  const bool isControl = c < 0x20 || (c >= 0x7F && c <= 0x9F);
  const bool changesDirection =
      c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
  const bool breaksLine = c == 0x2028 || c == 0x2029;
  return !isControl && !changesDirection && !breaksLine;
}

}  // namespace calvero
