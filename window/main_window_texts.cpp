#include <utility>

#include "ports/localisation.h"
#include "ui_main_window.h"
#include "window/main_window.h"
#include "window/widget_text.h"

namespace calvero {
namespace {

// A name keeps its own direction on the screen, and is spoken without the characters that see to that.
void setName(QAbstractButton* button, const std::string& name) {
  button->setText(isolated(asTitle(name)));
  button->setAccessibleName(toText(name));
}

void describe(QWidget* widget, const std::string& description) {
  widget->setAccessibleDescription(toText(description));
  widget->setToolTip(plainToolTip(toText(description)));
}

}  // namespace

void MainWindow::setTexts(const Localisation& localisation) {
  ui_->buttonNext->setText(asTitle(localisation.localised("Next")));
  ui_->buttonBack->setText(asTitle(localisation.localised("Back")));
  ui_->buttonHome->setText(asTitle(localisation.localised("Home")));
  ui_->helpButton->setText(asTitle(localisation.localised("Help")));
  ui_->getItNow->setText(asTitle(localisation.localised("Get it now")));
  setName(ui_->facebookButton, localisation.localised("Facebook"));
  setName(ui_->twitterButton, localisation.localised("Twitter"));
  setName(ui_->googlePlusButton, localisation.localised("Google+"));
  ui_->completionPageOk->setText(asTitle(localisation.localised("OK")));
  completed_->setOkTexts(localisation.localised("OK"), localisation.localised("Returns to the drives."));
  ui_->volumeHeading->setText(toText(localisation.localised("Select a drive")));
  ui_->noDrivesTitle->setText(toText(localisation.localised("No drives found")));
  ui_->noDrivesHint->setText(toText(localisation.localised("Connect a drive, then press \"Reload Drives\".")));
  ui_->highly_secured->setText(toText(localisation.localised("Space to be erased: ")));
  ui_->tfCleanedSize->setAccessibleDescription(ui_->highly_secured->text().trimmed());
  ui_->volumePage->setTableHeading(toText(localisation.localised("Drives")));
  ui_->methodPage->setTexts(
      toText(localisation.localised("Passes: %1")), toText(localisation.localised("Writes nothing")),
      toText(localisation.localised("Writes nothing: the free space is laid out and given back as it was.")));
  describeVolumes(localisation);
  describeControls(localisation);
}

void MainWindow::describeVolumes(const Localisation& localisation) {
  driveTexts_ = {toText(localisation.localised("Fixed drive")),   toText(localisation.localised("Removable drive")),
                 toText(localisation.localised("Network drive")), toText(localisation.localised("File System :")),
                 toText(localisation.localised("Mount Path :")),  toText(localisation.localised("Drive Space :")),
                 toText(localisation.localised("Free Space :"))};
  ui_->collectionView->setDescriber([this](const MountedVolume& volume) {
    const auto size = [this](std::uint64_t bytes) { return formatSize_ ? toText(formatSize_(bytes)) : QString(); };
    const QString& local = volume.removable ? driveTexts_.removable : driveTexts_.fixed;
    return std::vector<VolumeDetail>{{QString(), volume.local ? local : driveTexts_.network},
                                     {driveTexts_.fileSystem, harmless(toText(volume.formatDescription))},
                                     {driveTexts_.mountPath, harmless(toText(volume.mountPath))},
                                     {driveTexts_.driveSpace, size(volume.totalBytes)},
                                     {driveTexts_.freeSpace, size(volume.availableBytes)}};
  });
}

void MainWindow::describeControls(const Localisation& localisation) {
  const std::string drives = localisation.localised("Drives");
  const std::string choose = localisation.localised("Choose the drive whose free space is to be erased.");
  for (QWidget* picker : {static_cast<QWidget*>(ui_->collectionView), static_cast<QWidget*>(ui_->tableview)}) {
    picker->setAccessibleName(toText(drives));
    picker->setAccessibleDescription(toText(choose));
  }
  describe(ui_->buttonNext, localisation.localised("Continues to the erase methods."));
  describe(ui_->buttonBack, localisation.localised("Returns to the drives."));
  describe(ui_->proceedBtn, localisation.localised("Starts erasing, after a question."));
  describe(ui_->cancelBut, localisation.localised("Stops erasing and removes the temporary files."));
  describe(ui_->reloadDrivers, localisation.localised("Lists the connected drives again."));
  describe(ui_->buttonHome, localisation.localised("Closes Calvero and opens Ondrel MORE."));
  describe(ui_->helpButton, localisation.localised("Opens the help page in the web browser."));
  for (QWidget* cloud : {static_cast<QWidget*>(ui_->getItNow), static_cast<QWidget*>(ui_->buttonCloud)}) {
    describe(cloud, localisation.localised("Opens the cloud portal in the web browser."));
  }
  for (QWidget* link : {ui_->facebookButton, ui_->twitterButton, ui_->googlePlusButton}) {
    describe(link, localisation.localised("Opens the page in the web browser."));
  }
  for (QWidget* progress : {static_cast<QWidget*>(ui_->piDataWipe), ui_->progressPage}) {
    progress->setAccessibleName(toText(localisation.localised("Progress")));
    progress->setAccessibleDescription(toText(localisation.localised("Erasing free space data securely")));
  }
  describe(ui_->completionPageOk, localisation.localised("Returns to the drives."));
}

void MainWindow::setSizeFormatter(std::function<std::string(std::uint64_t)> format) {
  formatSize_ = std::move(format);
}

void MainWindow::setPasses(const std::vector<int>& passes) {
  ui_->methodPage->setPasses(passes);
}

}  // namespace calvero
