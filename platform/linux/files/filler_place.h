#pragma once

#include <optional>
#include <string>

#include "platform/linux/files/open_folder.h"
#include "ports/error.h"

namespace calvero {

/// What becomes of a directory of ours whose mode keeps even us out of it.
enum class IfClosed { leave, open };

/// The name in a volume's root under which a filler directory is, or will be. The volume is treated as hostile: what
/// is found under the name is believed to be a run's only after it has been looked at.
class FillerPlace {
 public:
  /// Opens the volume's root. Nothing, with `error` filled, on failure.
  static std::optional<FillerPlace> open(const std::string& volumePath, const std::string& directoryPath, Error& error);

  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] const std::string& volumePath() const { return volumePath_; }
  /// The volume's root as it was opened.
  [[nodiscard]] const FileIdentity& root() const { return root_.identity; }
  /// The volume's device number.
  [[nodiscard]] dev_t device() const { return root_.identity.device; }
  /// Where files have no owners of their own and show the mount's owner instead, as on FAT.
  [[nodiscard]] bool showsNoOwners() const { return showsNoOwners_; }

  /// Whether there is nothing under the name.
  [[nodiscard]] bool isFree() const;
  /// Whether a directory could be made under the name. Makes nothing.
  [[nodiscard]] Error checkWritable() const;
  /// Makes the directory, mode 0700; `exists` when the name is taken.
  [[nodiscard]] Error makeDirectory() const;
  /// Opens the directory under the name if it may be a run's: `notOurs` for a link, a mount point, another user's
  /// directory, and what is no directory at all.
  OpenFolder openDirectory(IfClosed ifClosed, Error& error) const;
  /// Whether there is a directory of ours under the name that only `IfClosed::open` opens.
  [[nodiscard]] bool isClosedToUs() const;
  /// Whether the name still leads to that directory.
  [[nodiscard]] bool leadsTo(const OpenFolder& directory) const;
  /// Removes the directory, which must be empty, by its name, or by the one that it was given since in the volume's
  /// root. `notOurs` when it was moved elsewhere.
  [[nodiscard]] Error removeDirectory(const OpenFolder& directory) const;

 private:
  FillerPlace(OpenFolder root, std::string volumePath, std::string path);
  [[nodiscard]] const char* whyNotOurs(const FileIdentity& found) const;
  [[nodiscard]] bool removeFromWhereItIs(const OpenFolder& directory) const;

  OpenFolder root_;
  std::string volumePath_;
  std::string path_;
  std::string name_;
  bool showsNoOwners_;
};

}  // namespace calvero
