#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <string>

#include "ports/event_loop.h"

namespace calvero {

// Tags of the suite's store.
constexpr const char* kTagOnline = "cvrOnline";  ///< "1": an order is pending. Never cleared here.
constexpr const char* kTagDrive = "cvrDrive";    ///< name of the volume to wipe
constexpr const char* kTagAlgo = "cvrAlgo";      ///< the method, "1" to "9"
// What else tells the volume of an order of our own from another one of that name. They count only while kTagNamed
// holds the same text as kTagDrive: another program's order leaves them as they are. Empty or absent they say nothing.
constexpr const char* kTagNamed = "cvrNamed";            ///< the name in kTagDrive when the other two were stored
constexpr const char* kTagMountPath = "cvrMountPath";    ///< where the volume is mounted
constexpr const char* kTagVolumeUuid = "cvrVolumeUuid";  ///< of its file system
constexpr const char* kTagStatus = "cvrStatus";          ///< written here when a remote run ends
constexpr const char* kTagResult = "cvrResult";          ///< written here just before the status; see order_result.h
constexpr const char* kTagCancel = "CVRCANCEL";          ///< "1": cancel the run; reset to "0" here

constexpr const char* kStatusFinished = "2";
constexpr const char* kStatusFailed = "3";  ///< volume missing or vanished, or cancelled

// The notification that cancels a run in either mode.
constexpr const char* kCancelNotificationName = "cancel wipe";
constexpr const char* kCancelNotificationObject = "cancel";

/// How often a remote run looks for a cancel request.
constexpr std::chrono::seconds kCancelPollInterval{60};

/// The order that started the program, if one did.
struct RemoteOrder {
  std::atomic<std::uint8_t> cloudInitiation{0};  ///< remote mode
  std::string CDriveName;                        ///< volume to wipe
  std::string algo;                              ///< ordered method, as text
  std::string mountPath;                         ///< where the volume must be mounted; empty: anywhere
  std::string volumeUuid;                        ///< what it must call itself; empty: anything
  std::uint8_t cloudTerm = 0;                    ///< a cancel request of the suite arrived
  TimerId cvrTimer = kNoTimer;                   ///< the cancel poll
};

}  // namespace calvero
