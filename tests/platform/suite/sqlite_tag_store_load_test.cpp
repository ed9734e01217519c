#include <gtest/gtest.h>
#include <poll.h>

#include <array>
#include <charconv>
#include <map>
#include <memory>
#include <random>
#include <sstream>
#include <thread>

#include "tests/platform/suite/child_process.h"
#include "tests/platform/suite/store_folder.h"

namespace calvero::testing {
namespace {

constexpr int kBusyProcesses = 8;
constexpr int kThreadsEach = 4;
constexpr int kKills = 60;

/// One thread of one process has two tags of its own, of which it always sets the first one first.
struct Owner {
  int process = 0;
  int thread = 0;

  [[nodiscard]] std::string tag(const char* which) const {
    return std::to_string(process) + '.' + std::to_string(thread) + '.' + which;
  }
  auto operator<=>(const Owner&) const = default;
};

constexpr const char* kFirst = "first";
constexpr const char* kSecond = "second";

std::vector<Owner> allOwners() {
  std::vector<Owner> owners;
  for (int process = 0; process < kBusyProcesses; ++process) {
    for (int thread = 0; thread < kThreadsEach; ++thread) owners.push_back({.process = process, .thread = thread});
  }
  return owners;
}

/// Its every byte depends on tag and number; many are longer than a page of the database.
std::string numbered(const std::string& tag, int number) {
  constexpr int kSpread = 977;
  constexpr int kLongest = 6000;
  const auto length = static_cast<std::size_t>(number * kSpread % kLongest);
  return std::to_string(number) + ' ' + tag + ' ' + std::string(length, static_cast<char>('a' + number % 26));
}

/// Nothing when the value is not one that was set under this tag.
std::optional<int> numberIn(const std::string& tag, const std::optional<std::string>& value) {
  int number = -1;
  if (value) std::from_chars(value->data(), value->data() + value->size(), number);
  return number >= 0 && value == numbered(tag, number) ? std::optional(number) : std::nullopt;
}

/// What a process tells the test: a number that is stored, or what is wrong. Of a process that is killed each message
/// arrives whole or not at all.
struct Message {
  Owner owner;
  int stored = 0;
  std::array<char, 200> fault = {};
};
static_assert(sizeof(Message) <= PIPE_BUF);

class MessagePipe {
 public:
  MessagePipe() {
    if (::pipe(ends_) != 0) throw std::runtime_error("no pipe can be made");
  }
  MessagePipe(const MessagePipe&) = delete;
  MessagePipe& operator=(const MessagePipe&) = delete;
  ~MessagePipe() {
    ::close(ends_[0]);
    close();
  }

  void send(const Message& message) const { EXPECT_EQ(::write(ends_[1], &message, sizeof message), sizeof message); }
  /// Waits for the next one; nothing when none comes for long, or when all that could send have ended.
  [[nodiscard]] std::optional<Message> next() const {
    pollfd ready = {.fd = ends_[0], .events = POLLIN, .revents = 0};
    Message message;
    const auto timeoutMs = static_cast<int>(std::chrono::milliseconds(kLong).count());
    if (::poll(&ready, 1, timeoutMs) != 1) return std::nullopt;
    return ::read(ends_[0], &message, sizeof message) == sizeof message ? std::optional(message) : std::nullopt;
  }
  /// This process sends no more.
  void close() {
    if (ends_[1] >= 0) ::close(ends_[1]);
    ends_[1] = -1;
  }

 private:
  int ends_[2] = {-1, -1};
};

/// A process that keeps the store busy until it is killed. Nothing at all may be logged.
class BusyProcess : SystemLog {
 public:
  BusyProcess(const std::string& path, int process, const MessagePipe& pipe)
      : process_(process), pipe_(pipe), store_(path, *this) {}

  void line(const std::string& text) override { tellFault({.process = process_}, text); }
  void notice(const std::string& text) override { line(text); }

  void work() {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < kThreadsEach; ++thread) {
      threads.emplace_back([this, thread] { writeAndRead({.process = process_, .thread = thread}); });
    }
  }

 private:
  [[noreturn]] void writeAndRead(Owner self) {
    std::mt19937 random(static_cast<unsigned>(::getpid() + self.thread));
    const std::vector<Owner> owners = allOwners();
    std::map<Owner, int> seen;
    // A killed process may have stored more than it could tell.
    int number = look(self, self, seen);
    for (;;) {
      ++number;
      store_.setValue(self.tag(kFirst), numbered(self.tag(kFirst), number));
      store_.setValue(self.tag(kSecond), numbered(self.tag(kSecond), number));
      if (store_.waitUntilStored(kLong)) {
        pipe_.send({.owner = self, .stored = number});
      } else {
        tellFault(self, "a value is not stored in time");
      }
      look(self, owners[random() % owners.size()], seen);
    }
  }

  /// Reads the other's tags; what they hold is never less than what was seen before, nor the first behind the second.
  int look(Owner self, Owner other, std::map<Owner, int>& seen) {
    const auto second = numberIn(other.tag(kSecond), store_.value(other.tag(kSecond)));
    const auto first = numberIn(other.tag(kFirst), store_.value(other.tag(kFirst)));
    if (!first || !second) {
      tellFault(self, "a value of " + other.tag("") + " is missing, torn or foreign");
      return 0;
    }
    if (*second < seen[other] || *first < *second) {
      tellFault(self, other.tag("") + " went back: " + std::to_string(seen[other]) + ", then " +
                          std::to_string(*second) + " after " + std::to_string(*first));
    }
    seen[other] = *second;
    return *first;
  }

  void tellFault(Owner owner, const std::string& text) const {
    Message message{.owner = owner};
    text.copy(message.fault.data(), message.fault.size() - 1);
    pipe_.send(message);
  }

  const int process_;
  const MessagePipe& pipe_;
  SqliteTagStore store_;
};

class TheTagStoreUnderLoad : public StoreFolder {
 protected:
  void SetUp() override {
    std::vector<TagValue> tags;
    for (const Owner& owner : allOwners()) {
      for (const char* which : {kFirst, kSecond}) tags.push_back({owner.tag(which), numbered(owner.tag(which), 0)});
    }
    ASSERT_EQ(writeTags(path(), tags).state, StoreState::fine);
    for (int process = 0; process < kBusyProcesses; ++process) start(process);
  }

  void start(int process) {
    processes_[process] = std::make_unique<ChildProcess>([this, process] {
      BusyProcess(path(), process, pipe_).work();
      return true;
    });
  }
  void replace(int process) {
    EXPECT_TRUE(processes_.at(process)->kill()) << "process " << process << " ended by itself";
    start(process);
    ++kills_[process];
  }
  void note(const Message& message) {
    if (message.fault[0] != '\0') {
      ADD_FAILURE() << message.owner.tag("") << ": " << message.fault.data();
      return;
    }
    // A process goes on from what it finds in the store: it would repeat what the one before it only seemed to store.
    int& last = stored_[message.owner];
    EXPECT_GT(message.stored, last) << message.owner.tag("") << " was lost";
    last = message.stored;
  }
  [[nodiscard]] bool allHadTheirTurn() const {
    return kills_.size() == kBusyProcesses && stored_.size() == allOwners().size();
  }
  void endLoad() {
    for (const auto& [number, process] : processes_) {
      EXPECT_TRUE(process->kill()) << "process " << number << " ended by itself";
    }
    pipe_.close();
    while (const auto message = pipe_.next()) note(*message);
  }

  MessagePipe pipe_;
  std::map<int, std::unique_ptr<ChildProcess>> processes_;
  std::map<Owner, int> stored_;
  std::map<int, int> kills_;
};

TEST_F(TheTagStoreUnderLoad, KeepsAllThatWasStoredWhileProcessesAreKilled) {
  constexpr std::size_t kMostMessagesBetweenKills = 40;
  std::mt19937 random(std::random_device{}());
  const auto limit = std::chrono::steady_clock::now() + kLong;
  std::size_t untilKill = kMostMessagesBetweenKills;
  int kills = 0;
  while (std::chrono::steady_clock::now() < limit && (kills < kKills || !allHadTheirTurn())) {
    const auto message = pipe_.next();
    ASSERT_TRUE(message) << "no process gets on";
    note(*message);
    if (--untilKill > 0) continue;
    ++kills;
    replace(message->owner.process);  // just when it has said that something is stored
    untilKill = 1 + random() % kMostMessagesBetweenKills;
  }
  endLoad();

  EXPECT_TRUE(allHadTheirTurn());
  EXPECT_GE(kills, kKills);
  EXPECT_EQ(sqlText(path(), "PRAGMA integrity_check"), "ok");
  for (const auto& [owner, number] : stored_) {
    for (const char* which : {kFirst, kSecond}) {
      const auto left = numberIn(owner.tag(which), tagIn(path(), owner.tag(which)));
      ASSERT_TRUE(left) << owner.tag(which);
      EXPECT_GE(*left, number) << owner.tag(which);
    }
  }
}

}  // namespace
}  // namespace calvero::testing
