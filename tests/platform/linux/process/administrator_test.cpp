#include "platform/linux/process/administrator.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <set>

#include "tests/platform/suite/environment_variable.h"
#include "tests/scoped_folder.h"

namespace calvero {
namespace {

using testing::EnvironmentVariable;
using testing::ScopedFolder;

constexpr uid_t kAnotherUser = 65533;

/// How a process ended that did this and then left with code 0.
int endOf(const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    work();
    ::_exit(0);
  }
  int status = -1;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  return status;
}

class AdministratorCommand : public ::testing::Test {
 protected:
  void install(const std::string& name) const {
    const std::string path = bin_ + "/" + name;
    std::ofstream(path) << "#!/bin/sh\n";
    ASSERT_EQ(::chmod(path.c_str(), S_IRWXU), 0);
  }
  [[nodiscard]] std::optional<Command> commandOn(const std::string& mountPath) const {
    return administratorCommand("/usr/bin/calvero-cli", {"wipe", mountPath}, "relative:/nowhere:" + bin_);
  }

  const ScopedFolder folder_;
  const std::string bin_ = folder_.make("bin");
};

TEST_F(AdministratorCommand, IsRunByThePkexecThatWasFound) {
  install("pkexec");
  EXPECT_EQ(commandOn("/media/stick"), (Command{bin_ + "/pkexec", "/usr/bin/calvero-cli", "wipe", "/media/stick"}));
}

TEST_F(AdministratorCommand, IsNotThereWithoutPkexec) {
  install("something-else");
  EXPECT_EQ(commandOn("/media/stick"), std::nullopt);
}

TEST_F(AdministratorCommand, IsNotThereForAPathThatCannotBeShownAsItIs) {
  install("pkexec");
  for (const char* path :
       {"/media/a\nb", "/media/\x1b[201~", "/media/\xc2\x9b", "/media/\xe2\x80\xae", "/media/\xff"}) {
    EXPECT_EQ(commandOn(path), std::nullopt) << path;
  }
  EXPECT_NE(commandOn("/media/Grüße 2024"), std::nullopt);
}

TEST_F(AdministratorCommand, IsForTheFirstProgramThatOnlyRootCanChange) {
  if (!isAdministrator()) GTEST_SKIP() << "needs the right to give files away";
  for (const char* name : {"own", "installed"}) install(name);
  const std::string own = bin_ + "/own";
  const std::string installed = bin_ + "/installed";
  ASSERT_EQ(::chown(own.c_str(), kAnotherUser, kAnotherUser), 0);
  EXPECT_EQ(administratorProgram({own, installed}).path, installed);
  EXPECT_TRUE(administratorProgram({"", "/nowhere/program", installed}).isTrusted());

  const AdministratorProgram kept = administratorProgram({"/nowhere/program", own});
  EXPECT_FALSE(kept.isTrusted());
  EXPECT_EQ(kept.path, own);
  EXPECT_EQ(kept.changeable, own);
  EXPECT_FALSE(administratorProgram({"", "/nowhere/program"}).isTrusted());
  EXPECT_EQ(administratorProgram({"", "/nowhere/program"}).path, "");
}

/// Root with the environment of another user, as sudo -E leaves it.
class FoldersOfOthers : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!isAdministrator()) GTEST_SKIP() << "needs the right to give files away";
    ASSERT_EQ(::chown(theirs_.c_str(), kAnotherUser, kAnotherUser), 0);
  }
  static std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "none" : value;
  }

  const ScopedFolder folder_;
  const std::string theirs_ = folder_.make("ann");
  const std::string own_ = folder_.make("root");
  const EnvironmentVariable display_{"XAUTHORITY", std::nullopt};
  const EnvironmentVariable settings_{"XDG_CONFIG_HOME", std::nullopt};
};

TEST_F(FoldersOfOthers, AreLeftForRootsOwn) {
  const EnvironmentVariable home("HOME", theirs_);
  const EnvironmentVariable data("XDG_DATA_HOME", theirs_ + "/.local/share");
  const EnvironmentVariable cache("XDG_CACHE_HOME", own_ + "/not/there/yet");
  leaveFoldersOfOthers();
  EXPECT_EQ(variable("HOME"), ::getpwuid(0)->pw_dir);
  EXPECT_EQ(variable("XDG_DATA_HOME"), "none");
  EXPECT_EQ(variable("XDG_CACHE_HOME"), own_ + "/not/there/yet");
  EXPECT_EQ(variable("XAUTHORITY"), "none");
}

TEST_F(FoldersOfOthers, AreKnownByAFolderAboveThemAndByALink) {
  const EnvironmentVariable home("HOME", own_);
  const std::string inside = folder_.make("ann/by-root");
  const EnvironmentVariable data("XDG_DATA_HOME", inside);
  const std::string link = folder_.path() + "/link";
  ASSERT_EQ(::symlink(own_.c_str(), link.c_str()), 0);
  ASSERT_EQ(::lchown(link.c_str(), kAnotherUser, kAnotherUser), 0);
  const EnvironmentVariable config("XDG_CONFIG_HOME", link);
  leaveFoldersOfOthers();
  EXPECT_EQ(variable("HOME"), own_);
  EXPECT_EQ(variable("XDG_DATA_HOME"), "none");
  EXPECT_EQ(variable("XDG_CONFIG_HOME"), "none");
}

TEST_F(FoldersOfOthers, StillTellWhereTheDisplaysPasswordIs) {
  const EnvironmentVariable home("HOME", theirs_);
  std::ofstream(theirs_ + "/.Xauthority") << "password";
  leaveFoldersOfOthers();
  EXPECT_EQ(variable("XAUTHORITY"), theirs_ + "/.Xauthority");
}

TEST_F(FoldersOfOthers, AreKeptByTheirUser) {
  const int status = endOf([this] {
    ::setenv("HOME", theirs_.c_str(), 1);
    if (::setuid(kAnotherUser - 1) != 0) ::_exit(1);
    leaveFoldersOfOthers();
    if (variable("HOME") != theirs_) ::_exit(1);
  });
  EXPECT_EQ(status, 0);
}

TEST(ShellText, QuotesWhatAShellWouldNotTakeAsItIs) {
  EXPECT_EQ(shellText({"pkexec", "/usr/bin/calvero-cli", "wipe", "/media/a_b-1.2"}),
            "pkexec /usr/bin/calvero-cli wipe /media/a_b-1.2");
  EXPECT_EQ(shellText({"a b", "", "it's", "$HOME", "`x`;|&", "Grüße"}),
            R"('a b' '' 'it'\''s' '$HOME' '`x`;|&' 'Grüße')");
}

TEST(ShellText, IsReadByAShellAsTheSameWords) {
  const ScopedFolder folder;
  const std::string heard = folder.path() + "/heard";
  const Command words{"printf", "%s\\n", "a  b", "it's", "$HOME", "\"*\"", "\\", "~", "#x", "!!"};
  ASSERT_EQ(std::system((shellText(words) + " > " + heard).c_str()), 0);
  std::ifstream file(heard);
  for (std::size_t at = 2; at < words.size(); ++at) {
    std::string line;
    std::getline(file, line);
    EXPECT_EQ(line, words[at]);
  }
}

TEST(StartedByPkexec, IsAnAdministratorsProcessWithTheCallersId) {
  {
    const EnvironmentVariable caller("PKEXEC_UID", "1000");
    EXPECT_EQ(isStartedByPkexec(), isAdministrator());
  }
  const EnvironmentVariable caller("PKEXEC_UID", std::nullopt);
  EXPECT_FALSE(isStartedByPkexec());
}

TEST(StartedByPkexec, IsNotBelievedWithoutTheRights) {
  if (!isAdministrator()) GTEST_SKIP() << "needs the right to become another user";
  const int status = endOf([] {
    ::setenv("PKEXEC_UID", "0", 1);
    if (::setuid(kAnotherUser) != 0 || isAdministrator() || isStartedByPkexec()) ::_exit(1);
  });
  EXPECT_EQ(status, 0);
}

TEST(EnvironmentOfTheCaller, IsDroppedButForTheKindOfTerminal) {
  const int status = endOf([] {
    for (const char* name : {"HOME", "PATH", "XDG_DATA_HOME", "CALVERO_TAG_STORE", "DBUS_SESSION_BUS_ADDRESS", "TERM",
                             "PKEXEC_UID", "LIBMOUNT_FSTAB"}) {
      ::setenv(name, "7", 1);
    }
    dropEnvironmentOfCaller();
    std::set<std::string> left;
    for (char** entry = environ; *entry != nullptr; ++entry) left.insert(*entry);
    if (left != std::set<std::string>{"TERM=7", "PKEXEC_UID=7"}) ::_exit(1);
  });
  EXPECT_EQ(status, 0);
}

TEST(BecomeProgram, GivesItTheUsualSettingsOfSignals) {
  const int status = endOf([] {
    std::signal(SIGPIPE, SIG_IGN);
    becomeProgram({"/bin/sh", "-c", "kill -PIPE $$; exit 3"});
  });
  EXPECT_TRUE(WIFSIGNALED(status)) << status;
  EXPECT_EQ(WTERMSIG(status), SIGPIPE);
}

TEST(BecomeProgram, DoesNotLookForItAgain) {
  const ScopedFolder folder;
  std::ofstream(folder.path() + "/pkexec") << "#!/bin/sh\nexit 0\n";
  ASSERT_EQ(::chmod((folder.path() + "/pkexec").c_str(), S_IRWXU), 0);
  const int status = endOf([&] {
    ::setenv("PATH", folder.path().c_str(), 1);
    becomeProgram({"pkexec"});
    ::_exit(7);
  });
  EXPECT_EQ(WEXITSTATUS(status), 7);
}

TEST(BecomeProgram, SaysWhyThereIsNoSuchProgram) {
  EXPECT_EQ(becomeProgram({"/nowhere/pkexec"}), "No such file or directory");
}

}  // namespace
}  // namespace calvero
