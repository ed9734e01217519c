#pragma once

#include <QLabel>

namespace calvero {

/// Plain text in as many lines as its width asks for. A word too long for a line is broken: volumes may have any name.
class WrappedLabel : public QLabel {
  Q_OBJECT
 public:
  explicit WrappedLabel(QWidget* parent = nullptr);

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace calvero
