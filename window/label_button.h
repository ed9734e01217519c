#pragma once

#include <QPushButton>

namespace calvero {

/// A button that looks like a text: it begins where a text begins, and wraps rather than being cut.
class LabelButton : public QPushButton {
  Q_OBJECT
 public:
  explicit LabelButton(QWidget* parent = nullptr);

  /// The title as it is read, without doubled '&'.
  [[nodiscard]] QString label() const;

  /// Whether the focus frame is drawn: for the button beside, which has the keyboard but no text to frame.
  void setFramed(bool framed);

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool framed_ = false;
};

}  // namespace calvero
