#include "platform/dbus/session_notifications.h"

#include <gmock/gmock.h>
#include <malloc.h>

#include <sstream>

#include "tests/platform/dbus/notifications_fixture.h"

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kPath = "/com/OndrelSoftware/Notifications";
constexpr const char* kInterface = "com.OndrelSoftware.Notifications";
constexpr const char* kSignal = "Posted";

using ANotification = NotificationsOnABus;

TEST_F(ANotification, IsReceivedOnTheEventLoopThread) {
  SessionNotifications notifications(loop_, log_);
  bool received = false;
  notifications.observe(kName, kObject, [&] {
    received = true;
    EXPECT_TRUE(loop_.isEventLoopThread());
  });
  OtherProgram().send(kName, kObject);
  EXPECT_TRUE(serveUntil([&] { return received; }));
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(ANotification, IsReceivedAsOftenAsItIsSent) {
  SessionNotifications notifications(loop_, log_);
  int received = 0;
  bool ended = false;
  notifications.observe(kName, kObject, [&] { ++received; });
  notifications.observe("the end", "", [&] { ended = true; });
  OtherProgram sender;
  for (int i = 0; i < 3; ++i) sender.send(kName, kObject);
  sender.send("the end", "");
  EXPECT_TRUE(serveUntil([&] { return ended; }));
  EXPECT_EQ(received, 3);
}

TEST_F(ANotification, IsReceivedFromTheMomentThatItIsObserved) {
  constexpr int kRounds = 20;
  OtherProgram sender;
  for (int round = 0; round < kRounds; ++round) {
    SessionNotifications notifications(loop_, log_);
    bool received = false;
    notifications.observe(kName, kObject, [&] { received = true; });
    sender.send(kName, kObject);
    ASSERT_TRUE(serveUntil([&] { return received; })) << "round " << round;
  }
}

TEST_F(ANotification, IsFoundUnderTheRuntimeFolderWhenNoAddressIsSet) {
  address_.reset();
  std::filesystem::create_symlink(bus_.socketPath(), folder_.path() + "/bus");
  SessionNotifications notifications(loop_, log_);
  bool received = false;
  notifications.observe(kName, kObject, [&] { received = true; });
  OtherProgram().send(kName, kObject);
  EXPECT_TRUE(serveUntil([&] { return received; }));
}

TEST_F(ANotification, ReachesEveryObserverOfItAndNoOther) {
  SessionNotifications notifications(loop_, log_);
  std::vector<std::string> received;
  notifications.observe(kName, kObject, [&] { received.emplace_back("first"); });
  notifications.observe(kName, kObject, [&] { received.emplace_back("second"); });
  notifications.observe("another", kObject, [&] { received.emplace_back("another"); });
  OtherProgram sender;
  sender.send(kName, kObject);
  sender.send("another", kObject);
  EXPECT_TRUE(serveUntil([&] { return received.size() >= 3; }));
  std::sort(received.begin(), received.begin() + 2);
  EXPECT_THAT(received, ElementsAre("first", "second", "another"));
}

TEST_F(ANotification, ReachesSeveralProgramsOfTheSession) {
  SessionNotifications one(loop_, log_);
  SessionNotifications two(loop_, log_);
  int received = 0;
  one.observe(kName, kObject, [&] { ++received; });
  two.observe(kName, kObject, [&] { ++received; });
  OtherProgram().send(kName, kObject);
  EXPECT_TRUE(serveUntil([&] { return received == 2; }));
}

TEST_F(ANotification, MayHaveTextsThatARuleOfTheBusCannotHold) {
  const std::string umlauts = "gel\xC3\xB6scht, 'quoted' \\ \"quoted\"\n";
  const std::string overlong(5000, 'x');
  SessionNotifications notifications(loop_, log_);
  std::vector<int> received;
  notifications.observe(umlauts, overlong, [&] { received.push_back(1); });
  notifications.observe("it's", "", [&] { received.push_back(2); });
  notifications.observe("a,arg1='b'", "\\", [&] { received.push_back(3); });
  OtherProgram sender;
  sender.send(umlauts, overlong + "x");
  sender.send(umlauts, overlong);
  sender.send("its", "");
  sender.send("it's", "");
  sender.send("a,arg1='b'", "\\");
  EXPECT_TRUE(serveUntil([&] { return received.size() >= 3; }));
  EXPECT_THAT(received, ElementsAre(1, 2, 3));
}

/// What must be ignored is sent first, then one that is received, and signals stay in order.
class ASignal : public NotificationsOnABus {
 protected:
  ASignal() {
    notifications_.observe(kName, kObject, [this] { ++received_; });
    notifications_.observe("the end", "", [this] { ended_ = true; });
  }

  void expectIgnored() {
    sender_.send("the end", "");
    EXPECT_TRUE(serveUntil([this] { return ended_; }));
    EXPECT_EQ(received_, 0);
    EXPECT_THAT(log_.lines(), IsEmpty());
  }
  void sendWholeFrom(const std::string& path, const std::string& interface, const std::string& member) {
    sender_.send(path, interface, member, [](sdbus::Signal& signal) { signal << kName << kObject; });
  }

  SessionNotifications notifications_{loop_, log_};
  OtherProgram sender_;
  int received_ = 0;
  bool ended_ = false;
};

TEST_F(ASignal, WithAnotherNameIsIgnored) {
  for (const char* name : {"", "cancel", "cancel wip", "cancel wipe ", "Cancel wipe", "cancel wipes"}) {
    sender_.send(name, kObject);
  }
  expectIgnored();
}

TEST_F(ASignal, WithAnotherObjectIsIgnored) {
  for (const char* object : {"", "cance", "cancel ", "Cancel", "cancel wipe"}) sender_.send(kName, object);
  expectIgnored();
}

TEST_F(ASignal, WithFewerOrMoreArgumentsIsIgnored) {
  sender_.sendArguments([](sdbus::Signal&) {});
  sender_.sendArguments([](sdbus::Signal& signal) { signal << kName; });
  sender_.sendArguments([](sdbus::Signal& signal) { signal << kName << kObject << kObject; });
  sender_.sendArguments([](sdbus::Signal& signal) { signal << kName << kObject << std::int32_t{1}; });
  expectIgnored();
}

TEST_F(ASignal, WithArgumentsOfOtherTypesIsIgnored) {
  using Texts = sdbus::Struct<std::string, std::string>;
  sender_.sendArguments([](sdbus::Signal& signal) { signal << std::int32_t{1}; });
  sender_.sendArguments([](sdbus::Signal& signal) { signal << kName << std::int32_t{1}; });
  sender_.sendArguments([](sdbus::Signal& signal) { signal << Texts(kName, kObject); });
  sender_.sendArguments([](sdbus::Signal& signal) { signal << std::vector<std::string>{kName, kObject}; });
  sender_.sendArguments([](sdbus::Signal& signal) { signal << sdbus::Variant(kName) << sdbus::Variant(kObject); });
  sender_.sendArguments([](sdbus::Signal& signal) { signal << sdbus::ObjectPath("/cancel") << kObject; });
  expectIgnored();
}

TEST_F(ASignal, FromAnotherInterfaceOrPathOrOfAnotherKindIsIgnored) {
  sendWholeFrom(kPath, "com.OndrelSoftware.Notification", kSignal);
  sendWholeFrom(kPath, "org.freedesktop.Notifications", kSignal);
  sendWholeFrom("/", kInterface, kSignal);
  sendWholeFrom("/com/OndrelSoftware", kInterface, kSignal);
  sendWholeFrom("/com/OndrelSoftware/Notifications/1", kInterface, kSignal);
  sendWholeFrom(kPath, kInterface, "Post");
  expectIgnored();
}

TEST_F(ASignal, OfOneObserverIsCheckedAlsoWhereTheBusCannotSortItOut) {
  notifications_.observe("it's", kObject, [this] { ++received_; });
  sender_.send("it is", kObject);
  sender_.sendArguments([](sdbus::Signal& signal) { signal << "it's" << kObject << kObject; });
  expectIgnored();
}

/// A flood of `count` signals, sent in time with the bus so that they pile up nowhere on the way.
void flood(OtherProgram& sender, int count, const OtherProgram::Arguments& addArguments) {
  constexpr int kAtOnce = 1000;
  for (int sent = 0; sent < count; sent += kAtOnce) {
    for (int i = 0; i < kAtOnce; ++i) sender.sendArguments(addArguments);
    sender.waitForTheBus();
  }
}

std::uint64_t timesThatItWaited(const std::string& thread) {
  const std::string field = "voluntary_ctxt_switches:";
  std::ifstream status(thread + "/status");
  for (std::string word; status >> word;) {
    std::uint64_t times = 0;
    if (word == field && status >> times) return times;
  }
  return 0;
}

TEST_F(ASignal, OfAnotherNotificationDoesNotEvenWakeTheListener) {
  const auto threads = busThreads();
  ASSERT_THAT(threads, SizeIs(1));
  const auto before = timesThatItWaited(threads.front());
  ASSERT_GT(before, 0U);
  flood(sender_, 30'000, [](sdbus::Signal& signal) {
    signal << "disc inserted"
           << "drive 1";
  });
  EXPECT_LT(timesThatItWaited(threads.front()), before + 10);
  expectIgnored();
}

TEST_F(ASignal, ThatLooksLikeANotificationMayComeInAFlood) {
  const auto before = ::mallinfo2().uordblks;
  flood(sender_, 10'000, [](sdbus::Signal& signal) { signal << kName << kObject << std::string(500, 'x'); });
  expectIgnored();
  EXPECT_LT(::mallinfo2().uordblks, before + 1'000'000) << "5,000,000 were sent";
}

/// Keeps what is posted until the test runs it.
class HoldingLoop : public EventLoop {
 public:
  void post(std::function<void()> task) override {
    const std::scoped_lock lock(mutex_);
    tasks_.push_back(std::move(task));
    changed_.notify_all();
  }
  [[nodiscard]] bool isEventLoopThread() const override { return true; }
  TimerId startTimer(std::chrono::milliseconds, TimerKind, std::function<void()>) override { return 1; }
  void stopTimer(TimerId) override {}
  bool serveUntil(const std::function<bool()>& done, std::chrono::milliseconds) override { return done(); }
  void terminate() override {}
  [[nodiscard]] bool isEnding() const override { return false; }

  bool waitForATask() {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, kLong, [this] { return !tasks_.empty(); });
  }
  void runTasks() {
    for (const auto& task : tasks_) task();
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<std::function<void()>> tasks_;
};

TEST_F(NotificationsOnABus, WaitingForTheEventLoopDoNotOutliveTheObserver) {
  HoldingLoop loop;
  bool received = false;
  const auto owned = std::make_shared<int>();
  {
    SessionNotifications notifications(loop, log_);
    notifications.observe(kName, kObject, [&received, owned] { received = true; });
    OtherProgram().send(kName, kObject);
    ASSERT_TRUE(loop.waitForATask());
  }
  EXPECT_EQ(owned.use_count(), 1);
  loop.runTasks();
  EXPECT_FALSE(received);
}

TEST_F(NotificationsOnABus, MayBeGivenUpByTheirOwnAction) {
  auto notifications = std::make_unique<SessionNotifications>(loop_, log_);
  int received = 0;
  const auto owned = std::make_shared<int>();
  notifications->observe(kName, kObject, [&, owned] {
    notifications.reset();
    received += static_cast<int>(owned.use_count() > 1);
  });
  OtherProgram().send(kName, kObject);
  EXPECT_TRUE(serveUntil([&] { return received == 1; }));
  EXPECT_TRUE(waitUntilNoThreadUsesABus());
}

TEST_F(NotificationsOnABus, EndTheirThreadWithThem) {
  {
    SessionNotifications notifications(loop_, log_);
    notifications.observe(kName, kObject, [] {});
    EXPECT_THAT(busThreads(), SizeIs(1));
  }
  EXPECT_TRUE(waitUntilNoThreadUsesABus());
  EXPECT_THAT(log_.lines(), IsEmpty());
}

}  // namespace
}  // namespace calvero::testing
