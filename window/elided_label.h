#pragma once

#include <QLabel>

namespace calvero {

/// One line of plain text. What does not fit is left out in the middle, and then the tool tip shows all of it.
class ElidedLabel : public QLabel {
  Q_OBJECT
 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  /// What is painted, without the characters that only keep its direction.
  [[nodiscard]] QString shownText() const;

  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace calvero
