#include <gmock/gmock.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <array>
#include <cerrno>
#include <memory>

#include "tests/platform/suite/child_process.h"
#include "tests/platform/suite/private_mounts.h"

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AStoreBehindALink : public StoreVolume {
 protected:
  void SetUp() override {
    StoreVolume::SetUp();
    if (IsSkipped()) return;
    std::filesystem::create_symlink(path(), link());
  }
  [[nodiscard]] std::string link() const { return elsewhere_.path() + "/tags.sqlite"; }

  const ScopedFolder elsewhere_;
};

TEST_F(AStoreBehindALink, IsReadAndWrittenWhereItIs) {
  setTag(path(), "LANG", "de");
  EXPECT_EQ(tagIn(link(), "LANG"), "de");
  setTag(link(), "LANG", "en");
  EXPECT_EQ(tagIn(path(), "LANG"), "en");
  EXPECT_THAT(namesIn(folder()), ElementsAre("tags.sqlite"));
  EXPECT_TRUE(std::filesystem::is_symlink(link()));
}

TEST_F(AStoreBehindALink, IsNotMadeWhereTheLinkLeads) {
  SqliteTagStore store(link(), log_, kShort);
  EXPECT_EQ(store.value("LANG"), std::nullopt);
  store.setValue("LANG", "de");
  EXPECT_THAT(namesIn(folder()), IsEmpty());
  EXPECT_FALSE(store.waitUntilStored(kNoTime));
  setTag(path(), "cvrOnline", "1");  // as when the disk that it leads to comes back
  EXPECT_TRUE(store.waitUntilStored(kLong));
  EXPECT_EQ(tagIn(path(), "LANG"), "de");
  EXPECT_THAT(namesIn(elsewhere_.path()), ElementsAre("tags.sqlite"));
}

TEST_F(AStoreBehindALink, HoldsNoTagsRatherThanOldOnesWhenItsJournalCannotBeRead) {
  setTag(path(), "cvrOnline", "1");
  std::string log;
  {
    SQLite::Database other(path(), SQLite::OPEN_READWRITE);
    other.exec("UPDATE tags SET value = '0'");
    log = bytesOf(path() + "-wal");
    other.exec("UPDATE tags SET value = '1'");
  }
  ASSERT_FALSE(log.empty());
  putBytes(path() + "-wal", log);
  setReadOnly();
  EXPECT_EQ(tagIn(link(), "cvrOnline"), std::nullopt);
}

TEST_F(AStoreBehindALink, MayHaveTheLinkInItsFolder) {
  std::filesystem::create_directory(folder() + "/real");
  ::chmod((folder() + "/real").c_str(), 0755);
  std::filesystem::create_directory_symlink("real", folder() + "/suite");
  setTag(folder() + "/suite/more/tags.sqlite", "LANG", "de");
  EXPECT_EQ(tagIn(folder() + "/real/more/tags.sqlite", "LANG"), "de");
  EXPECT_EQ(std::filesystem::status(folder() + "/real").permissions(), std::filesystem::perms(0755));
  EXPECT_EQ(std::filesystem::status(folder() + "/real/more").permissions(), std::filesystem::perms(0700));
}

TEST_F(AStoreBehindALink, IsLeftAloneWhenItIsSomebodyElses) {
  putBytes(path(), "precious");
  SqliteTagStore store(link(), log_);
  EXPECT_EQ(store.value("LANG"), std::nullopt);
  store.setValue("LANG", "de");
  EXPECT_EQ(bytesOf(path()), "precious");
  EXPECT_THAT(namesIn(folder()), ElementsAre("tags.sqlite"));
}

/// From now on this process cannot give a file a second name, as on the file systems of sticks.
bool refuseHardLinks(int errnoValue) {
  const auto refusal = SECCOMP_RET_ERRNO | static_cast<unsigned>(errnoValue);
  std::array<sock_filter, 5> rules = {{
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
#ifdef SYS_link
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_link, 1, 0),
#else
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_linkat, 1, 0),
#endif
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_linkat, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, refusal),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  }};
  const sock_fprog program = {.len = static_cast<unsigned short>(rules.size()), .filter = rules.data()};
  return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

using AFileSystemWithoutHardLinks = StoreFolder;

TEST_F(AFileSystemWithoutHardLinks, GetsItsStore) {
  for (const int errnoValue : {EPERM, EOPNOTSUPP, ENOSYS}) {
    const std::string place = folder() + '/' + std::to_string(errnoValue);
    const std::string file = place + "/tags.sqlite";
    EXPECT_TRUE(ChildProcess([&] {
                  if (!refuseHardLinks(errnoValue) || ::link("/proc/self/exe", "other") == 0) return false;
                  ::umask(0777);
                  std::filesystem::create_directory(place);
                  ::chmod(place.c_str(), 0700);
                  setTag(file, "LANG", "de");
                  return tagIn(file, "LANG") == "de";
                }).succeeded());
    EXPECT_THAT(namesIn(place), ElementsAre("tags.sqlite"));
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));
    EXPECT_EQ(sqlText(file, "PRAGMA journal_mode"), "wal");
    EXPECT_EQ(sqlText(file, "PRAGMA application_id"), "1330467923");
  }
}

TEST_F(AFileSystemWithoutHardLinks, GetsOneStoreFromSeveralMakers) {
  constexpr int kRounds = 10;
  constexpr int kMakers = 5;
  for (int round = 0; round < kRounds; ++round) {
    const std::string file = folder() + "/round" + std::to_string(round) + "/tags.sqlite";
    StartingGate gate;
    std::vector<std::unique_ptr<ChildProcess>> makers;
    for (int number = 0; number < kMakers; ++number) {
      makers.push_back(std::make_unique<ChildProcess>([&, number] {
        RecordingLog log;
        SqliteTagStore store(file, log);
        gate.wait();
        if (!refuseHardLinks(EPERM)) return false;
        store.setValue("tag" + std::to_string(number), "set");
        return store.waitUntilStored(kLong) && log.lines().empty();
      }));
    }
    gate.open();
    for (const auto& maker : makers) EXPECT_TRUE(maker->succeeded()) << "round " << round;
    EXPECT_EQ(sqlText(file, "SELECT count(*) FROM tags"), std::to_string(kMakers));
  }
}

}  // namespace
}  // namespace calvero::testing
