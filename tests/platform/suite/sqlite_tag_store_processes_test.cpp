#include <gmock/gmock.h>
#include <sys/stat.h>

#include <iostream>
#include <memory>
#include <thread>

#include "tests/platform/suite/child_process.h"
#include "tests/platform/suite/store_folder.h"

namespace calvero::testing {
namespace {

using ::testing::Each;
using ::testing::Not;
using ::testing::PrintToString;
using ::testing::StartsWith;

class SeveralProcesses : public StoreFolder {
 protected:
  using Processes = std::vector<std::unique_ptr<ChildProcess>>;

  /// Starts `count` processes at one moment.
  static Processes started(int count, const std::function<bool(int)>& body) {
    StartingGate gate;
    Processes processes;
    for (int number = 0; number < count; ++number) {
      processes.push_back(std::make_unique<ChildProcess>([&, number] {
        gate.wait();
        return body(number);
      }));
    }
    gate.open();
    return processes;
  }
  static bool allSucceed(int count, const std::function<bool(int)>& body) {
    const Processes processes = started(count, body);
    bool all = true;
    for (const auto& process : processes) all = process->succeeded() && all;
    return all;
  }

  /// Sets a tag as a program of its own and reads it back.
  [[nodiscard]] static bool storesItsTag(const std::string& path, int number) {
    const std::string tag = "tag" + std::to_string(number);
    RecordingLog log;
    SqliteTagStore store(path, log);
    store.setValue(tag, "set");
    const bool isStored = store.waitUntilStored(kLong);
    const std::string value = store.value(tag).value_or("nothing");
    if (isStored && value == "set" && log.lines().empty()) return true;
    std::cerr << tag << (isStored ? " stored" : " not stored") << ", read as \"" << value
              << "\"; logged: " << PrintToString(log.lines()) << '\n';
    return false;
  }
};

constexpr int kProcesses = 8;

TEST_F(SeveralProcesses, AllStoreTheirTagAtTheVeryFirstStart) {
  constexpr int kRounds = 40;
  for (int round = 0; round < kRounds; ++round) {
    const std::string place = folder() + "/round" + std::to_string(round);
    const std::string file = place + "/suite/tags.sqlite";
    ASSERT_TRUE(allSucceed(kProcesses, [&](int number) { return storesItsTag(file, number); })) << "round " << round;
    EXPECT_EQ(sqlText(file, "SELECT count(*) FROM tags"), std::to_string(kProcesses));
    EXPECT_EQ(sqlText(file, "PRAGMA journal_mode"), "wal");
    EXPECT_THAT(namesIn(place + "/suite"), Each(Not(StartsWith("tags.sqlite."))));
  }
}

TEST_F(SeveralProcesses, MakeTheStoreThoughSomeOfThemAreKilled) {
  constexpr int kRounds = 20;
  int hits = 0;
  for (int round = 0; round < kRounds; ++round) {
    const std::string place = folder_.make("round" + std::to_string(round));
    const std::string file = place + "/tags.sqlite";
    const Processes processes = started(kProcesses, [&](int number) { return storesItsTag(file, number); });
    const auto limit = std::chrono::steady_clock::now() + kLong;
    while (namesIn(place).empty() && std::chrono::steady_clock::now() < limit) std::this_thread::yield();
    for (int number = 0; number < kProcesses; number += 2) hits += processes.at(number)->kill() ? 1 : 0;
    for (int number = 1; number < kProcesses; number += 2) {
      ASSERT_TRUE(processes.at(number)->succeeded()) << "round " << round;
      EXPECT_EQ(tagIn(file, "tag" + std::to_string(number)), "set") << "round " << round;
    }
    EXPECT_EQ(sqlText(file, "PRAGMA integrity_check"), "ok");
  }
  EXPECT_GT(hits, 0) << "nobody was killed at work";
}

TEST_F(SeveralProcesses, AllStoreTheirTagInAnEmptyFile) {
  constexpr int kRounds = 10;
  for (int round = 0; round < kRounds; ++round) {
    const std::string file = folder() + "/tags" + std::to_string(round);
    putBytes(file, "");
    ASSERT_TRUE(allSucceed(kProcesses, [&](int number) { return storesItsTag(file, number); })) << "round " << round;
    EXPECT_EQ(sqlText(file, "SELECT count(*) FROM tags"), std::to_string(kProcesses));
  }
}

TEST_F(SeveralProcesses, ReadEveryTagWhileOthersAreWritten) {
  setTag(path(), "cvrOnline", "1");
  constexpr int kRounds = 25;
  const auto body = [&](int number) {
    RecordingLog log;
    SqliteTagStore store(path(), log);
    const std::string tag = "tag" + std::to_string(number);
    for (int round = 0; round < kRounds; ++round) {
      if (number % 2 == 0) store.setValue(tag, std::to_string(round));
      if (store.value("cvrOnline") != "1") return false;
    }
    return store.waitUntilStored(kLong) && log.linesWith("cannot be read") == 0 && log.linesWith("left alone") == 0;
  };
  EXPECT_TRUE(allSucceed(kProcesses, body));
}

TEST_F(SeveralProcesses, FindTheStoreWholeWhenOneIsKilled) {
  constexpr int kRounds = 5;
  for (int round = 0; round < kRounds; ++round) {
    ChildProcess writing([&] {
      RecordingLog log;
      SqliteTagStore store(path(), log);
      for (int number = 0;; ++number) store.setValue("round" + std::to_string(round), std::to_string(number));
      return true;
    });
    const auto limit = std::chrono::steady_clock::now() + kLong;
    std::optional<std::string> seen;
    while (!(seen && seen->size() > 1) && std::chrono::steady_clock::now() < limit) {
      seen = tagIn(path(), "round" + std::to_string(round));
    }
    EXPECT_TRUE(writing.kill());
    ASSERT_TRUE(seen);
    const auto left = tagIn(path(), "round" + std::to_string(round));
    ASSERT_TRUE(left);
    EXPECT_GE(std::stoi(*left), std::stoi(*seen));
    setTag(path(), "after", std::to_string(round));
    EXPECT_EQ(tagIn(path(), "after"), std::to_string(round));
  }
}

/// The store of somebody else, as a user without the rights of root meets it.
class AStoreOfAnotherUser : public StoreFolder {
 protected:
  void SetUp() override {
    setTag(path(), "cvrOnline", "1");
    if (::geteuid() != 0) return;
    ::chmod(folder().c_str(), 0755);
  }
  void TearDown() override { ::chmod(folder().c_str(), 0700); }
};

TEST_F(AStoreOfAnotherUser, IsReadInAFolderThatIsNotWritable) {
  ::chmod(path().c_str(), 0444);
  ::chmod(folder().c_str(), 0555);
  EXPECT_TRUE(succeedsAsPlainUser([&] { return tagIn(path(), "cvrOnline") == "1"; }));
}

TEST_F(AStoreOfAnotherUser, IsReportedOnceAndHoldsNoTagsWhenItIsNotReadable) {
  const auto isReportedOnce = [&] {
    RecordingLog log;
    SqliteTagStore store(path(), log);
    const bool none = !store.value("cvrOnline") && !store.value("cvrOnline");
    return none && log.lines().size() == 1 && log.linesWith("cannot be read") == 1;
  };
  ::chmod(path().c_str(), 0000);
  EXPECT_TRUE(succeedsAsPlainUser(isReportedOnce));
  ::chmod(path().c_str(), 0644);
  ::chmod(folder().c_str(), 0000);
  EXPECT_TRUE(succeedsAsPlainUser(isReportedOnce));
}

TEST_F(AStoreOfAnotherUser, KeepsATagPendingForAsLongAsItIsNotWritable) {
  ::chmod(path().c_str(), 0444);
  ::chmod(folder().c_str(), 0555);
  EXPECT_TRUE(succeedsAsPlainUser([&] {
    RecordingLog log;
    SqliteTagStore store(path(), log, kShort);
    store.setValue("cvrStatus", "2");
    return store.value("cvrStatus") == "2" && !store.waitUntilStored(kNoTime) &&
           log.linesWith("cannot be written yet") == 1;
  }));
  EXPECT_EQ(tagIn(path(), "cvrStatus"), std::nullopt);
}

}  // namespace
}  // namespace calvero::testing
