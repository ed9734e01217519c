#pragma once

#include <cstddef>

namespace calvero {

/// The picker's two indexes: the tile that is drawn as selected, and the one before it. The controller keeps a spare
/// one that is never shown nor read.
class MyCollectionView {
 public:
  [[nodiscard]] std::size_t currentSelection() const { return currentSelection_; }
  [[nodiscard]] std::size_t previousSelection() const { return previousSelection_; }

 private:
  std::size_t currentSelection_ = 0;
  std::size_t previousSelection_ = 0;
};

/// Declared for layouts that name them; they have no behaviour.
class Volumes {};
class TableViewController {};

}  // namespace calvero
