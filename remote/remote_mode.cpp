#include <utility>

#include "app/app_delegate.h"
#include "ports/controls.h"
#include "ports/event_loop.h"
#include "ports/mounted_volumes.h"
#include "ports/suite_web.h"
#include "ports/system_log.h"
#include "ports/tag_store.h"
#include "remote/order_result.h"

namespace calvero {
namespace {

/// A volume that was busy when it was listed answers after a while, or never.
constexpr int kMostListings = 5;
constexpr std::chrono::seconds kPauseBetweenListings{2};

}  // namespace

std::optional<std::string> Authentication::GetValueForTag(const std::string& tag) {
  return store_->value(tag);
}

void Authentication::SetValueForTag(const std::string& tag, const std::string& value) {
  store_->setValue(tag, value);
}

void Authentication::ondrelSoftwareWeb(std::int32_t page) {
  web_->openPage(page);
}

void AppDelegate::readRemoteOrder() {
  const auto online = authentication_.GetValueForTag(kTagOnline);
  order_.cloudInitiation = 0;
  if (online != "1") return;
  order_.cloudInitiation = 1;
  order_.CDriveName = authentication_.GetValueForTag(kTagDrive).value_or("");
  order_.algo = authentication_.GetValueForTag(kTagAlgo).value_or("");
  const bool isOurs = authentication_.GetValueForTag(kTagNamed) == order_.CDriveName;
  order_.mountPath = isOurs ? authentication_.GetValueForTag(kTagMountPath).value_or("") : "";
  order_.volumeUuid = isOurs ? authentication_.GetValueForTag(kTagVolumeUuid).value_or("") : "";
}

bool AppDelegate::isOrdered(const MountedVolume& volume) const {
  if (volume.name != order_.CDriveName) return false;
  // One that did not answer is listed again before it is wiped.
  const bool hasAnswered = volume.totalBytes != 0;
  const bool isElsewhere = !order_.mountPath.empty() && volume.mountPath != order_.mountPath;
  const bool isAnother = !order_.volumeUuid.empty() && volume.uuid != order_.volumeUuid && hasAnswered;
  if (!isElsewhere && !isAnother) return true;
  ports_.log.line("the volume " + volume.name + " is not the one that was ordered: it is mounted at " +
                  volume.mountPath + " with the UUID \"" + volume.uuid + "\", ordered was the one at " +
                  order_.mountPath + " with the UUID \"" + order_.volumeUuid + "\"");
  return false;
}

void AppDelegate::myCloud() {
  shell_.display = 0;
  ports_.controls.orderOut(Control::window);
  ports_.controls.leaveTaskBar();
  if (selection().capacityBytes() == 0 && !learnsSize()) return;
  proceed();
}

/// Without a size its free space would be taken for nothing, and the run would tell a success.
bool AppDelegate::learnsSize() {
  for (int listing = 0; listing < kMostListings; ++listing) {
    ports_.eventLoop.serveUntil([] { return false; }, kPauseBetweenListings);
    if (order_.cloudTerm != 0) return false;  // cancelled meanwhile
    ports_.controls.clearVolumes();
    volumes_ = std::make_shared<VolumeTable>();
    listVolumes();
    endOrderWithoutVolume();
    if (volumes_->volumeNameArray.empty()) return false;  // told, as a volume that is not mounted
    if (selection().capacityBytes() != 0) return true;
  }
  ports_.log.notice("the volume does not tell its size; nothing is wiped");
  reportUnknownError(*run_);
  return false;
}

void AppDelegate::checkForTermination() {
  ports_.eventLoop.stopTimer(std::exchange(order_.cvrTimer, kNoTimer));
  if (authentication_.GetValueForTag(kTagCancel) == "1") {
    ports_.eventLoop.stopTimer(std::exchange(order_.cvrTimer, kNoTimer));
    authentication_.SetValueForTag(kTagCancel, "0");
    cancelProcess();
  }
  // The poll never stops by itself, not even after a cancel; it ends with the application.
  order_.cvrTimer =
      ports_.eventLoop.startTimer(kCancelPollInterval, TimerKind::repeating, [this] { checkForTermination(); });
}

void AppDelegate::reportToOrderer(const WipeRun& run, RunOutcome outcome) {
  const RunAccount account = run.account();
  authentication_.SetValueForTag(
      kTagResult,
      resultTag({.outcome = outcome, .grade = gradeOf(account), .account = account, .cause = run.cause().code}));
  authentication_.SetValueForTag(kTagStatus, outcome == RunOutcome::finished ? kStatusFinished : kStatusFailed);
}

void AppDelegate::cancelProcess() {
  order_.cloudTerm = 1;
  cancelWipe();
}

}  // namespace calvero
