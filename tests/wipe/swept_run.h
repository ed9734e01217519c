#pragma once

#include <atomic>
#include <functional>
#include <latch>
#include <map>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

#include "tests/fakes/world.h"

namespace calvero::testing {

/// Counts the calls of the ports, each thread's for itself, and lets a test step in at the nth of one of them.
class CallPoints {
 public:
  static constexpr const char* kEventLoop = "";
  static constexpr const char* kWorker = "calvero-wipe";
  static constexpr const char* kCancel = "calvero-cancel";

  /// `action` runs as the `nth` call (from 1) of `thread` arrives, on that thread.
  void at(const std::string& thread, std::size_t nth, std::function<void()> action) {
    const std::scoped_lock lock(mutex_);
    actions_[{thread, nth}] = std::move(action);
  }
  void arrive(const std::string& call) {
    std::function<void()> action;
    {
      const std::scoped_lock lock(mutex_);
      Steps& calls = calls_[FakeThreads::current()];
      calls.push_back(call);
      if (const auto found = actions_.find({FakeThreads::current(), calls.size()}); found != actions_.end()) {
        action = found->second;
      }
    }
    if (action) action();
  }
  [[nodiscard]] Steps calls(const std::string& thread) const {
    const std::scoped_lock lock(mutex_);
    const auto found = calls_.find(thread);
    return found == calls_.end() ? Steps{} : found->second;
  }
  [[nodiscard]] std::size_t count(const std::string& thread) const { return calls(thread).size(); }

 private:
  mutable std::mutex mutex_;
  std::map<std::string, Steps> calls_;
  std::map<std::pair<std::string, std::size_t>, std::function<void()>> actions_;
};

/// A run of three files and three passes on threads of its own, whose worker can be stopped at any call that it makes.
/// The test's thread is the event loop. A file holds two blocks, so that a few dozen writes fill the volume.
class SweptRun {
 public:
  enum class Ordered { byPerson, bySuite };

  static constexpr std::uint64_t kBlock = 32768;
  static constexpr std::size_t kPasses = 3;
  static constexpr std::size_t kBlocksOfAFile = 2 * kBlock / FakeDisk::kBlockBytes;
  static constexpr std::size_t kNowhere = 0;

  /// Starts the run; the worker stops at its call number `stop`.
  SweptRun(Ordered ordered, std::size_t stop) {
    world.volume("DATA", 300'000'000);
    world.files.addVolume("/media/DATA", 5 * kBlock + FakeDisk::kBlockBytes).largestFile = 2 * kBlock;
    world.threads.setMode(FakeThreads::Mode::real);
    world.loop.setPosts(FakeEventLoop::Posts::queued);
    world.loop.setLoopThread(FakeEventLoop::LoopThread::thisThreadOnly);
    world.journal.whenAdded([this](const std::string& call) { points.arrive(call); });
    // Time stands still for the clock until the run is over, or it would flood the event loop.
    world.clock.whenSlept([this](Clock::Duration) {
      if (FakeThreads::current() != "calvero-clock") return;
      over_.wait();
      if (++looksAfterTheRun_ > 1) throw std::logic_error("the clock goes on after its run");
    });
    points.at(CallPoints::kWorker, stop, [this] {
      reached_.count_down();
      released_.wait();
    });
    if (stop == kNowhere) reached_.count_down();
    if (ordered == Ordered::bySuite) {
      startOrdered();
    } else {
      startByPerson();
    }
    run = world.app().currentRun();
    reached_.wait();
  }
  SweptRun(const SweptRun&) = delete;
  SweptRun& operator=(const SweptRun&) = delete;
  ~SweptRun() { end(); }

  /// Lets the worker go on.
  void release() {
    if (!isReleased_.exchange(true)) released_.count_down();
  }
  /// Lets the worker go on to its end. Any thread but the event loop's, which serves meanwhile.
  void releaseAndWait() {
    release();
    while (run->workerEnded == 0) std::this_thread::yield();
  }
  /// The same on the event loop's thread.
  void releaseAndServe() {
    release();
    while (run->workerEnded == 0) {
      if (world.loop.drain() == 0) std::this_thread::yield();
    }
  }
  /// Waits for the end of every thread, and serves what is still posted.
  void end() {
    releaseAndServe();
    if (!std::exchange(isOver_, true)) over_.count_down();
    world.threads.joinAll();
    world.loop.drain();
  }

  [[nodiscard]] FakeVolume& volume() { return world.files.volume("/media/DATA"); }
  [[nodiscard]] bool leftNothing() {
    return !world.files.directoryExists(World::kDirectory) && volume().disk.takenBlocks() == 0;
  }

  CallPoints points;  // outlives the world, which calls it to the end
  World world;
  RunPtr run;

 private:
  void startByPerson() {
    world.launch().next();
    world.app().dODWipe();
    world.proceed();
  }
  void startOrdered() {
    world.order("DATA", "3");
    world.create().applicationDidFinishLaunching();
  }

  std::latch reached_{1};
  std::latch released_{1};
  std::latch over_{1};
  std::atomic<bool> isReleased_{false};
  bool isOver_ = false;
  int looksAfterTheRun_ = 0;
};

}  // namespace calvero::testing
