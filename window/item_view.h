#pragma once

#include <QIcon>
#include <QWidget>
#include <functional>

namespace calvero {

class ElidedLabel;
class RedisplayClock;

/// One tile: a volume's icon below its name. After every paint it asks the clock to be painted again.
class ItemView : public QWidget {
  Q_OBJECT
 public:
  /// A tile without its label, at `frame`.
  ItemView(const QRect& frame, RedisplayClock& clock, QWidget* parent = nullptr);
  /// Makes `titleField` for the frame that the tile has now.
  void initWithCoder();

  /// The tile has been pressed, by pointer or assistive technology.
  std::function<void()> onPressed;

  [[nodiscard]] bool selected() const { return selected_; }
  void setSelected(bool selected);
  [[nodiscard]] const QString& title() const { return title_; }
  void setTitle(const QString& title);
  /// Shows the title and draws the tile at once.
  void setVolString();
  void setIcon(const QIcon& icon);

  [[nodiscard]] ElidedLabel* titleField() const { return titleField_; }

  /// A size into which the label and the icon fit.
  [[nodiscard]] static QSize fittingSize(const QFontMetrics& metrics);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void paintFrame(QPainter& painter) const;
  void paintCheckMark(QPainter& painter) const;
  void colourTitle();

  RedisplayClock& clock_;
  ElidedLabel* titleField_ = nullptr;
  QString title_;
  QIcon icon_;
  bool selected_ = false;
};

}  // namespace calvero
