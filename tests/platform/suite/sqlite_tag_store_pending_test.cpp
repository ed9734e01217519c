#include <gmock/gmock.h>

#include "tests/platform/suite/private_mounts.h"
#include "tests/platform/suite/store_folder.h"

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class APendingTag : public StoreFolder {
 protected:
  void SetUp() override { setTag(path(), "cvrStatus", "old"); }
};

TEST_F(APendingTag, IsAnsweredToThisProcessAndKeptUntilTheStoreIsFree) {
  SqliteTagStore store(path(), log_, kShort);
  {
    const WriteLock lock(path());
    store.setValue("cvrStatus", "2");
    EXPECT_EQ(store.value("cvrStatus"), "2");
    EXPECT_EQ(tagIn(path(), "cvrStatus"), "old");
    EXPECT_FALSE(store.waitUntilStored(kNoTime));
  }
  EXPECT_TRUE(store.waitUntilStored(kLong));
  EXPECT_EQ(tagIn(path(), "cvrStatus"), "2");
}

TEST_F(APendingTag, IsLoggedWhenTheStoreStaysLockedButNotForAMoment) {
  SqliteTagStore store(path(), log_);  // waits for an attempt that fails
  {
    const WriteLock lock(path());
    store.setValue("cvrStatus", "2");
  }
  ASSERT_TRUE(store.waitUntilStored(kLong));
  EXPECT_THAT(log_.lines(), IsEmpty());

  const WriteLock lock(path());
  store.setValue("cvrStatus", "3");
  const auto limit = std::chrono::steady_clock::now() + kLong;
  while (log_.lines().empty() && std::chrono::steady_clock::now() < limit) store.waitUntilStored(kShort);
  EXPECT_EQ(log_.linesWith("cannot be written yet: database is locked"), 1);
}

TEST_F(APendingTag, GivesWayToALaterValueOfTheSameTag) {
  SqliteTagStore store(path(), log_, kShort);
  {
    const WriteLock lock(path());
    store.setValue("cvrStatus", "2");
    store.setValue("CVRCANCEL", "0");
    store.setValue("cvrStatus", "3");
    EXPECT_EQ(store.value("cvrStatus"), "3");
    EXPECT_EQ(store.value("CVRCANCEL"), "0");
  }
  EXPECT_TRUE(store.waitUntilStored(kLong));
  EXPECT_EQ(tagIn(path(), "cvrStatus"), "3");
  EXPECT_EQ(tagIn(path(), "CVRCANCEL"), "0");
}

TEST_F(APendingTag, LeavesTheOtherTagsReadable) {
  setTag(path(), "LANG", "de");
  SqliteTagStore store(path(), log_, kShort);
  const WriteLock lock(path());
  store.setValue("cvrStatus", "2");
  EXPECT_EQ(store.value("LANG"), "de");
}

TEST_F(APendingTag, IsGivenUpAndLoggedWhenTheStoreEnds) {
  const WriteLock lock(path());
  {
    SqliteTagStore store(path(), log_, kShort);
    store.setValue("cvrStatus", "2");
  }
  EXPECT_EQ(log_.linesWith("tag cvrStatus could not be stored before the end"), 1);
  EXPECT_EQ(tagIn(path(), "cvrStatus"), "old");
}

TEST_F(APendingTag, IsDroppedWhenAnotherProgramPutsItsDatabaseThere) {
  const std::string other = folder() + "/other.sqlite";
  runSql(other, "CREATE TABLE other (tag)");
  const std::string foreign = bytesOf(other);
  SqliteTagStore store(path(), log_, kShort);
  const WriteLock lock(path());
  store.setValue("cvrStatus", "2");
  std::filesystem::rename(other, path());
  EXPECT_TRUE(store.waitUntilStored(kLong));
  EXPECT_EQ(log_.linesWith("tag cvrStatus is not stored"), 1);
  EXPECT_EQ(store.value("cvrStatus"), std::nullopt);
  EXPECT_TRUE(bytesOf(path()) == foreign);
}

TEST_F(APendingTag, IsNoneWithoutAnyValueThatWasSet) {
  SqliteTagStore store(path(), log_, kShort);
  EXPECT_TRUE(store.waitUntilStored(kNoTime));
}

using AFullVolume = StoreVolume;

TEST_F(AFullVolume, KeepsTagsPendingUntilThereIsRoom) {
  setTag(path(), "cvrStatus", "old");
  SqliteTagStore store(path(), log_);  // waits for several attempts
  fill();
  store.setValue("cvrStatus", "2");
  EXPECT_FALSE(store.waitUntilStored(kNoTime));
  EXPECT_EQ(store.value("cvrStatus"), "2");
  EXPECT_EQ(log_.linesWith("cannot be written yet"), 1);
  makeRoom();
  EXPECT_TRUE(store.waitUntilStored(kLong));
  EXPECT_EQ(tagIn(path(), "cvrStatus"), "2");
}

TEST_F(AFullVolume, StillReads) {
  setTag(path(), "CVRCANCEL", "1");
  fill();
  SqliteTagStore store(path(), log_, kShort);
  EXPECT_EQ(store.value("CVRCANCEL"), "1");
  EXPECT_EQ(store.value("cvrStatus"), std::nullopt);
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(AFullVolume, HasNoHalfAStoreWhenItIsMadeLater) {
  fill();
  SqliteTagStore store(folder() + "/suite/tags.sqlite", log_, kShort);
  store.setValue("cvrStatus", "2");
  EXPECT_FALSE(store.waitUntilStored(kNoTime));
  EXPECT_FALSE(std::filesystem::exists(folder() + "/suite/tags.sqlite"));
  makeRoom();
  EXPECT_TRUE(store.waitUntilStored(kLong));
  EXPECT_THAT(namesIn(folder() + "/suite"), ElementsAre("tags.sqlite"));
  EXPECT_EQ(tagIn(folder() + "/suite/tags.sqlite", "cvrStatus"), "2");
}

using AReadOnlyVolume = StoreVolume;

TEST_F(AReadOnlyVolume, StillReads) {
  setTag(path(), "cvrOnline", "1");
  setReadOnly();
  SqliteTagStore store(path(), log_, kShort);
  EXPECT_EQ(store.value("cvrOnline"), "1");
  EXPECT_EQ(store.value("cvrDrive"), std::nullopt);
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(AReadOnlyVolume, ReadsAPathWithLettersThatAddressesGiveAMeaning) {
  const std::string odd = folder() + "/a?b#c%20d \xC3\xBC/tags.sqlite";
  setTag(odd, "cvrOnline", "1");
  setReadOnly();
  EXPECT_EQ(tagIn(odd, "cvrOnline"), "1");
}

TEST_F(AReadOnlyVolume, HasNoTagsWithoutAStore) {
  setReadOnly();
  SqliteTagStore store(path(), log_, kShort);
  EXPECT_EQ(store.value("cvrOnline"), std::nullopt);
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(AReadOnlyVolume, KeepsTagsPendingUntilItIsWritable) {
  setTag(path(), "cvrStatus", "old");
  setReadOnly();
  SqliteTagStore store(path(), log_, kShort);
  store.setValue("cvrStatus", "2");
  EXPECT_EQ(store.value("cvrStatus"), "2");
  EXPECT_FALSE(store.waitUntilStored(kNoTime));
  setWritable();
  EXPECT_TRUE(store.waitUntilStored(kLong));
  EXPECT_EQ(tagIn(path(), "cvrStatus"), "2");
}

TEST_F(AReadOnlyVolume, HasNoTagsRatherThanOldOnesWhenAJournalCannotBeRead) {
  setTag(path(), "cvrOnline", "1");
  std::string log;
  {
    SQLite::Database other(path(), SQLite::OPEN_READWRITE);
    other.exec("UPDATE tags SET value = '0'");
    log = bytesOf(path() + "-wal");
    ASSERT_FALSE(log.empty());
    other.exec("UPDATE tags SET value = '1'");
  }
  putBytes(path() + "-wal", log);
  setReadOnly();
  SqliteTagStore store(path(), log_, kShort);
  EXPECT_EQ(store.value("cvrOnline"), std::nullopt);
  EXPECT_EQ(store.value("cvrOnline"), std::nullopt);
  EXPECT_EQ(log_.linesWith("cannot be read"), 1);
}

}  // namespace
}  // namespace calvero::testing
