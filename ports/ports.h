#pragma once

namespace calvero {

class Alerts;
class Clock;
class Controls;
class DiskLookup;
class EventLoop;
class Files;
class Localisation;
class MountedVolumes;
class PopUpWindow;
class RandomSource;
class SystemLog;
class SystemNotifications;
class TagStore;
class Threads;

/// Everything that the controller reaches the outside through. A face fills it once; every object must outlive the
/// controller and every thread that it started.
struct Ports {
  Alerts& alerts;
  Clock& clock;
  Controls& controls;
  DiskLookup& diskLookup;
  EventLoop& eventLoop;
  Files& files;
  Localisation& localisation;
  MountedVolumes& mountedVolumes;
  PopUpWindow& popUpWindow;
  RandomSource& random;
  SystemLog& log;
  SystemNotifications& systemNotifications;
  TagStore& tagStore;
  Threads& threads;
};

}  // namespace calvero
