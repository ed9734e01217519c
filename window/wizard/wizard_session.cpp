#include "window/wizard/wizard_session.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "app/app_delegate.h"
#include "ports/localisation.h"
#include "window/volume_page.h"
#include "window/wizard/wizard_ports.h"
#include "window/wizard/wizard_texts.h"

namespace calvero {
namespace {

constexpr std::chrono::milliseconds kLookInterval{100};

std::vector<int> passesOf(MethodCatalogue methods) {
  std::vector<int> passes;
  for (const EraseMethod& method : methods) passes.push_back(method.passes);
  return passes;
}

}  // namespace

WizardSession::WizardSession(WizardPorts& ports, AppDelegate& app)
    : ports_(ports), app_(app), signals_(ports.dispatch, [this] { quit(); }) {
  ports_.window.setPasses(passesOf(app.methods()));
  connectWizard();
  connectSideBar();
  connectWindows();
}

void WizardSession::start() {
  // An order for a volume that is not there has ended the program already.
  if (app_.order().cloudInitiation != 0 && app_.volumes().volumeNameArray.empty()) return;
  app_.awakeFromNib();
  app_.applicationDidFinishLaunching();
  settlePicker();
  if (app_.order().cloudInitiation == 0) {
    ports_.window.bringToFront();
  } else {
    followRun();
  }
}

std::function<void()> WizardSession::safely(std::function<void()> handler) {
  return [this, handler = std::move(handler)] { ports_.dispatch.run(handler); };
}

void WizardSession::connectWizard() {
  MainWindow& window = ports_.window;
  window.onNext = safely([this] { next(); });
  window.onBack = safely([this] { app_.back(); });
  window.onProceed = safely([this] { proceed(); });
  window.onCancel = safely([this] { app_.cancelWipe(); });
  window.onReload = safely([this] { app_.reloadVolumes(); });
  window.onMethod = [this](int number) { safely([this, number] { app_.chooseMethod(number); })(); };
  window.onTilesSelected = [this](std::vector<std::size_t> tiles) {
    safely([this, &tiles] { app_.collectionView().setSelectionIndexes(tiles); })();
  };
  window.onTableSelectionChanged = safely([this] { app_.notifications().post(kTableSelectionDidChange); });
  ports_.controls.onListingVolumes = [this] { noteSelection(); };
}

void WizardSession::connectSideBar() {
  MainWindow& window = ports_.window;
  window.onHome = safely([this] { app_.goToHome(); });
  window.onHelp = safely([this] { app_.openHelpPage(); });
  window.onCloud = safely([this] { app_.cloudControl(); });
  window.onGetItNow = safely([this] { app_.getItNow(); });
  window.onFacebook = safely([this] { app_.openFacebookPage(); });
  window.onTwitter = safely([this] { app_.openTwitterPage(); });
  window.onGooglePlus = safely([this] { app_.openGooglePlusPage(); });
}

void WizardSession::connectWindows() {
  MainWindow& window = ports_.window;
  window.onCloseRequest = [this] {
    bool mayClose = false;
    safely([this, &mayClose] { mayClose = app_.windowShouldClose(); })();
    return mayClose;
  };
  window.onClosed = safely([this] { app_.windowWillClose(); });
  window.onMiniaturise = safely([this] { app_.windowWillMiniaturize(); });
  window.onDeminiaturise = safely([this] { app_.windowDidDeminiaturize(); });
  window.onCompletionOk = safely([this] { completionOk(); });
  window.onCompletionPageOk = safely([this] {
    app_.eraseCompletedOK();
    completionOk();
  });
  ports_.controls.onCompleted = [this] { showOutcome(); };
  ports_.onNotice = [this] { isFlawed_ = true; };
}

void WizardSession::inform(const std::string& message) {
  const Localisation& texts = ports_.suite.texts;
  ports_.alerts.runModal({texts.localised("Information"), message, texts.localised("OK"), ""});
}

bool WizardSession::showsAdministratorCommand() {
  const auto path = app_.getVolumePath(app_.nameSelectedVolume());
  const auto command = path ? ports_.commandForAdministrator(*path) : std::nullopt;
  if (!command) return false;
  const Localisation& texts = ports_.suite.texts;
  ports_.alerts.showCommand({texts.localised("Information"), administratorText(texts), texts.localised("OK"), ""},
                            *command);
  return true;
}

bool WizardSession::isRefused(const Error& error) {
  if (error.code == ErrorCode::notPermitted && showsAdministratorCommand()) return true;
  const auto untrusted = error.code == ErrorCode::notPermitted ? ports_.untrustedProgram() : std::nullopt;
  const auto refusal =
      untrusted ? untrustedProgramText(ports_.suite.texts, *untrusted) : refusalText(ports_.suite.texts, error);
  if (refusal) inform(*refusal);
  return refusal.has_value();
}

void WizardSession::next() {
  const Localisation& texts = ports_.suite.texts;
  if (app_.volumes().volumeNameArray.empty()) {
    inform(texts.localised("There is no drive to erase.") + "\n" +
           texts.localised("Connect a drive, then press \"Reload Drives\"."));
    return;
  }
  // A read-only volume is refused by the controller in its own words. One that gives no answer is accepted here: before
  // a run it is looked at again.
  const Error error = app_.checkSelectedVolume();
  const bool isLeftToLater = error.code == ErrorCode::readOnly || error.code == ErrorCode::gone;
  if (!isLeftToLater && isRefused(error)) return;
  app_.next();
}

void WizardSession::proceed() {
  if (isRefused(app_.checkSelectedVolume())) return;
  {
    const QScopedValueRollback<bool> asking(isAsking_, true);
    app_.proceed();
  }
  if (app_.shell().wipingProcessOn != 0) followRun();
}

void WizardSession::completionOk() {
  app_.OKBtn();
  if (std::exchange(listsAfterOk_, false)) ports_.loop.post([this] { app_.reloadVolumes(); });
}

void WizardSession::quit() {
  const bool isRunning = app_.shell().wipingProcessOn != 0 && app_.currentRun()->outcome == RunOutcome::none;
  // Before a run the controller must know, too: a notice that goes away counts as read. And a clean-up that is waited
  // for must not be cut off.
  if (isRunning || isAsking_ || app_.cancelWaits()) {
    app_.cancelProcess();
  } else {
    ports_.loop.terminate();
  }
}

void WizardSession::followRun() {
  stopLooking();
  run_ = app_.currentRun();
  isFlawed_ = false;
  looking_ = ports_.loop.startTimer(kLookInterval, TimerKind::repeating, [this] { look(); });
}

void WizardSession::stopLooking() {
  ports_.loop.stopTimer(std::exchange(looking_, kNoTimer));
}

void WizardSession::look() {
  if (run_->workerEnded == 0) return;
  stopLooking();
  if (run_->outcome == RunOutcome::failed && run_->applicationEnding == 0) tellLostVolume();
}

void WizardSession::tellLostVolume() {
  // The worker has gone back to the first page without a word, the run still counted as under way.
  if (app_.order().cloudInitiation != 0) {
    app_.cancelProcess();
    return;
  }
  listsAfterOk_ = true;
  // Its place before it is seen: a window that loses its frame while the window manager hands it the focus may leave
  // the main window without any.
  showOutcome();
  app_.positionHUDWindow();
  ports_.controls.bringToFront(Control::windowCompleted);
}

void WizardSession::showOutcome() {
  const bool isComplete = run_->outcome == RunOutcome::finished && gradeOf(run_->account()) == RunGrade::complete;
  if (isComplete && !isFlawed_ && run_->remains().failed()) {
    ports_.window.setOutcome(remainsText(ports_.suite.texts, run_->remains()), OutcomeKind::warning);
    return;
  }
  const bool isFine = isComplete && !isFlawed_;
  ports_.window.setOutcome(outcomeText(ports_.suite.texts, *run_, isFlawed_),
                           isFine ? OutcomeKind::finished : OutcomeKind::warning);
}

void WizardSession::noteSelection() {
  if (isSettling_) return;  // listed twice in a row
  isSettling_ = true;
  const auto& names = app_.volumes().volumeNameArray;
  if (app_.selectedTableRow() < names.size()) selectedName_ = names[app_.selectedTableRow()];
  ports_.loop.post([this] { settlePicker(); });
}

void WizardSession::settlePicker() {
  isSettling_ = false;
  const auto& names = app_.volumes().volumeNameArray;
  if (names.empty()) return describeNothing();
  const auto found = std::find(names.begin(), names.end(), selectedName_);
  const auto row = found == names.end() ? 0 : static_cast<std::size_t>(found - names.begin());
  MyCollectionView& picker = app_.collectionView();
  // Each selection walks an index beyond a shorter list back by one.
  while (picker.currentSelection() >= names.size()) picker.setSelectionIndexes({row});
  picker.setSelectionIndexes({row});
  if (app_.selectedTableRow() != picker.currentSelection()) app_.setCurrentSelection(picker.currentSelection());
  ports_.window.volumes().selectRow(app_.selectedTableRow());
}

void WizardSession::describeNothing() {
  for (const Control field :
       {Control::tfDriveName, Control::tfFileSystem, Control::tfDriveSpace, Control::tfFreeSpace}) {
    ports_.controls.setText(field, "");
  }
}

}  // namespace calvero
