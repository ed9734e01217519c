#include "platform/suite/plist_bounds.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace calvero {

namespace {

constexpr int kMaxNodes = 10'000;
constexpr int kMaxDepth = 32;

/// The binary form: objects, then a table of their offsets, then 32 bytes that tell where the table is.
class BinaryWalk {
 public:
  explicit BinaryWalk(std::string_view bytes) : bytes_(bytes) {}

  bool isModest() {
    constexpr std::size_t kTrailerBytes = 32;
    if (bytes_.size() < kTrailerBytes) return false;
    const std::size_t trailer = bytes_.size() - kTrailerBytes;
    offsetBytes_ = *number(trailer + 6, 1);
    referenceBytes_ = *number(trailer + 7, 1);
    table_ = *number(trailer + 24, 8);
    return isModest(*number(trailer + 16, 8), 0);
  }

 private:
  using Number = std::optional<std::uint64_t>;

  [[nodiscard]] Number number(std::uint64_t position, std::uint64_t width) const {
    if (width == 0 || width > 8 || position > bytes_.size() || width > bytes_.size() - position) return {};
    std::uint64_t value = 0;
    for (const char byte : bytes_.substr(position, width)) value = value << 8U | static_cast<unsigned char>(byte);
    return value;
  }

  /// The count of a container's items, with `position` moved behind it.
  [[nodiscard]] Number count(std::uint64_t marker, std::uint64_t& position) const {
    constexpr std::uint64_t kLow = 0x0F;
    if ((marker & kLow) != kLow) return marker & kLow;
    const Number form = number(position, 1);
    if (!form || (*form & kLow) > 3) return {};
    const std::uint64_t width = 1U << (*form & kLow);
    const Number items = number(position + 1, width);
    position += 1 + width;
    return items;
  }

  bool isModest(std::uint64_t object, int depth) {
    if (depth > kMaxDepth || ++nodes_ > kMaxNodes || object > bytes_.size() || table_ > bytes_.size()) return false;
    const Number offset = number(table_ + object * offsetBytes_, offsetBytes_);
    const Number marker = offset ? number(*offset, 1) : Number();
    if (!marker) return false;
    const std::uint64_t kind = *marker >> 4U;
    const bool isText = kind == kAsciiText || kind == kWideText;
    if (!isText && kind < kArray) return true;
    std::uint64_t position = *offset + 1;
    const Number items = count(*marker, position);
    if (!items || *items > bytes_.size()) return false;
    if (isText) return holdsNoNul(position, *items, kind == kWideText ? 2 : 1);
    return areModest(position, *items * (kind == kDictionary ? 2 : 1), depth + 1);
  }

  bool areModest(std::uint64_t position, std::uint64_t references, int depth) {
    for (std::uint64_t index = 0; index < references; ++index) {
      const Number reference = number(position + index * referenceBytes_, referenceBytes_);
      if (!reference || !isModest(*reference, depth)) return false;
    }
    return true;
  }

  [[nodiscard]] bool holdsNoNul(std::uint64_t position, std::uint64_t letters, std::uint64_t width) const {
    for (std::uint64_t index = 0; index < letters; ++index) {
      const Number letter = number(position + index * width, width);
      if (!letter || *letter == 0) return false;
    }
    return true;
  }

  static constexpr std::uint64_t kAsciiText = 0x5;
  static constexpr std::uint64_t kWideText = 0x6;
  static constexpr std::uint64_t kArray = 0xA;
  static constexpr std::uint64_t kDictionary = 0xD;

  const std::string_view bytes_;
  std::uint64_t offsetBytes_ = 0;
  std::uint64_t referenceBytes_ = 0;
  std::uint64_t table_ = 0;
  int nodes_ = 0;
};

/// Nothing is nested deeper than there are opening tags.
bool isModestText(std::string_view text) {
  return std::ranges::count(text, '<') <= kMaxNodes && std::ranges::count(text, '\0') == 0;
}

}  // namespace

bool isModestPropertyList(std::string_view bytes) {
  return bytes.starts_with("bplist") ? BinaryWalk(bytes).isModest() : isModestText(bytes);
}

}  // namespace calvero
