#pragma once

#include <QPushButton>

namespace calvero {

/// A button with room beside its title, however long a language makes it.
class PaddedButton : public QPushButton {
  Q_OBJECT
 public:
  explicit PaddedButton(QWidget* parent = nullptr) : QPushButton(parent) {}

  [[nodiscard]] QSize sizeHint() const override { return QPushButton::sizeHint() + QSize(kPadding, 0); }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  static constexpr int kPadding = 16;
};

}  // namespace calvero
