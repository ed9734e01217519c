#include <gmock/gmock.h>

#include <cstdlib>

#include "tests/platform/dbus/notifications_fixture.h"

namespace calvero::testing {
namespace {

/// The one-line commands of the document that begin with `program`.
std::vector<std::string> documentedCommands(const std::string& program) {
  std::ifstream document(std::filesystem::path(__FILE__).parent_path() / "../../../docs/remote.md");
  std::vector<std::string> found;
  bool isCommand = false;
  for (std::string line; std::getline(document, line);) {
    if (line.starts_with("```")) {
      isCommand = line == "```sh";
    } else if (isCommand && line.starts_with(program + ' ')) {
      found.push_back(line);
    }
  }
  return found;
}

/// Run as they stand.
class TheDocumentedCommand : public NotificationsOnABus, public ::testing::WithParamInterface<const char*> {};

TEST_P(TheDocumentedCommand, SendsTheNotificationThatCancels) {
  const auto commands = documentedCommands(GetParam());
  ASSERT_EQ(commands.size(), 1U);
  if (std::system((std::string("command -v ") + GetParam() + " >/dev/null").c_str()) != 0) {
    GTEST_SKIP() << "there is no " << GetParam() << " command";
  }
  SessionNotifications notifications(loop_, log_);
  int received = 0;
  notifications.observe(kName, kObject, [&] { ++received; });
  EXPECT_EQ(std::system(commands.front().c_str()), 0) << commands.front();
  EXPECT_TRUE(serveUntil([&] { return received > 0; })) << commands.front();
  EXPECT_EQ(received, 1);
}

INSTANTIATE_TEST_SUITE_P(OfTheTools, TheDocumentedCommand, ::testing::Values("dbus-send", "gdbus", "busctl"));

}  // namespace
}  // namespace calvero::testing
