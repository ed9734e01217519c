#pragma once

#include <utility>

#include "ports/alerts.h"
#include "ports/clock.h"
#include "ports/controls.h"
#include "ports/disk_lookup.h"
#include "ports/event_loop.h"
#include "ports/information_file.h"
#include "ports/localisation.h"
#include "ports/mounted_volumes.h"
#include "ports/pop_up_window.h"
#include "ports/ports.h"
#include "ports/random_source.h"
#include "ports/suite_web.h"
#include "ports/system_log.h"
#include "ports/system_notifications.h"
#include "ports/tag_store.h"
#include "ports/threads.h"
#include "ports/workspace.h"

namespace calvero::bench {

inline MountedVolume benchVolume(const std::string& path, std::uint64_t freeBytes) {
  MountedVolume volume;
  volume.name = "BENCH";
  volume.mountPath = path;
  volume.availableBytes = freeBytes;
  return volume;
}

/// Every port but the files, without any effect, so that only the files are measured.
class QuietPorts final : public Alerts,
                         public Clock,
                         public Controls,
                         public DiskLookup,
                         public EventLoop,
                         public InformationFile,
                         public Localisation,
                         public MountedVolumes,
                         public PopUpWindow,
                         public RandomSource,
                         public SuiteWeb,
                         public SystemLog,
                         public SystemNotifications,
                         public TagStore,
                         public Threads,
                         public Workspace {
 public:
  explicit QuietPorts(MountedVolume volume) : volume_(std::move(volume)) {}

  Ports with(Files& files) {
    return {*this, *this, *this, *this, *this, files, *this, *this, *this,
            *this, *this, *this, *this, *this, *this, *this, *this};
  }

  AlertAnswer runModal(const Alert& /*alert*/) override { return AlertAnswer::defaultButton; }

  Duration now() override { return Duration(0); }
  void sleep(Duration /*duration*/) override {}

  void setText(Control /*control*/, const std::string& /*text*/) override {}
  void setAttributedTitle(Control /*button*/, const AttributedTitle& /*title*/) override {}
  void highlightNothing(Control /*button*/) override {}
  void show(Control /*control*/) override {}
  void hide(Control /*control*/) override {}
  void turnOn(Control /*button*/) override {}
  void turnOff(Control /*button*/) override {}
  void redraw(Control /*control*/) override {}
  void selectPage(Page /*page*/) override {}
  void reloadTable() override {}
  [[nodiscard]] std::size_t selectedRow() const override { return 0; }
  void addTableRow(const std::string& /*driveName*/) override {}
  void clearVolumes() override {}
  void addTile(const MountedVolume& /*volume*/) override {}
  void removeTiles(const std::vector<std::string>& /*objects*/) override {}
  [[nodiscard]] std::size_t tileCount() const override { return 0; }
  void setTileSelection(const std::vector<std::size_t>& /*indexes*/) override {}
  void setTileSelected(std::size_t /*index*/, bool /*selected*/) override {}
  void setProgress(int /*percent*/) override {}
  void setProgressDeterminate() override {}
  void setProgressIndeterminate() override {}
  void startProgressAnimation() override {}
  [[nodiscard]] bool mainWindowVisible() const override { return false; }
  void bringToFront(Control /*window*/) override {}
  void orderOut(Control /*window*/) override {}
  void activateApplication() override {}
  void leaveTaskBar() override {}
  void moveToOriginOf(Control /*child*/, Control /*parent*/) override {}
  void attachAbove(Control /*child*/, Control /*parent*/) override {}
  void makeImmovable(Control /*window*/) override {}

  std::optional<std::string> mountPath(const std::string& /*name*/) override { return volume_.mountPath; }

  void post(std::function<void()> task) override { task(); }
  [[nodiscard]] bool isEventLoopThread() const override { return true; }
  TimerId startTimer(std::chrono::milliseconds /*interval*/, TimerKind /*kind*/,
                     std::function<void()> /*action*/) override {
    return 1;
  }
  void stopTimer(TimerId /*timer*/) override {}
  bool serveUntil(const std::function<bool()>& done, std::chrono::milliseconds /*limit*/) override { return done(); }
  void terminate() override {}
  bool isEnding() const override { return false; }

  [[nodiscard]] std::string localised(const std::string& key) const override { return key; }

  std::vector<MountedVolume> mountedVolumes() override { return {volume_}; }
  std::optional<bool> isReadOnly(const std::string& /*mountPath*/) override { return false; }

  void setText(const std::string& /*text*/) override {}
  void setFillColour(const Colour& /*colour*/) override {}
  void setStatusWindowLevel() override {}
  void setBorderless() override {}
  TrackingAreaId addTrackingArea(std::function<void()> /*entered*/, std::function<void()> /*exited*/) override {
    return 1;
  }
  void setAlertAnimation() override {}
  [[nodiscard]] ScreenSize screenSize() const override { return {}; }
  [[nodiscard]] ScreenSize size() const override { return {}; }
  void moveTo(const ScreenPoint& /*origin*/) override {}
  void bringToFront() override {}
  void orderOut() override {}

  void openAddress(const std::string& /*address*/) override {}
  void launchApplication(const std::string& /*path*/) override {}
  void bringToFront(const std::string& /*identifier*/) override {}
  [[nodiscard]] std::string bundlePath() const override { return ""; }
  [[nodiscard]] std::string applicationSupportFolder() const override { return ""; }
  void openPage(std::int32_t /*index*/) override {}
  [[nodiscard]] std::string portalLoginAddress() const override { return ""; }
  std::map<std::string, std::string> read(const std::string& /*path*/) override { return {}; }

  std::uint32_t next() override { return word_ = word_ * 1664525U + 1013904223U; }

  void line(const std::string& /*text*/) override {}
  void notice(const std::string& /*text*/) override {}

  void observe(const std::string& /*name*/, const std::string& /*object*/, std::function<void()> /*action*/) override {}

  std::optional<std::string> value(const std::string& /*tag*/) override { return std::nullopt; }
  void setValue(const std::string& /*tag*/, const std::string& /*value*/) override {}

  void detach(const std::string& /*name*/, std::function<void()> body) override { body(); }

 private:
  MountedVolume volume_;
  std::uint32_t word_ = 1;
};

}  // namespace calvero::bench
