#include "platform/linux/process/trusted_path.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/scoped_folder.h"

namespace calvero {
namespace {

constexpr uid_t kAnotherUser = 65533;

class TrustedPath : public ::testing::Test {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "needs the right to give files away";
    std::ofstream(program_) << "#!/bin/sh\n";
    ASSERT_EQ(::chmod(program_.c_str(), 0755), 0);
  }
  static void giveAway(const std::string& path) { ASSERT_EQ(::lchown(path.c_str(), kAnotherUser, kAnotherUser), 0); }
  [[nodiscard]] std::string linkTo(const std::string& target, const std::string& name) const {
    std::filesystem::create_symlink(target, folder_.path() + '/' + name);
    return folder_.path() + '/' + name;
  }

  const testing::ScopedFolder folder_;
  const std::string bin_ = folder_.make("build/bin");
  const std::string program_ = bin_ + "/program";
};

TEST_F(TrustedPath, IsRootsAloneInAStickyFolderForEverybody) {
  EXPECT_EQ(changeableByOthers(program_), std::nullopt);
  ASSERT_EQ(::chmod(bin_.c_str(), 01777), 0);
  EXPECT_EQ(changeableByOthers(program_), std::nullopt);
}

TEST_F(TrustedPath, IsChangeableWhereAnotherOwnsTheFileOrAFolderAboveIt) {
  const std::string build = folder_.path() + "/build";
  for (const std::string& given : {program_, bin_, build}) {
    giveAway(given);
    EXPECT_EQ(changeableByOthers(program_), given);
    ASSERT_EQ(::lchown(given.c_str(), 0, 0), 0);
  }
}

TEST_F(TrustedPath, IsChangeableWhereAGroupOrEverybodyMayWrite) {
  for (const mode_t mode : {0775, 0757}) {
    for (const std::string& open : {program_, bin_}) {
      ASSERT_EQ(::chmod(open.c_str(), mode), 0);
      EXPECT_EQ(changeableByOthers(program_), open) << std::oct << mode;
      ASSERT_EQ(::chmod(open.c_str(), 0755), 0);
    }
  }
}

TEST_F(TrustedPath, IsJudgedByTheLinksOnItsWayAndByWhereTheyLead) {
  const std::string link = linkTo("build/../build/bin", "link");
  EXPECT_EQ(changeableByOthers(link + "/program"), std::nullopt);
  giveAway(link);
  EXPECT_EQ(changeableByOthers(link + "/program"), link);
  giveAway(bin_);
  EXPECT_EQ(changeableByOthers(linkTo(bin_, "absolute") + "/program"), bin_);
}

TEST_F(TrustedPath, ThatEndsEarlyIsJudgedByWhatThereIs) {
  EXPECT_EQ(changeableByOthers(bin_ + "/not/there"), std::nullopt);
  giveAway(bin_);
  EXPECT_EQ(changeableByOthers(bin_ + "/not/there"), bin_);
}

TEST_F(TrustedPath, OfLinksWithoutAnEndIsChangeable) {
  const std::string link = linkTo("endless", "endless");
  EXPECT_EQ(changeableByOthers(link), link);
}

TEST_F(TrustedPath, HasNoLinkOfAnotherUnlessAnotherUserMadeOne) {
  const std::string link = linkTo(bin_, "link");
  giveAway(bin_);
  giveAway(program_);
  EXPECT_EQ(linkOfAnother(link + "/program"), std::nullopt);
  giveAway(link);
  EXPECT_EQ(linkOfAnother(link + "/program"), link);
  EXPECT_EQ(linkOfAnother(link), link);
}

}  // namespace
}  // namespace calvero
