#pragma once

#include <cstddef>
#include <vector>

namespace calvero {

class Controls;
class NotificationCentre;

/// The selection rule of the drive picker's tiles. Event loop thread.
class MyCollectionView {
 public:
  /// Ascending, as the view hands them over; empty after a click on empty space.
  using Indexes = std::vector<std::size_t>;

  /// A spare one, which is never shown: a selection changes nothing.
  MyCollectionView() = default;
  /// `currentSelectionG` is the index that is shared with the controller.
  MyCollectionView(Controls& controls, NotificationCentre& notifications, std::size_t& currentSelectionG)
      : controls_(&controls), notifications_(&notifications), currentSelectionG_(&currentSelectionG) {}

  /// The user has chosen: keeps one tile drawn as selected and posts "SelectionChanged".
  void setSelectionIndexes(const Indexes& indexes);
  /// An older form of the rule, which nothing here calls: it does not look whether the list has shrunk. Kept for its
  /// name.
  void setSelectionIndexes3(const Indexes& indexes);
  void reloadView() {}

  /// The tile that is drawn as selected.
  [[nodiscard]] std::size_t currentSelection() const { return currentSelection_; }
  /// The one before the last change.
  [[nodiscard]] std::size_t previousSelection() const { return previousSelection_; }

 private:
  void moveSelection(const Indexes& indexes);

  Controls* controls_ = nullptr;
  NotificationCentre* notifications_ = nullptr;
  std::size_t* currentSelectionG_ = nullptr;
  std::size_t currentSelection_ = 0;
  std::size_t previousSelection_ = 0;
};

}  // namespace calvero
