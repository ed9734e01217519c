#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <system_error>
#include <thread>

#include "platform/threads/signals.h"
#include "terminal/commands/window_program.h"
#include "tests/scoped_folder.h"
#include "tests/terminal/order_testing.h"

namespace calvero {
namespace {

constexpr int kNoClaim = -1;

class WindowProgramTest : public ::testing::Test {
 protected:
  std::string makeProgram(const std::string& place, const std::string& script = "exit 0") {
    const std::filesystem::path path = folder_.path() + "/" + place;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path) << "#!/bin/sh\n" << script << '\n';
    ::chmod(path.c_str(), S_IRWXU);
    return path.string();
  }
  [[nodiscard]] std::string in(const std::string& place) const { return folder_.path() + "/" + place; }

  static void waitForEnd(StartedProgram& program) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!program.hasEnded()) {
      ASSERT_LT(std::chrono::steady_clock::now(), end);
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }

  const testing::ScopedFolder folder_;
};

std::string wordsIn(const std::string& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST_F(WindowProgramTest, IsFoundBesideThenInTheBuildTreeThenInThePath) {
  const std::string searchPath = in("none") + ":" + in("bin");
  EXPECT_EQ(findWindowProgram(in("build/terminal"), searchPath), std::nullopt);
  const std::string installed = makeProgram("bin/calvero");
  EXPECT_EQ(findWindowProgram(in("build/terminal"), searchPath), installed);
  std::filesystem::create_directories(in("build/terminal"));
  const std::string built = makeProgram("build/qt/calvero");
  EXPECT_EQ(findWindowProgram(in("build/terminal"), searchPath), built);
  const std::string beside = makeProgram("build/terminal/calvero");
  EXPECT_EQ(findWindowProgram(in("build/terminal"), searchPath), beside);
}

TEST_F(WindowProgramTest, IsNoFolderAndNoFileThatCannotBeStarted) {
  std::filesystem::create_directories(in("a/calvero"));
  EXPECT_EQ(findWindowProgram(in("a"), ""), std::nullopt);
  ::chmod(makeProgram("b/calvero").c_str(), S_IRUSR | S_IWUSR);
  EXPECT_EQ(findWindowProgram(in("b"), ""), std::nullopt);
}

TEST_F(WindowProgramTest, IsNeverTakenFromTheFolderThatHappensToBeTheCurrentOne) {
  makeProgram("here/calvero");
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(in("here"));
  EXPECT_EQ(findWindowProgram(in("none"), ":.:"), std::nullopt);
  std::filesystem::current_path(before);
}

TEST_F(WindowProgramTest, IsNotTakenByRootFromAFolderInThePathThatOthersCanChange) {
  if (::geteuid() != 0) GTEST_SKIP() << "a user starts what it finds";
  const std::string found = makeProgram("bin/calvero");
  EXPECT_EQ(findWindowProgram(in("none"), in("bin")), found);
  ASSERT_EQ(::chmod(in("bin").c_str(), S_IRWXU | S_IRWXO), 0);
  EXPECT_EQ(findWindowProgram(in("none"), in("bin")), std::nullopt);
}

TEST_F(WindowProgramTest, TellsHowItEnded) {
  const auto failing = startDetached(makeProgram("a", "exit 7"), kNoClaim);
  waitForEnd(*failing);
  EXPECT_EQ(failing->ending(), "exit code 7");
  EXPECT_EQ(failing->exitCode(), 7);
  const auto killed = startDetached(makeProgram("b", "kill -9 $$"), kNoClaim);
  waitForEnd(*killed);
  EXPECT_EQ(killed->ending(), "signal 9");
  EXPECT_EQ(killed->exitCode(), std::nullopt);
}

TEST_F(WindowProgramTest, HasASessionAndStreamsOfItsOwn) {
  constexpr int kHigh = 200;                                // so that the shell uses none like it
  const int kept = ::fcntl(STDERR_FILENO, F_DUPFD, kHigh);  // stays open in a child, unless it is closed there
  const auto program =
      startDetached(makeProgram("a",
                                "echo $$ $(cut -d ' ' -f 6 /proc/$$/stat) $(readlink /proc/$$/fd/0 /proc/$$/fd/1"
                                " /proc/$$/fd/2) $(readlink /proc/$$/fd/" +
                                    std::to_string(kept) + " || echo closed) > \"$0.seen\""),
                    kNoClaim);
  waitForEnd(*program);
  ::close(kept);
  std::istringstream seen(wordsIn(in("a.seen")));
  std::string id, session, input, output, errors, other;
  seen >> id >> session >> input >> output >> errors >> other;
  EXPECT_EQ(session, id);
  for (const std::string& stream : {input, output, errors}) EXPECT_EQ(stream, "/dev/null");
  EXPECT_EQ(other, "closed");
}

TEST_F(WindowProgramTest, FindsNoSignalIgnoredThatThisProgramIgnores) {
  std::map<int, void (*)(int)> before;
  for (const int signal : kIgnoredSignals) before[signal] = std::signal(signal, SIG_IGN);
  const auto program = startDetached(makeProgram("a", "grep SigIgn /proc/$$/status > \"$0.seen\""), kNoClaim);
  waitForEnd(*program);
  for (const auto& [signal, handler] : before) std::signal(signal, handler);
  std::istringstream seen(wordsIn(in("a.seen")));
  std::string name;
  std::uint64_t ignored = 0;
  seen >> name >> std::hex >> ignored;
  ASSERT_EQ(name, "SigIgn:");
  for (const int signal : kIgnoredSignals) EXPECT_EQ(ignored >> (signal - 1) & 1U, 0U) << signal;
}

TEST_F(WindowProgramTest, InheritsTheClaimAndLearnsItsDescriptor) {
  const int claim = ::open(in("claim").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
  const auto program =
      startDetached(makeProgram("a", R"(readlink /proc/$$/fd/"$CALVERO_ORDER_CLAIM" > "$0.seen")"), claim);
  waitForEnd(*program);
  ::close(claim);
  EXPECT_EQ(wordsIn(in("a.seen")), in("claim") + '\n');
  EXPECT_EQ(std::getenv("CALVERO_ORDER_CLAIM"), nullptr) << "it is the program's alone";
}

TEST_F(WindowProgramTest, ThatTheSystemRefusesToStartIsAnError) {
  EXPECT_THROW(startDetached(in("none"), kNoClaim), std::system_error);
  const std::string noProgram = in("text");
  std::ofstream(noProgram) << "";
  ::chmod(noProgram.c_str(), S_IRWXU);
  EXPECT_THROW(startDetached(noProgram, kNoClaim), std::system_error);
}

}  // namespace
}  // namespace calvero
