#pragma once

#include <QRadioButton>

namespace calvero {

/// Looks like one of several exclusive choices. Pressing it changes nothing by itself: what is on is decided elsewhere,
/// by `setChecked`.
class SelectionButton : public QRadioButton {
  Q_OBJECT
 public:
  explicit SelectionButton(QWidget* parent = nullptr) : QRadioButton(parent) {
    setAutoExclusive(false);
    setFocusPolicy(Qt::StrongFocus);
  }

 protected:
  void nextCheckState() override {}
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace calvero
