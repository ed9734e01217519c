#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <map>
#include <random>

#include "tests/platform/suite/child_process.h"
#include "tests/platform/suite/store_folder.h"

namespace calvero::testing {
namespace {

constexpr std::size_t kPageBytes = 4096;

class AStoreThatIsNone : public StoreFolder {
 protected:
  void makeStore() { setTag(path(), "cvrOnline", "1"); }
  /// A store of many pages.
  void makeLargeStore() {
    makeStore();
    runSql(path(),
           "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200)"
           " INSERT INTO tags SELECT 'tag' || i, printf('%.*c', 500, 'v') FROM n");
  }

  [[nodiscard]] std::map<std::string, std::string> everything() const {
    std::map<std::string, std::string> files;
    for (const std::string& name : namesIn(folder())) files[name] = bytesOf(folder() + '/' + name);
    return files;
  }

  void expectLeftAlone(const std::string& what) {
    SCOPED_TRACE(what);
    const auto before = everything();
    RecordingLog log;
    {
      SqliteTagStore store(path(), log);
      for (int times = 0; times < 2; ++times) {
        EXPECT_EQ(store.value("cvrOnline"), std::nullopt);
        store.setValue("cvrStatus", "3");
        EXPECT_EQ(store.value("cvrStatus"), std::nullopt);
      }
      EXPECT_TRUE(store.waitUntilStored(kNoTime));
    }
    EXPECT_EQ(log.linesWith(path() + " is left alone"), 1);
    EXPECT_EQ(log.linesWith("tag cvrStatus is not stored"), 2);
    EXPECT_EQ(log.lines().size(), 3U);
    EXPECT_TRUE(everything() == before);
  }
};

TEST_F(AStoreThatIsNone, IsLeftAloneWhenItIsNoDatabase) {
  std::mt19937 random(7);
  std::string noise(3 * kPageBytes, '\0');
  for (char& byte : noise) byte = static_cast<char>(random());
  for (const std::string& bytes : {std::string("cvrOnline=1\n"), noise, std::string(kPageBytes, '\0')}) {
    putBytes(path(), bytes);
    expectLeftAlone(std::to_string(bytes.size()) + " bytes");
  }
}

TEST_F(AStoreThatIsNone, IsLeftAloneWhenItIsNoFile) {
  std::filesystem::create_directory(path());
  SqliteTagStore store(path(), log_);
  EXPECT_EQ(store.value("cvrOnline"), std::nullopt);
  store.setValue("cvrStatus", "3");
  EXPECT_TRUE(std::filesystem::is_directory(path()));
  std::filesystem::remove(path());
  ASSERT_EQ(::mkfifo(path().c_str(), 0600), 0);
  EXPECT_EQ(store.value("cvrOnline"), std::nullopt);
  store.setValue("cvrStatus", "3");
  EXPECT_TRUE(std::filesystem::is_fifo(path()));
  EXPECT_EQ(log_.linesWith("is left alone"), 1);
}

TEST_F(AStoreThatIsNone, IsLeftAloneWhenItIsAnotherProgramsDatabase) {
  const std::string table =
      "CREATE TABLE tags (tag TEXT PRIMARY KEY, value TEXT); INSERT INTO tags VALUES ('cvrOnline', '1');";
  for (const std::string& sql :
       {table, table + "PRAGMA application_id = 7", table + "PRAGMA journal_mode = WAL",
        "PRAGMA journal_mode = WAL; PRAGMA application_id = 7; PRAGMA user_version = 1;" + table,
        std::string("PRAGMA user_version = 3"),
        "PRAGMA encoding = 'UTF-16'; PRAGMA application_id = 1330467923; PRAGMA user_version = 1;" + table}) {
    std::filesystem::remove(path());
    runSql(path(), sql);
    expectLeftAlone(sql);
  }
}

TEST_F(AStoreThatIsNone, IsLeftAloneWhenItsLayoutIsNotKnown) {
  for (const std::string sql : {"PRAGMA user_version = 2", "DROP TABLE tags; CREATE TABLE other (tag)",
                                "ALTER TABLE tags RENAME COLUMN value TO content",
                                "CREATE TRIGGER other AFTER INSERT ON tags BEGIN UPDATE tags SET value = '9'; END",
                                "ALTER TABLE tags RENAME TO other; CREATE VIEW tags AS WITH RECURSIVE"
                                " n AS (SELECT * FROM other UNION ALL SELECT * FROM n) SELECT * FROM n"}) {
    std::filesystem::remove(path());
    makeStore();
    runSql(path(), sql);
    expectLeftAlone(sql);
  }
}

TEST_F(AStoreThatIsNone, IsLeftAloneWhenItIsCutOffAnywhere) {
  makeStore();
  const std::string whole = bytesOf(path());
  ASSERT_EQ(whole.size(), 2 * kPageBytes);
  for (const std::size_t bytes : {std::size_t{1}, std::size_t{15}, std::size_t{16}, std::size_t{100}, std::size_t{511},
                                  kPageBytes - 1, kPageBytes, kPageBytes + 1, whole.size() - 1}) {
    putBytes(path(), whole.substr(0, bytes));
    expectLeftAlone(std::to_string(bytes) + " bytes of the file");
  }
}

TEST_F(AStoreThatIsNone, IsLeftAloneWhenAPageIsDamagedThatDoesNotHoldTheTag) {
  makeLargeStore();
  const std::string whole = bytesOf(path());
  ASSERT_GT(whole.size(), 10 * kPageBytes);
  std::string damaged = whole;
  damaged.replace(whole.size() - kPageBytes, kPageBytes, kPageBytes, '\x5A');
  putBytes(path(), damaged);
  expectLeftAlone("the last page");
}

TEST_F(AStoreThatIsNone, KeepsItsLogThatWasNotMovedYet) {
  const ScopedFolder original;
  const std::string source = original.path() + "/tags.sqlite";
  makeLargeStore();
  std::filesystem::copy_file(path(), source);
  {
    SQLite::Database crashing(source, SQLite::OPEN_READWRITE);
    crashing.exec("UPDATE tags SET value = '0' WHERE tag = 'cvrOnline'");
    for (const char* end : {"", "-wal"}) putBytes(path() + end, bytesOf(source + end));
  }
  ASSERT_EQ(tagIn(path(), "cvrOnline"), "0");  // this moves the log into the file
  std::filesystem::remove(path());

  std::filesystem::remove(source);
  makeLargeStore();
  std::filesystem::copy_file(path(), source);
  std::string damaged = bytesOf(source);
  damaged.replace(damaged.size() - kPageBytes, kPageBytes, kPageBytes, '\x5A');
  {
    SQLite::Database crashing(source, SQLite::OPEN_READWRITE);
    crashing.exec("UPDATE tags SET value = '0' WHERE tag = 'cvrOnline'");
    putBytes(path() + "-wal", bytesOf(source + "-wal"));
  }
  putBytes(path(), damaged);
  const std::string log = bytesOf(path() + "-wal");
  SqliteTagStore store(path(), log_);
  EXPECT_EQ(store.value("cvrOnline"), std::nullopt);
  store.setValue("cvrStatus", "3");
  EXPECT_TRUE(bytesOf(path()) == damaged);
  EXPECT_TRUE(bytesOf(path() + "-wal") == log);
  EXPECT_EQ(log_.linesWith("is left alone"), 1);
}

TEST_F(AStoreThatIsNone, NeverChangesOrBreaksTheProgramWhateverByteIsWrong) {
  makeStore();
  const std::string whole = bytesOf(path());
  for (std::size_t position = 0; position < whole.size(); position += position < 128 ? 1 : 31) {
    for (const char flipped : {'\x01', '\xFF'}) {
      std::string damaged = whole;
      damaged[position] = static_cast<char>(damaged[position] ^ flipped);
      putBytes(path(), damaged);
      const auto value = tagIn(path(), "cvrOnline");
      EXPECT_TRUE(!value || value == "1") << "byte " << position;
      EXPECT_TRUE(bytesOf(path()) == damaged) << "byte " << position;
    }
  }
}

/// What stands beside a store under a name that SQLite opens by itself.
class ACompanionThatIsNoFile : public AStoreThatIsNone, public ::testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override { makeStore(); }
  [[nodiscard]] std::string companion() const { return path() + GetParam(); }
  /// Within a time limit, since a pipe that was opened would be waited for.
  void expectRefused(const std::string& words) const {
    constexpr unsigned kLongestSeconds = 20;
    ChildProcess child([&] {
      ::alarm(kLongestSeconds);
      const TagReading reading = readTag(path(), "cvrOnline");
      const StoreOutcome written = writeTags(path(), {{"cvrStatus", "3"}});
      const bool isTold = reading.outcome.detail.find(companion() + " beside it is " + words) != std::string::npos;
      return isTold && reading.outcome.state == StoreState::leftAlone && !reading.value &&
             written.state == StoreState::leftAlone;
    });
    EXPECT_TRUE(child.succeeded()) << words;
    EXPECT_EQ(::unlink(companion().c_str()), 0) << "it is still there";
    EXPECT_EQ(tagIn(path(), "cvrOnline"), "1");
  }
};

TEST_P(ACompanionThatIsNoFile, IsNotOpenedWhenItIsAPipe) {
  ASSERT_EQ(::mkfifo(companion().c_str(), S_IRUSR | S_IWUSR), 0);
  expectRefused("not a file");
}

TEST_P(ACompanionThatIsNoFile, IsNotOpenedWhenItIsALink) {
  const std::string file = folder() + "/other";
  putBytes(file, "somebody's");
  std::filesystem::create_symlink(file, companion());
  expectRefused("not a file");
  EXPECT_EQ(bytesOf(file), "somebody's");
}

TEST_P(ACompanionThatIsNoFile, IsNotOpenedWhenItIsASocket) {
  const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(companion().size(), sizeof address.sun_path);
  companion().copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  expectRefused("not a file");
  ::close(socket);
}

TEST_P(ACompanionThatIsNoFile, IsNotOpenedWhenItIsAnotherUsers) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs the right to give files away";
  putBytes(companion(), "");
  ASSERT_EQ(::chown(companion().c_str(), kPlainUser, kPlainUser), 0);
  expectRefused("another user's");
}

INSTANTIATE_TEST_SUITE_P(Beside, ACompanionThatIsNoFile, ::testing::Values("-journal", "-wal", "-shm"),
                         [](const auto& given) { return std::string(given.param).substr(1); });

}  // namespace
}  // namespace calvero::testing
