#pragma once

#include <QTextLayout>
#include <memory>
#include <vector>

class QPainter;
class QWidget;

namespace calvero {

/// A plain text broken into lines, once for its height and once for drawing, so that both agree at every scale. A word
/// too long for a line is broken.
class WrappedText {
 public:
  /// `alignment` as if read from left to right; the widget's direction mirrors it.
  WrappedText(const QString& text, const QWidget& widget, Qt::Alignment alignment, int width);

  [[nodiscard]] int height() const;
  void draw(QPainter& painter, const QRect& room) const;

  /// The width without which a usual word would have to be broken.
  static int widthOfLongestWord(const QString& text, const QFontMetrics& metrics);

 private:
  std::vector<std::unique_ptr<QTextLayout>> paragraphs_;
  Qt::Alignment alignment_;
  double height_ = 0.0;
};

}  // namespace calvero
