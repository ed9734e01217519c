#pragma once

#include <QString>
#include <QWidget>
#include <array>
#include <cstddef>
#include <functional>

namespace calvero {

class LabelButton;
class SelectionButton;

/// The method page: nine slots, each a selection button with the method's label and number of passes. The slots are
/// counted from 0, in the order of their names.
class MethodPage : public QWidget {
  Q_OBJECT
 public:
  static constexpr std::size_t kMethods = 9;

  explicit MethodPage(QWidget* parent = nullptr) : QWidget(parent) {}

  /// A slot has been pressed, by its button, its label or the arrow keys.
  std::function<void(int)> onMethod;

  /// Finds the slots among the page's children; once, when they are there.
  void bind();
  void setPasses(const std::array<int, kMethods>& passes);
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
  [[nodiscard]] int stepFor(int key) const;
  void moveBy(int step);
  void makeRoom();
  void letTabReach(const SelectionButton* checked);

  std::array<SelectionButton*, kMethods> buttons_{};
  std::array<LabelButton*, kMethods> labels_{};
  std::array<int, kMethods> passes_{};
  QString passesText_;
  QString withoutPasses_;
  QString explanation_;
};

}  // namespace calvero
