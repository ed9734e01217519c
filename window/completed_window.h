#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <string>

namespace Ui {
class CompletedWindow;
}

namespace calvero {

enum class OutcomeKind { finished, warning };

/// The icon that stands for an outcome.
QIcon iconFor(OutcomeKind kind);

/// A message has a title and can be closed, and is neither minimised, maximised nor resized.
extern const Qt::WindowFlags kMessageFlags;

/// The small window that tells a run's end. It stays until whoever is told by `onOk` takes it away.
class CompletedWindow : public QDialog {
  Q_OBJECT
 public:
  explicit CompletedWindow(QWidget* mainWindow);
  ~CompletedWindow() override;

  /// The button, Enter, Escape, or the window's own close button.
  std::function<void()> onOk;

  void setOutcome(const QString& text, OutcomeKind kind);
  void setOkTexts(const std::string& title, const std::string& description);

  /// Enter does what Escape does: there is only one answer.
  void accept() override { reject(); }
  void reject() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::unique_ptr<Ui::CompletedWindow> ui_;
};

}  // namespace calvero
