#include "platform/suite/suite_folder.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "tests/platform/suite/environment_variable.h"

namespace calvero::testing {
namespace {

constexpr std::nullopt_t kUnset = std::nullopt;

class SuiteFolder : public ::testing::Test {
 protected:
  const EnvironmentVariable home_{"HOME", "/home/ann"};
  const EnvironmentVariable data_{"XDG_DATA_HOME", kUnset};
  const EnvironmentVariable store_{"CALVERO_TAG_STORE", kUnset};
};

TEST_F(SuiteFolder, IsInTheUsersDataFolder) {
  const EnvironmentVariable data("XDG_DATA_HOME", "/data/ann");
  EXPECT_EQ(userDataFolder(), "/data/ann");
  EXPECT_EQ(suiteFolder(), "/data/ann/Ondrel Software/Ondrel MORE");
}

TEST_F(SuiteFolder, HoldsTheTagStore) {
  EXPECT_EQ(tagStorePath(), "/home/ann/.local/share/Ondrel Software/Ondrel MORE/tags.sqlite");
}

TEST_F(SuiteFolder, IsInTheHomeFolderWhenTheDataFolderIsNoAbsolutePath) {
  for (const char* useless : {"", "data", "./data"}) {
    const EnvironmentVariable data("XDG_DATA_HOME", useless);
    EXPECT_EQ(userDataFolder(), "/home/ann/.local/share");
  }
}

TEST_F(SuiteFolder, IsInTheHomeOfThePasswordDatabaseWhenTheEnvironmentNamesNone) {
  const passwd* user = ::getpwuid(::getuid());
  if (user == nullptr) GTEST_SKIP() << "the running user is not in the password database";
  const std::string expected = std::string(user->pw_dir) + "/.local/share";
  for (const auto& useless : {std::optional<std::string>(), std::optional<std::string>("home/ann")}) {
    const EnvironmentVariable home("HOME", useless);
    EXPECT_EQ(userDataFolder(), expected);
  }
}

TEST_F(SuiteFolder, GivesWayToTheTagStoreThatTheEnvironmentNames) {
  const EnvironmentVariable store("CALVERO_TAG_STORE", "/elsewhere/my tags");
  EXPECT_EQ(tagStorePath(), "/elsewhere/my tags");
  EXPECT_EQ(suiteFolder(), "/home/ann/.local/share/Ondrel Software/Ondrel MORE");
}

TEST_F(SuiteFolder, StaysThePlaceOfTheTagStoreWhenTheVariableIsEmpty) {
  const EnvironmentVariable store("CALVERO_TAG_STORE", "");
  EXPECT_EQ(tagStorePath(), suiteFolder() + "/tags.sqlite");
}

}  // namespace
}  // namespace calvero::testing
