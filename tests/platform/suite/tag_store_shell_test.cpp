#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "tests/platform/suite/child_process.h"
#include "tests/platform/suite/environment_variable.h"
#include "tests/platform/suite/store_folder.h"

namespace calvero::testing {
namespace {

/// The commands that the document gives to other programs, run as they stand.
class TheDocumentedCommands : public StoreFolder {
 protected:
  void SetUp() override {
    if (std::system("command -v sqlite3 >/dev/null") != 0) GTEST_SKIP() << "there is no sqlite3 command";
    const auto root = std::filesystem::path(__FILE__).parent_path() / "../../..";
    std::istringstream document(bytesOf((root / "docs/tag-store.md").string()));
    bool isCommand = false;
    for (std::string line; std::getline(document, line);) {
      if (line.starts_with("```")) {
        isCommand = line == "```sh";
        if (isCommand) commands_.emplace_back();
      } else if (isCommand) {
        commands_.back() += line + '\n';
      }
    }
    ASSERT_EQ(commands_.size(), 4U);
  }

  /// Its output; the place of the store is set first.
  [[nodiscard]] std::string run(const std::string& command) const {
    putBytes(folder() + "/commands", "set -e\n" + commands_[kPlace] + command);
    const std::string whole = "sh " + folder() + "/commands >" + folder() + "/output 2>&1";
    const bool succeeded = std::system(whole.c_str()) == 0;
    return (succeeded ? "" : "failed: ") + bytesOf(folder() + "/output");
  }
  [[nodiscard]] std::string storePath() const { return folder() + "/data/Ondrel Software/Ondrel MORE/tags.sqlite"; }

  static constexpr std::size_t kPlace = 0;
  static constexpr std::size_t kMake = 1;
  static constexpr std::size_t kWrite = 2;
  static constexpr std::size_t kRead = 3;

  const EnvironmentVariable data_{"XDG_DATA_HOME", folder() + "/data"};
  const EnvironmentVariable store_{"CALVERO_TAG_STORE", std::nullopt};
  std::vector<std::string> commands_;
};

TEST_F(TheDocumentedCommands, MakeAStoreAndGiveAnOrder) {
  EXPECT_EQ(run(commands_[kMake]), "");
  EXPECT_EQ(std::filesystem::status(storePath()).permissions(), std::filesystem::perms(0600));
  EXPECT_EQ(run(commands_[kWrite]), "");
  SqliteTagStore store(storePath(), log_);
  EXPECT_EQ(store.value("cvrOnline"), "1");
  EXPECT_EQ(store.value("cvrDrive"), "BACKUP");
  EXPECT_EQ(store.value("cvrAlgo"), "3");
  EXPECT_TRUE(log_.lines().empty());
}

TEST_F(TheDocumentedCommands, ReadWhatWasStored) {
  setTag(storePath(), "LANG", "de");
  EXPECT_EQ(run(commands_[kRead]), "");
  setTag(storePath(), "cvrStatus", "2");
  EXPECT_EQ(run(commands_[kRead]), "2\n");
}

TEST_F(TheDocumentedCommands, LeaveAndChangeAStoreThatIsThere) {
  setTag(storePath(), "LANG", "de");
  setTag(storePath(), "cvrDrive", "OTHER");
  EXPECT_EQ(run(commands_[kMake]), "");
  EXPECT_EQ(run(commands_[kWrite]), "");
  EXPECT_EQ(tagIn(storePath(), "LANG"), "de");
  EXPECT_EQ(tagIn(storePath(), "cvrDrive"), "BACKUP");
}

TEST_F(TheDocumentedCommands, MakeAStoreAtTheSameMomentAsCalvero) {
  constexpr int kRounds = 10;
  for (int round = 0; round < kRounds; ++round) {
    std::filesystem::remove_all(folder() + "/data");
    ChildProcess calvero([&] {
      SqliteTagStore store(storePath(), log_);
      store.setValue("LANG", "de");
      return store.waitUntilStored(kLong) && log_.linesWith("left alone") == 0;
    });
    EXPECT_EQ(run(commands_[kMake] + commands_[kWrite]), "") << "round " << round;
    EXPECT_TRUE(calvero.succeeded()) << "round " << round;
    EXPECT_EQ(tagIn(storePath(), "LANG"), "de");
    EXPECT_EQ(tagIn(storePath(), "cvrOnline"), "1");
  }
}

}  // namespace
}  // namespace calvero::testing
