#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calvero {

/// A label fit to be shown, as valid UTF-8 without blanks at its ends: invalid bytes, control characters, and
/// characters that break lines or change the direction of writing each become U+FFFD. Empty when nothing is left.
std::string printableLabel(std::string_view raw);

/// A label as a volume's name: printable, and with U+FFFD for a slash at its start. A stick labelled "/home" would else
/// be erased in place of what is mounted there by whoever names that path.
std::string nameFromLabel(std::string_view raw);

/// The last part of an absolute path; "/" for the root.
std::string lastPartOf(const std::string& path);

/// One volume that is to be named.
struct NameRequest {
  std::string label;  ///< printable, not empty; not looked at when there is a name already
  std::string name;   ///< the name that the volume has, or empty
};

/// A name for each volume, no two alike. Names that volumes have stay. Of the others the first of a label is named by
/// it, further ones get " 1", " 2" and so on, passing over what is the name or the label of another volume.
std::vector<std::string> uniqueNames(const std::vector<NameRequest>& requests);

}  // namespace calvero
