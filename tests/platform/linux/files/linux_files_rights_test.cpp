#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <filesystem>

#include "tests/platform/linux/files/linux_files_test_volume.h"

namespace calvero::testing {
namespace {

/// Who may make a filler directory, as a user sees it who is not root.
class RightsOnAVolume : public FillerVolume {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "needs the right to become another user";
  }
  void setRoot(uid_t owner, gid_t group, mode_t mode) const {
    ASSERT_EQ(::chown(volume_.c_str(), owner, group), 0);
    ASSERT_EQ(::chmod(volume_.c_str(), mode), 0);
  }
  void expectForAnotherUser(ErrorCode expected) const { expectForAnotherUser(volume_, expected); }
  void expectForAnotherUser(const std::string& volume, ErrorCode expected) const {
    const auto holds = asAnotherUser([&] {
      LinuxFiles files;
      return files.checkFillerDirectory(volume, volume + "/.filler").code == expected;
    });
    ASSERT_TRUE(holds.has_value());
    EXPECT_TRUE(*holds) << "error code " << static_cast<int>(expected);
  }

  static constexpr uid_t kRoot = 0;
  static constexpr gid_t kNobodysGroup = 65532;
};

TEST_F(RightsOnAVolume, AreMissingWhereOnlyRootMayWrite) {
  setRoot(kRoot, kNobodysGroup, 0755);
  expectForAnotherUser(ErrorCode::notPermitted);
  setRoot(kRoot, kNobodysGroup, 0700);
  expectForAnotherUser(ErrorCode::notPermitted);
  EXPECT_FALSE(check().failed()) << "root may";
}

TEST_F(RightsOnAVolume, AreMissingWhereAFolderAboveIsClosed) {
  setRoot(kRoot, kNobodysGroup, 0777);
  const std::string closed = folder_.make("closed");
  const std::string volume = closed + "/volume";
  std::filesystem::create_directory(volume);
  ASSERT_EQ(::chmod(volume.c_str(), 0777), 0);
  ASSERT_EQ(::chmod(closed.c_str(), 0700), 0);
  expectForAnotherUser(volume, ErrorCode::notPermitted);
}

TEST_F(RightsOnAVolume, AreThereWhereEverybodyMayWrite) {
  setRoot(kRoot, kNobodysGroup, 01777);
  expectForAnotherUser(ErrorCode::none);
}

TEST_F(RightsOnAVolume, AreThereInTheUsersOwnFolder) {
  setRoot(kAnotherUser, kNobodysGroup, 0700);
  expectForAnotherUser(ErrorCode::none);
}

TEST_F(RightsOnAVolume, AreThereForAMemberOfTheGroupThatMayWrite) {
  setRoot(kRoot, ::getegid(), 0770);
  expectForAnotherUser(ErrorCode::none);
  setRoot(kRoot, ::getegid(), 0750);
  expectForAnotherUser(ErrorCode::notPermitted);
}

TEST_F(RightsOnAVolume, AreThereForWhomAnAccessListNames) {
  setRoot(kRoot, kNobodysGroup, 0755);
  constexpr __u32 kNobodyInParticular = ACL_UNDEFINED_ID;
  const struct {
    posix_acl_xattr_header header{POSIX_ACL_XATTR_VERSION};
    posix_acl_xattr_entry entries[5]{{ACL_USER_OBJ, 7, kNobodyInParticular},
                                     {ACL_USER, 7, kAnotherUser},
                                     {ACL_GROUP_OBJ, 5, kNobodyInParticular},
                                     {ACL_MASK, 7, kNobodyInParticular},
                                     {ACL_OTHER, 5, kNobodyInParticular}};
  } list;
  if (::setxattr(volume_.c_str(), "system.posix_acl_access", &list, sizeof(list), 0) != 0) {
    GTEST_SKIP() << "this file system has no access lists";
  }
  expectForAnotherUser(ErrorCode::none);
}

TEST_F(RightsOnAVolume, DoNotMatterWhereNobodyMayWrite) {
  setRoot(kRoot, kNobodysGroup, 0755);
  const std::string mounted = folder_.make("mounted");
  const ScopedMount bind(volume_, mounted, "", MS_BIND);
  if (!bind.done() || ::mount("", mounted.c_str(), "", MS_REMOUNT | MS_BIND | MS_RDONLY, "") != 0) {
    GTEST_SKIP() << "needs the right to mount";
  }
  expectForAnotherUser(mounted, ErrorCode::readOnly);
}

TEST_F(RightsOnAVolume, AreWhatIsMissingWhenRootsInterruptedRunLeftItsDirectory) {
  setRoot(kRoot, kNobodysGroup, 0755);
  std::filesystem::create_directory(directory_);
  expectForAnotherUser(ErrorCode::notPermitted);
  setRoot(kRoot, kNobodysGroup, 01777);
  expectForAnotherUser(ErrorCode::notOurs);
}

}  // namespace
}  // namespace calvero::testing
