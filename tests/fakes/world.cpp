#include "tests/fakes/world.h"

#include <utility>

namespace calvero::testing {

void World::volume(const std::string& name, std::uint64_t freeBytes) {
  MountedVolume volume;
  volume.name = name;
  volume.mountPath = "/media/" + name;
  volume.formatDescription = "ext4";
  volume.availableBytes = freeBytes;
  volume.totalBytes = 2 * freeBytes;
  this->volume(std::move(volume));
}

void World::volume(MountedVolume volume) {
  files.addVolume(volume.mountPath, volume.availableBytes).readOnly = volume.readOnly;
  volumes.add(std::move(volume));
}

void World::order(const std::string& driveName, const std::string& method) {
  tags.put("cvrOnline", "1");
  tags.put("cvrDrive", driveName);
  tags.put("cvrAlgo", method);
}

AppDelegate& World::create() {
  const Ports ports{.alerts = alerts,
                    .clock = clock,
                    .controls = controls,
                    .diskLookup = volumes,
                    .eventLoop = loop,
                    .files = files,
                    .informationFile = desktop,
                    .localisation = localisation,
                    .mountedVolumes = volumes,
                    .popUpWindow = popUp,
                    .random = random,
                    .suiteWeb = desktop,
                    .log = log,
                    .systemNotifications = systemNotifications,
                    .tagStore = tags,
                    .threads = threads,
                    .workspace = desktop};
  app_ = std::make_unique<AppDelegate>(ports, fixed);
  loop.whenServed([this] { threads.runWaiting("calvero-cancel"); });
  return *app_;
}

AppDelegate& World::launch() {
  create().applicationDidFinishLaunching();
  journal.clear();
  return *app_;
}

AppDelegate& World::start() {
  launch().next();
  proceed();
  journal.clear();
  return *app_;
}

void World::proceed() {
  firstThreadOfRun_ = threads.started();
  app_->proceed();
}

void World::eject(const std::string& name) {
  files.volume("/media/" + name).mounted = false;
  volumes.remove(name);
}

Steps World::steps() const {
  Steps steps = journal.without({"log", "notice", "lookUp", "readTag", "popUpWindow"});
  std::erase_if(steps, [](const std::string& step) { return step.starts_with("exists /"); });
  return steps;
}

}  // namespace calvero::testing
