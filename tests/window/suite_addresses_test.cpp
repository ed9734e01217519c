#include "window/suite_addresses.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QUrl>
#include <vector>

#include "ports/workspace.h"

namespace calvero {
namespace {

using Addresses = std::vector<std::string>;

class RecordingWorkspace : public Workspace {
 public:
  void openAddress(const std::string& address) override { opened.push_back(address); }
  void launchApplication(const std::string&) override {}
  void bringToFront(const std::string&) override {}
  [[nodiscard]] std::string bundlePath() const override { return {}; }
  [[nodiscard]] std::string applicationSupportFolder() const override { return {}; }

  Addresses opened;
};

class SuiteAddressesTest : public ::testing::Test {
 protected:
  std::string fileWith(const char* contents) {
    const QString path = folder.filePath("addresses.ini");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
    return path.toStdString();
  }

  QTemporaryDir folder;
  RecordingWorkspace workspace;
};

TEST_F(SuiteAddressesTest, OpenThePageOfTheIndex) {
  SuiteAddresses suite(workspace, fileWith("; a comment\n[pages]\n0=https://a.example/f\n4=https://a.example/help\n"));
  suite.openPage(4);
  suite.openPage(0);
  EXPECT_EQ(workspace.opened, (Addresses{"https://a.example/help", "https://a.example/f"}));
}

TEST_F(SuiteAddressesTest, AnIndexWithoutAPageOpensNothing) {
  SuiteAddresses suite(workspace,
                       fileWith("[pages]\n0=https://a.example/f\n[portal]\nlogin=https://a.example/login?\n"));
  for (const std::int32_t index : {3, -1, 1000000}) suite.openPage(index);
  EXPECT_EQ(workspace.opened, Addresses{});
}

TEST_F(SuiteAddressesTest, AddressesKeepEveryCharacter) {
  SuiteAddresses suite(workspace, fileWith("[pages]\n1=https://a.example/a%20b?x=1,2,%2C&y=#top\n"
                                           "2=\"https://a.example/x;y\"\n[portal]\nlogin=https://p.example/login?\n"));
  suite.openPage(1);
  suite.openPage(2);
  EXPECT_EQ(workspace.opened, (Addresses{"https://a.example/a%20b?x=1,2,%2C&y=#top", "https://a.example/x;y"}));
  EXPECT_EQ(suite.portalLoginAddress(), "https://p.example/login?");
}

TEST_F(SuiteAddressesTest, WithoutAFileThereIsNothingToOpen) {
  SuiteAddresses suite(workspace, folder.filePath("none.ini").toStdString());
  suite.openPage(0);
  EXPECT_EQ(workspace.opened, Addresses{});
  EXPECT_EQ(suite.portalLoginAddress(), "");
  EXPECT_FALSE(QFile::exists(folder.filePath("none.ini")));
}

TEST_F(SuiteAddressesTest, TheFileThatIsCompiledInNamesEveryPageAndThePortal) {
  SuiteAddresses suite(workspace);
  for (const std::int32_t index : {0, 1, 2, 3, 4}) suite.openPage(index);
  ASSERT_EQ(workspace.opened.size(), 4U);
  EXPECT_TRUE(suite.portalLoginAddress().ends_with("/login?"));
  workspace.opened.push_back(suite.portalLoginAddress());
  for (const std::string& address : workspace.opened) {
    const QUrl url(QString::fromStdString(address));
    EXPECT_EQ(url.scheme(), "https") << address;
    EXPECT_TRUE(url.host().endsWith(".example")) << address;
  }
}

}  // namespace
}  // namespace calvero
