#include "platform/suite/sqlite_tag_store.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <thread>

#include "tests/platform/suite/store_folder.h"

namespace calvero::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TheTagStore : public StoreFolder {
 protected:
  static mode_t modeOf(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
  }
};

/// The mask of the process for the length of a test.
class FileMask {
 public:
  explicit FileMask(mode_t mask) : earlier_(::umask(mask)) {}
  FileMask(const FileMask&) = delete;
  FileMask& operator=(const FileMask&) = delete;
  ~FileMask() { ::umask(earlier_); }

 private:
  mode_t earlier_;
};

TEST_F(TheTagStore, KeepsAValueForThoseWhoOpenItLater) {
  setTag(path(), "cvrStatus", "2");
  EXPECT_EQ(tagIn(path(), "cvrStatus"), "2");
}

TEST_F(TheTagStore, ReplacesAnEarlierValueAndNoOther) {
  SqliteTagStore store(path(), log_);
  store.setValue("cvrStatus", "2");
  store.setValue("CVRCANCEL", "0");
  store.setValue("cvrStatus", "3");
  EXPECT_EQ(store.value("cvrStatus"), "3");
  EXPECT_EQ(store.value("CVRCANCEL"), "0");
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(TheTagStore, TellsTagsApartByCase) {
  setTag(path(), "LANG", "de");
  EXPECT_EQ(tagIn(path(), "lang"), std::nullopt);
}

TEST_F(TheTagStore, MakesNothingWhenItIsOnlyRead) {
  SqliteTagStore store(folder() + "/suite/tags.sqlite", log_);
  EXPECT_EQ(store.value("LANG"), std::nullopt);
  EXPECT_THAT(namesIn(folder()), IsEmpty());
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(TheTagStore, LeavesNothingButItsFile) {
  SqliteTagStore store(path(), log_);
  store.setValue("LANG", "de");
  EXPECT_EQ(store.value("LANG"), "de");
  EXPECT_THAT(namesIn(folder()), ElementsAre("tags.sqlite"));
}

TEST_F(TheTagStore, KeepsNoFileOpen) {
  const auto before = namesIn("/proc/self/fd").size();
  SqliteTagStore store(path(), log_);
  store.setValue("LANG", "de");
  EXPECT_EQ(store.value("LANG"), "de");
  EXPECT_EQ(namesIn("/proc/self/fd").size(), before);
}

TEST_F(TheTagStore, IsPrivateWhateverTheMaskOfTheProcess) {
  for (const mode_t mask : {mode_t{0}, mode_t{0777}}) {
    const std::string outer = folder() + "/mask" + std::to_string(mask);
    std::filesystem::create_directory(outer);
    ::chmod(outer.c_str(), 0755);
    const FileMask masked(mask);
    setTag(mask == 0 ? outer + "/Ondrel Software/Ondrel MORE/tags.sqlite" : outer + "/tags.sqlite", "LANG", "de");
    EXPECT_EQ(modeOf(outer), 0755U) << "a folder that was there";
    if (mask != 0) {
      EXPECT_EQ(modeOf(outer + "/tags.sqlite"), 0600U);
      continue;
    }
    EXPECT_EQ(modeOf(outer + "/Ondrel Software"), 0700U);
    EXPECT_EQ(modeOf(outer + "/Ondrel Software/Ondrel MORE"), 0700U);
    EXPECT_EQ(modeOf(outer + "/Ondrel Software/Ondrel MORE/tags.sqlite"), 0600U);
  }
}

TEST_F(TheTagStore, HasPrivateCompanionFiles) {
  const FileMask none(0);
  setTag(path(), "LANG", "de");
  SQLite::Database reader(path(), SQLite::OPEN_READWRITE);  // as long as one has it open, they stay
  EXPECT_EQ(reader.execAndGet("SELECT value FROM tags").getString(), "de");
  setTag(path(), "LANG", "en");
  EXPECT_EQ(modeOf(path() + "-wal"), 0600U);
  EXPECT_EQ(modeOf(path() + "-shm"), 0600U);
}

TEST_F(TheTagStore, LeavesTheModeOfAStoreThatIsThere) {
  setTag(path(), "LANG", "de");
  ::chmod(path().c_str(), 0640);
  setTag(path(), "LANG", "en");
  EXPECT_EQ(modeOf(path()), 0640U);
}

TEST_F(TheTagStore, HasTheLayoutThatIsPromised) {
  setTag(path(), "LANG", "de");
  EXPECT_EQ(sqlText(path(), "PRAGMA journal_mode"), "wal");
  EXPECT_EQ(sqlText(path(), "PRAGMA application_id"), "1330467923");
  EXPECT_EQ(sqlText(path(), "PRAGMA user_version"), "1");
  EXPECT_EQ(sqlText(path(), "SELECT tag || '=' || value FROM tags"), "LANG=de");
}

TEST_F(TheTagStore, GivesAStoreOfAnotherProgramItsWriteAheadLog) {
  setTag(path(), "LANG", "de");
  runSql(path(), "PRAGMA journal_mode = DELETE");
  ASSERT_EQ(sqlText(path(), "PRAGMA journal_mode"), "delete");
  EXPECT_EQ(tagIn(path(), "LANG"), "de");
  setTag(path(), "LANG", "en");
  EXPECT_EQ(sqlText(path(), "PRAGMA journal_mode"), "wal");
  EXPECT_EQ(tagIn(path(), "LANG"), "en");
}

TEST_F(TheTagStore, TakesAnEmptyFileForItsOwn) {
  putBytes(path(), "");
  EXPECT_EQ(tagIn(path(), "LANG"), std::nullopt);
  EXPECT_EQ(bytesOf(path()), "");
  setTag(path(), "LANG", "de");
  EXPECT_EQ(tagIn(path(), "LANG"), "de");
  EXPECT_EQ(sqlText(path(), "PRAGMA journal_mode"), "wal");
}

TEST_F(TheTagStore, KeepsTextsAsTheyAre) {
  SqliteTagStore store(path(), log_);
  const std::vector<std::string> texts = {"",
                                          " trailing ",
                                          "it's \"quoted\"; DROP TABLE tags",
                                          "Gr\xC3\xBC\xC3\x9F"
                                          "e\n",
                                          "\xFF\xFE\xC3",
                                          "1",
                                          "0x10",
                                          "NULL"};
  for (const std::string& text : texts) {
    store.setValue("tag " + text, text);
    EXPECT_EQ(store.value("tag " + text), text);
  }
  const std::string longestTag(4096, 't');
  const std::string longestValue(65'536, 'v');
  store.setValue(longestTag, longestValue);
  EXPECT_EQ(store.value(longestTag), longestValue);
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(TheTagStore, RefusesTextsThatAreTooLongOrHoldANul) {
  SqliteTagStore store(path(), log_);
  const std::string withNul("1\0002", 3);
  store.setValue(std::string(4097, 't'), "1");
  store.setValue("LANG", std::string(65'537, 'v'));
  store.setValue(withNul, "1");
  store.setValue("LANG", withNul);
  EXPECT_EQ(log_.lines().size(), 4U);
  EXPECT_THAT(namesIn(folder()), IsEmpty());
  EXPECT_EQ(store.value(withNul), std::nullopt);
  EXPECT_EQ(store.value(std::string(4097, 't')), std::nullopt);
}

TEST_F(TheTagStore, HasNoValueWhereAnotherProgramStoredNoTextWithinTheBounds) {
  setTag(path(), "LANG", "de");
  runSql(path(),
         "INSERT INTO tags VALUES ('long', printf('%.*c', 65537, 'v')), ('huge', printf('%.*c', 9000000, 'v')),"
         " ('nul', CAST(x'310032' AS TEXT)), ('bytes', x'31'), ('number', 1)");
  SqliteTagStore store(path(), log_);
  for (const char* tag : {"long", "huge", "nul", "bytes"}) EXPECT_EQ(store.value(tag), std::nullopt) << tag;
  EXPECT_EQ(store.value("number"), "1");
  EXPECT_EQ(store.value("LANG"), "de");
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(TheTagStore, ReadsTheTextOfANumberWhereAnotherProgramMadeATableWithoutTypes) {
  setTag(path(), "LANG", "de");
  runSql(path(),
         "DROP TABLE tags; CREATE TABLE tags (tag PRIMARY KEY, value);"
         " INSERT INTO tags VALUES ('whole', 1), ('least', -9223372036854775808), ('broken', 2.5), ('bytes', x'31'),"
         " ('none', NULL)");
  SqliteTagStore store(path(), log_);
  EXPECT_EQ(store.value("whole"), "1");
  EXPECT_EQ(store.value("least"), "-9223372036854775808");
  EXPECT_EQ(store.value("broken"), "2.5");
  EXPECT_EQ(store.value("bytes"), std::nullopt);
  EXPECT_EQ(store.value("none"), std::nullopt);
  for (const char* tag : {"whole", "bytes", "none"}) {
    store.setValue(tag, "3");
    EXPECT_EQ(store.value(tag), "3") << tag;
  }
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(TheTagStore, FollowsAStoreThatIsReplaced) {
  SqliteTagStore store(path(), log_);
  store.setValue("LANG", "de");
  std::filesystem::remove(path());
  EXPECT_EQ(store.value("LANG"), std::nullopt);
  setTag(path(), "LANG", "fr");
  EXPECT_EQ(store.value("LANG"), "fr");
  std::filesystem::remove(path());
  store.setValue("LANG", "en");
  EXPECT_EQ(tagIn(path(), "LANG"), "en");
}

TEST_F(TheTagStore, StaysWhereItWasWhenTheWorkingFolderChanges) {
  const auto earlier = std::filesystem::current_path();
  std::filesystem::current_path(folder());
  SqliteTagStore store("tags.sqlite", log_);
  std::filesystem::current_path(earlier);
  store.setValue("LANG", "de");
  EXPECT_EQ(tagIn(path(), "LANG"), "de");
}

TEST_F(TheTagStore, WithoutAPlaceIsReportedOnceAndHoldsNothing) {
  SqliteTagStore store("", log_);
  EXPECT_EQ(store.value("LANG"), std::nullopt);
  EXPECT_EQ(store.value("LANG"), std::nullopt);
  store.setValue("LANG", "de");
  EXPECT_EQ(store.value("LANG"), std::nullopt);
  EXPECT_TRUE(store.waitUntilStored(kNoTime));
  EXPECT_EQ(log_.linesWith("there is no folder for it"), 1);
}

TEST_F(TheTagStore, ServesSeveralThreadsThroughSeveralObjects) {
  constexpr int kRounds = 10;
  SqliteTagStore first(path(), log_);
  SqliteTagStore second(path(), log_);
  const auto useStore = [](SqliteTagStore& store, const std::string& tag) {
    for (int round = 0; round < kRounds; ++round) {
      store.setValue(tag, std::to_string(round));
      EXPECT_EQ(store.value(tag), std::to_string(round));
    }
  };
  {
    std::vector<std::jthread> threads;
    for (const char* tag : {"a", "b"}) {
      threads.emplace_back([&, tag] { useStore(first, tag); });
      threads.emplace_back([&, tag] { useStore(second, std::string("second ") + tag); });
    }
  }
  ASSERT_TRUE(first.waitUntilStored(kLong) && second.waitUntilStored(kLong));
  for (const char* tag : {"a", "b", "second a", "second b"}) EXPECT_EQ(tagIn(path(), tag), "9") << tag;
}

}  // namespace
}  // namespace calvero::testing
