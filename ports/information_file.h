#pragma once

#include <map>
#include <string>

namespace calvero {

/// The file in which the suite keeps the user's and the device's identifiers: a property list.
class InformationFile {
 public:
  virtual ~InformationFile() = default;

  /// The text entries of the property list's dictionary, integers as decimal text, at `path`. Empty when the file is
  /// missing, unreadable, damaged, larger than 1 MiB or holds no dictionary; never fails. Any thread; reads the whole
  /// file.
  virtual std::map<std::string, std::string> read(const std::string& path) = 0;
};

}  // namespace calvero
