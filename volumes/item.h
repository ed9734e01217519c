#pragma once

#include <memory>
#include <string>
#include <utility>

namespace calvero {

class Image;  // a toolkit's own

/// The model of one tile of the drive picker.
class Item {
 public:
  /// No tile of the catalogue is made this way; the title tells a stray one apart.
  Item() : Item("Test Title") {}
  explicit Item(std::string title) : title_(std::move(title)) {}

  [[nodiscard]] const std::string& title() const { return title_; }
  /// Never set: the face draws its own picture for a kind of drive.
  [[nodiscard]] const std::shared_ptr<const Image>& iconImage() const { return iconImage_; }

 private:
  std::string title_;
  std::shared_ptr<const Image> iconImage_;
};

}  // namespace calvero
