#include "terminal/commands/wipe_command_rights.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "terminal/commands/command_list.h"
#include "terminal/commands/wipe_command_report.h"

namespace calvero {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

MountedVolume listedVolume(const std::string& name, const std::string& mountPath) {
  MountedVolume made;
  made.name = name;
  made.mountPath = mountPath;
  return made;
}

WipeReport refusedReport() {
  WipeReport made;
  made.volume = "stick";
  made.mountPath = "/media/my stick";
  return made;
}

const Command kCommand{"pkexec", "/usr/bin/calvero-cli", "wipe", "/media/my stick", "--method", "3"};
constexpr const char* kShown = "pkexec /usr/bin/calvero-cli wipe '/media/my stick' --method 3";

TEST(WipeArguments, AreWhatWasTypedWithTheMountPath) {
  EXPECT_THAT(wipeArguments(WipeRequest{}, "/media/stick"), ElementsAre("wipe", "/media/stick"));
  EXPECT_THAT(wipeArguments({.volume = "../stick", .method = "dod", .yes = true, .quiet = true, .json = true}, "/a"),
              ElementsAre("wipe", "/a", "--method", "dod", "--yes", "--quiet", "--json"));
}

TEST(NotPermitted, NamesTheVolumeAndTheCommand) {
  EXPECT_EQ(notPermittedLine(refusedReport(), kCommand),
            "You may not create files in the root folder of stick (/media/my stick); to wipe it as administrator: " +
                std::string(kShown));
  const Alert question = administratorQuestion(refusedReport(), kCommand);
  EXPECT_THAT(question.title, HasSubstr("the root folder of stick (/media/my stick)"));
  EXPECT_THAT(question.message, HasSubstr(kShown));
  EXPECT_FALSE(question.alternateButton.empty());
}

class ChooseListedVolume : public ::testing::Test {
 protected:
  [[nodiscard]] std::optional<std::size_t> chosen(const std::string& given) const {
    const VolumeChoice choice = chooseListedVolume(given, volumes_);
    EXPECT_EQ(choice.refusal.empty(), choice.index.has_value());
    return choice.index;
  }

  // The last one is named like the path of another.
  const std::vector<MountedVolume> volumes_{listedVolume("system", "/"), listedVolume("usb stick", "/media/usb"),
                                            listedVolume("/media/usb", "/media/trap")};
};

TEST_F(ChooseListedVolume, TakesANameOrAMountPathAsItIsListed) {
  EXPECT_EQ(chosen("system"), 0U);
  EXPECT_EQ(chosen("/"), 0U);
  EXPECT_EQ(chosen("usb stick"), 1U);
  EXPECT_EQ(chosen("/media/trap"), 2U);
}

TEST_F(ChooseListedVolume, TakesAPathForAPathWhateverAVolumeIsNamed) {
  EXPECT_EQ(chosen("/media/usb"), 1U);
}

TEST_F(ChooseListedVolume, TakesNothingElse) {
  for (const char* given : {"", ".", "media/usb", "/media/usb/", "/media//usb", "/media/../media/usb", "/media",
                            "/media/usb/folder", "USB STICK", "usb"}) {
    EXPECT_EQ(chosen(given), std::nullopt) << given;
  }
}

TEST_F(ChooseListedVolume, RefusesInOneLine) {
  EXPECT_THAT(chooseListedVolume("a\nb", volumes_).refusal, Not(HasSubstr("\n")));
}

}  // namespace
}  // namespace calvero
