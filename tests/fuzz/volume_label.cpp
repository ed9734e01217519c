#include "platform/linux/volume_label.h"

#include <algorithm>
#include <set>
#include <vector>

#include "platform/linux/volume_names.h"
#include "tests/fuzz/fuzzing.h"

namespace calvero::fuzzing {
namespace {

/// A label fit to be shown, out of a line as the device's database tells it.
std::string shown(std::string_view encoded) {
  const std::string raw = decodeUdevText(encoded);
  require(raw.size() <= encoded.size(), "decoding makes nothing longer");
  std::string label = printableLabel(raw);
  require(printableLabel(label) == label, "a label that is fit to be shown stays as it is");
  const auto isControl = [](unsigned char byte) { return byte < ' ' || byte == 0x7F; };
  require(std::ranges::none_of(label, isControl), "no control character is shown");
  require(!label.starts_with(' ') && !label.ends_with(' '), "no blanks stay at the ends");
  return label;
}

/// Each line is the label of one volume.
void nameVolumes(std::string_view lines) {
  std::vector<NameRequest> requests;
  while (!lines.empty()) {
    const std::string_view line = lines.substr(0, lines.find('\n'));
    lines.remove_prefix(std::min(lines.size(), line.size() + 1));
    if (std::string label = shown(line); !label.empty()) requests.push_back({.label = std::move(label), .name = {}});
  }
  const std::vector<std::string> names = uniqueNames(requests);
  require(names.size() == requests.size(), "each volume gets a name");
  require(std::set(names.begin(), names.end()).size() == names.size(), "no two names are alike");
}

}  // namespace
}  // namespace calvero::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t bytes) {
  const std::string_view text = calvero::fuzzing::textOf(data, bytes);
  calvero::fuzzing::shown(text);
  calvero::fuzzing::nameVolumes(text);
  return 0;
}
