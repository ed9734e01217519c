#pragma once

namespace calvero {

class Alerts;
class Clock;
class Controls;
class DiskLookup;
class EventLoop;
class Files;
class InformationFile;
class Localisation;
class MountedVolumes;
class PopUpWindow;
class RandomSource;
class SuiteWeb;
class SystemLog;
class SystemNotifications;
class TagStore;
class Threads;
class Workspace;

/// Everything that the controller reaches the outside through. A face fills it once; every object must outlive the
/// controller and every thread that it started.
struct Ports {
  Alerts& alerts;
  Clock& clock;
  Controls& controls;
  DiskLookup& diskLookup;
  EventLoop& eventLoop;
  Files& files;
  InformationFile& informationFile;
  Localisation& localisation;
  MountedVolumes& mountedVolumes;
  PopUpWindow& popUpWindow;
  RandomSource& random;
  SuiteWeb& suiteWeb;
  SystemLog& log;
  SystemNotifications& systemNotifications;
  TagStore& tagStore;
  Threads& threads;
  Workspace& workspace;
};

}  // namespace calvero
