#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <thread>

#include "platform/dbus/post_notification.h"
#include "tests/platform/dbus/notifications_fixture.h"

namespace calvero::testing {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// The library alone would take 25 seconds.
constexpr std::chrono::seconds kFarTooLong{15};

/// A socket that takes connections and, unless it is told what to say, answers nothing.
class OddSocket {
 public:
  explicit OddSocket(const std::string& path) : descriptor_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    if (::bind(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(descriptor_, SOMAXCONN) != 0) {
      throw std::runtime_error("no socket at " + path);
    }
  }
  OddSocket(const OddSocket&) = delete;
  OddSocket& operator=(const OddSocket&) = delete;
  ~OddSocket() {
    ::close(descriptor_);
    if (talker_.joinable()) talker_.join();
  }

  /// Says `text` and nothing more to the first who connects, and listens to the end.
  void say(const std::string& text) {
    talker_ = std::thread([listening = descriptor_, text] {
      const int connection = ::accept(listening, nullptr, nullptr);
      [[maybe_unused]] const auto written = ::send(connection, text.data(), text.size(), MSG_NOSIGNAL);
      ::shutdown(connection, SHUT_WR);
      for (char ignored = 0; ::recv(connection, &ignored, 1, 0) == 1;) {
      }
      ::close(connection);
    });
  }

 private:
  const int descriptor_;
  std::thread talker_;
};

class WithoutABus : public NotificationsTest {
 protected:
  [[nodiscard]] std::string socketPath() const { return folder_.path() + "/bus"; }

  /// Both sides get on with nothing but a line in the log.
  void expectNothingButOneLine(const std::string& reason) {
    {
      SessionNotifications notifications(loop_, log_);
      notifications.observe(kName, kObject, [] { ADD_FAILURE() << "received out of nowhere"; });
      notifications.observe(kName, kObject, [] { ADD_FAILURE() << "received out of nowhere"; });
      ASSERT_TRUE(log_.waitForALine());
      loop_.runReady();
    }
    EXPECT_THAT(log_.lines(), ElementsAre(AllOf(HasSubstr("no notifications"), HasSubstr(reason))));
    EXPECT_TRUE(waitUntilNoThreadUsesABus());
  }
  void expectNothingIsSent(const std::string& reason) {
    RecordingLog log;
    EXPECT_FALSE(postNotification(kName, kObject, log));
    EXPECT_THAT(log.lines(), ElementsAre(AllOf(HasSubstr("\"cancel wipe\" is not sent"), HasSubstr(reason))));
  }
};

TEST_F(WithoutABus, NothingIsReceivedOrSent) {
  expectNothingButOneLine("No such file or directory");
  expectNothingIsSent("No such file or directory");
}

TEST_F(WithoutABus, NothingIsReceivedOrSentWithoutARuntimeFolderEither) {
  const EnvironmentVariable none("XDG_RUNTIME_DIR", std::nullopt);
  expectNothingButOneLine("No medium found");
  expectNothingIsSent("No medium found");
}

TEST_F(WithoutABus, ASocketThatNobodyServesRefuses) {
  { const OddSocket left(socketPath()); }
  expectNothingButOneLine("Connection refused");
  expectNothingIsSent("Connection refused");
}

TEST_F(WithoutABus, AnAddressThatMakesNoSenseIsLikeNone) {
  for (const char* address : {"nonsense", "unix:", "autolaunch:", "unix:path=/dev/null"}) {
    useBus(address);
    expectNothingIsSent("");
    RecordingLog log;
    SessionNotifications notifications(loop_, log);
    notifications.observe(kName, kObject, [] {});
    EXPECT_TRUE(log.waitForALine()) << address;
  }
}

TEST_F(WithoutABus, ABusThatTalksNonsenseIsLikeNone) {
  for (const std::string& nonsense :
       {std::string("HTTP/1.1 400 Bad Request\r\n\r\n"), std::string("REJECTED\r\n"),
        "DATA\r\nOK 0123456789abcdef0123456789abcdef\r\nAGREE_UNIX_FD\r\n" + std::string(64, '\xFF')}) {
    std::filesystem::remove(socketPath());
    OddSocket socket(socketPath());
    socket.say(nonsense);
    RecordingLog log;
    SessionNotifications notifications(loop_, log);
    notifications.observe(kName, kObject, [] {});
    EXPECT_TRUE(log.waitForALine()) << nonsense;
    EXPECT_THAT(log.lines(), SizeIs(1)) << nonsense;
  }
}

TEST_F(WithoutABus, ABusThatNeverAnswersHoldsUpNobody) {
  const auto start = std::chrono::steady_clock::now();
  {
    const OddSocket hanging(socketPath());
    SessionNotifications(loop_, log_).observe(kName, kObject, [] {});
    expectNothingIsSent("does not answer");
    EXPECT_LT(std::chrono::steady_clock::now() - start, kFarTooLong);
  }
  EXPECT_TRUE(waitUntilNoThreadUsesABus()) << "those that it held end with it";
}

TEST_F(WithoutABus, AThreadThatIsLeftBehindTouchesNothingOfItsOwner) {
  const auto owned = std::make_shared<int>();
  {
    auto hanging = std::make_unique<OddSocket>(socketPath());
    auto loop = std::make_unique<AsioEventLoop>();
    auto log = std::make_unique<RecordingLog>();
    SessionNotifications(*loop, *log).observe(kName, kObject, [owned] {});
    EXPECT_EQ(owned.use_count(), 1);
    EXPECT_THAT(busThreads(), SizeIs(1));
  }  // now it is refused, and has nobody to tell
  EXPECT_TRUE(waitUntilNoThreadUsesABus());
}

TEST_F(NotificationsOnABus, AreReceivedOnceABusThatHungAnswers) {
  bus_.hang();
  SessionNotifications notifications(loop_, log_);
  bool received = false;
  notifications.observe(kName, kObject, [&] { received = true; });
  bus_.goOn();
  OtherProgram sender;
  EXPECT_TRUE(serveUntil([&] {
    sender.send(kName, kObject);
    return received;
  }));
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(NotificationsOnABus, HoldUpNobodyWhenTheBusHangsLater) {
  const auto start = std::chrono::steady_clock::now();
  {
    SessionNotifications notifications(loop_, log_);
    notifications.observe(kName, kObject, [] {});
    bus_.hang();
    notifications.observe("another", kObject, [] {});
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, kFarTooLong);
  bus_.kill();
  EXPECT_TRUE(waitUntilNoThreadUsesABus());
}

TEST_F(NotificationsOnABus, EndWithOneLineWhenTheBusGoesAway) {
  SessionNotifications notifications(loop_, log_);
  notifications.observe(kName, kObject, [] { ADD_FAILURE() << "received out of nowhere"; });
  bus_.kill();
  ASSERT_TRUE(log_.waitForALine());
  EXPECT_TRUE(waitUntilNoThreadUsesABus()) << "what runs no more cannot spin either";
  notifications.observe("another", kObject, [] { ADD_FAILURE() << "received out of nowhere"; });
  EXPECT_THAT(log_.lines(), ElementsAre(HasSubstr("no notifications")));
}

}  // namespace
}  // namespace calvero::testing
