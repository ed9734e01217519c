#include "platform/linux/volumes/volume_label.h"

#include <iconv.h>

#include <algorithm>
#include <set>
#include <vector>

#include "platform/linux/volumes/volume_names.h"
#include "tests/fuzz/fuzzing.h"

namespace calvero::fuzzing {
namespace {

constexpr std::u32string_view kTurnsOrBreaks =
    U"\u061C\u200E\u200F\u2028\u2029\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069";

/// The characters of a text, as the C library reads them.
std::u32string charactersOf(std::string text) {
  static const iconv_t decoder = ::iconv_open("UTF-32LE", "UTF-8");
  std::u32string characters(text.size(), U'\0');
  char* from = text.data();
  char* to = reinterpret_cast<char*>(characters.data());
  std::size_t left = text.size();
  std::size_t room = characters.size() * sizeof(char32_t);
  require(::iconv(decoder, &from, &left, &to, &room) != static_cast<std::size_t>(-1), "what is shown is valid UTF-8");
  characters.resize(characters.size() - room / sizeof(char32_t));
  return characters;
}

bool isHarmful(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0) || kTurnsOrBreaks.find(c) != std::u32string_view::npos;
}

void requireFitToBeShown(const std::string& text) {
  require(std::ranges::none_of(charactersOf(text), isHarmful), "nothing is shown that controls, turns or breaks");
  require(!text.starts_with(' ') && !text.ends_with(' '), "no blanks stay at the ends");
  require(printableLabel(text) == text, "what is fit to be shown stays as it is");
}

/// A name for a volume, out of a line as the device's database tells its label.
std::string named(std::string_view encoded) {
  const std::string raw = decodeUdevText(encoded);
  require(raw.size() <= encoded.size(), "decoding makes nothing longer");
  const std::string label = printableLabel(raw);
  requireFitToBeShown(label);
  std::string name = nameFromLabel(raw);
  requireFitToBeShown(name);
  require(!name.starts_with('/'), "no name stands for a path");
  require(label.starts_with('/') ? name.ends_with(label.substr(1)) : name == label, "only a slash is replaced");
  return name;
}

/// Each line is the label of one volume; with an equals sign before it, the name that a volume has already.
void nameVolumes(std::string_view lines) {
  std::vector<NameRequest> requests;
  std::set<std::string> had;
  while (!lines.empty()) {
    const std::string_view line = lines.substr(0, lines.find('\n'));
    lines.remove_prefix(std::min(lines.size(), line.size() + 1));
    const bool isName = line.starts_with('=');
    std::string text = named(isName ? line.substr(1) : line);
    if (text.empty() || (isName && !had.insert(text).second)) continue;
    requests.push_back(isName ? NameRequest{.label = {}, .name = text} : NameRequest{.label = text, .name = {}});
  }
  const std::vector<std::string> names = uniqueNames(requests);
  require(names.size() == requests.size(), "each volume gets a name");
  require(std::set(names.begin(), names.end()).size() == names.size(), "no two names are alike");
  for (std::size_t i = 0; i < names.size(); ++i) {
    require(requests[i].name.empty() || names[i] == requests[i].name, "names that volumes have stay");
  }
}

}  // namespace
}  // namespace calvero::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t bytes) {
  const std::string_view text = calvero::fuzzing::textOf(data, bytes);
  calvero::fuzzing::named(text);
  calvero::fuzzing::nameVolumes(text);
  return 0;
}
