#pragma once

#include <QPointer>
#include <QWidget>

#include "ports/alerts.h"

namespace calvero {

class Localisation;

/// Alerts as modal dialogs.
class QtAlerts : public Alerts {
 public:
  explicit QtAlerts(const Localisation& localisation) : localisation_(localisation) {}

  AlertAnswer runModal(const Alert& alert) override;

  /// The notice with a command for a terminal, in one line, and a button that copies it. Blocks as `runModal` does.
  void showCommand(const Alert& notice, const std::string& command);

  /// The window that alerts appear over for as long as it is on the screen.
  void setMainWindow(QWidget* window) { mainWindow_ = window; }

 private:
  AlertAnswer show(const Alert& alert, const std::string& command);
  [[nodiscard]] QWidget* parentForAlert() const;

  const Localisation& localisation_;
  QPointer<QWidget> mainWindow_;
};

}  // namespace calvero
