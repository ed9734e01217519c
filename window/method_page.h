#pragma once

#include <QString>
#include <QWidget>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace calvero {

class ElidedLabel;
class LabelButton;
class SelectionButton;

/// The method page: a slot for each method, with a selection button, the method's label and its number of passes. The
/// slots are counted from 0. The layout gives the first nine, in the order of their names; for further methods the page
/// makes slots that look the same, and whose places go by the number of passes as those of the others do.
class MethodPage : public QWidget {
  Q_OBJECT
 public:
  explicit MethodPage(QWidget* parent = nullptr) : QWidget(parent) {}

  /// A slot has been pressed, by its button, its label or the arrow keys.
  std::function<void(int)> onMethod;

  /// Finds the layout's slots among the page's children; once, when they are there.
  void bind();
  /// One number for each method; makes the slots of those beyond the layout's.
  void setPasses(const std::vector<int>& passes);
  /// Label and state of a slot.
  void setLabel(std::size_t method, const QString& label);
  void turn(std::size_t method, bool on);
  /// How a number of passes is written, "%1" standing for it, what stands in its place for a method without any, and
  /// what is told about such a method.
  void setTexts(const QString& passes, const QString& withoutPasses, const QString& explanation);
  /// The labels or the captions above them have new texts.
  void refresh();
  /// Keyboard to the slot that is on.
  void focusCurrent();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Slot {
    SelectionButton* button;
    LabelButton* label;
    ElidedLabel* passesLabel;
    int passes = 0;
  };
  /// How thoroughly a method overwrites; the captions that the slots stand under.
  enum class Tier : std::uint8_t { low, medium, high };

  [[nodiscard]] static Tier tierOf(const Slot& slot);
  void addSlot(const Slot& slot);
  void makeSlot(int passes);
  void order();
  [[nodiscard]] int stepFor(int key) const;
  void moveBy(int step);
  void makeRoom();
  void letTabReach(const SelectionButton* checked);

  std::vector<Slot> slots_;          // by the method's number
  std::vector<std::size_t> onPage_;  // the methods from the top of the page to its end
  QString passesText_;
  QString withoutPasses_;
  QString explanation_;
};

}  // namespace calvero
