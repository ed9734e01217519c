#include <exception>

#include "app/app_delegate.h"
#include "ports/controls.h"
#include "ports/event_loop.h"
#include "ports/localisation.h"
#include "ports/system_log.h"
#include "ports/system_notifications.h"

namespace calvero {

AppDelegate::AppDelegate(const Ports& ports, const FixedValues& fixed)
    : ports_(ports),
      fixed_(fixed),
      authentication_(ports.tagStore, ports.suiteWeb),
      collectionView_(ports.controls, notifications_, shell_.currentSelectionG),
      run_(std::make_shared<WipeRun>(ports.eventLoop, ports.controls, ports.alerts)) {
  init();
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::init() {
  ports_.log.line("init");
  ports_.controls.clearVolumes();
  auto table = std::make_shared<VolumeTable>();
  shell_.createFilePath = "test";
  shell_.mutdictForArrayController.clear();
  volumes_ = std::move(table);
  shell_.selectedVolumePath = " ";
  shell_.dictEraseOption.clear();

  replaceRun();
  run_->abortErasing = 0;
  shell_.eraseCompleted = 0;
  shell_.wipingProcessOn = 0;
  run_->volumeEjected = 0;
  choice_.numPassSelected = 1;
  choice_.eraseMethodSelected = 0;

  shell_.mcv = MyCollectionView();
  shell_.curSel = CurrentSelection();
  shell_.currentSelectionG = 0;
  authentication_ = Authentication(ports_.tagStore, ports_.suiteWeb);
  readRemoteOrder();
  loadVolumes();
}

void AppDelegate::applicationDidFinishLaunching() {
  run_->terminateThread = 0;
  shell_.cancelNumber = 0;
  shell_.display = 1;
  ports_.systemNotifications.observe(kCancelNotificationName, kCancelNotificationObject, [this] { cancelProcess(); });
  setHideIBObjectsAtLaunch();
  createBuffersForErasing();
  try {
    setSelectedVolumeDescription();
  } catch (const std::exception& error) {
    // No volume at all: the program starts all the same, and a volume may be mounted later.
    ports_.log.line(std::string("no volume to describe: ") + error.what());
  }
  if (order_.cloudInitiation != 0) {
    myCloud();
    order_.cvrTimer =
        ports_.eventLoop.startTimer(kCancelPollInterval, TimerKind::repeating, [this] { checkForTermination(); });
  }
  notifications_.addObserver(kSelectionChanged, [this] { collectionViewDidChangeSelection(); });
}

void AppDelegate::setHideIBObjectsAtLaunch() {
  Controls& controls = ports_.controls;
  for (const Control button : {Control::buttonBack, Control::buttonProceed, Control::buttonCancel}) {
    controls.hide(button);
    controls.redraw(button);
  }
  for (const Control button : {Control::buttonHome, Control::buttonNext}) {
    controls.show(button);
    controls.redraw(button);
  }
  shell_.wipingProcessOn = 0;
  run_->volumeEjected = 0;
}

void AppDelegate::reportUnknownError(WipeRun& run) {
  run.end(RunOutcome::failed);
  if (order_.cloudInitiation != 0) {
    reportToOrderer(run, RunOutcome::failed);
  } else {
    run.screen.runModal({localised("Information"), localised("Unknown Error Occured"),
                         localised("Relaunch the application"), localised("")});
  }
  endApplication(run);
}

void AppDelegate::endApplication(WipeRun& run) {
  run.applicationEnding = 1;
  // A run that a newer one has superseded must not end the program under it.
  if (run.screen.standing() == RunStanding::superseded) return;
  // A program that ended under a cancel would take its removal of the filler files along, half done.
  CancelWait wait = CancelWait::waiting;
  const bool isLeftToTheCancel = cancelWait_.compare_exchange_strong(wait, CancelWait::endsTheApplication);
  if (!isLeftToTheCancel && wait != CancelWait::endsTheApplication) ports_.eventLoop.terminate();
}

std::string AppDelegate::localised(const std::string& key) const {
  return ports_.localisation.localised(key);
}

}  // namespace calvero
