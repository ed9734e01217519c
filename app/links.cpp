#include <map>

#include "app/app_delegate.h"
#include "ports/information_file.h"
#include "ports/suite_web.h"
#include "ports/workspace.h"

namespace calvero {
namespace {

// Pages of the suite by their index; 3 is not used here.
constexpr std::int32_t kFacebookPage = 0;
constexpr std::int32_t kTwitterPage = 1;
constexpr std::int32_t kGooglePlusPage = 2;
constexpr std::int32_t kHelpPage = 4;

constexpr const char* kSuiteFolder = "/Ondrel Software/Ondrel MORE/";  // below the user's application-support folder
constexpr const char* kInformationFile = "infoMaster.plist";
constexpr const char* kAbsent = "(null)";  // the portal is told what is missing in these words

std::string entryOf(const std::map<std::string, std::string>& information, const char* key) {
  const auto found = information.find(key);
  return found == information.end() ? kAbsent : found->second;
}

}  // namespace

void AppDelegate::openFacebookPage() {
  authentication_.ondrelSoftwareWeb(kFacebookPage);
}
void AppDelegate::openTwitterPage() {
  authentication_.ondrelSoftwareWeb(kTwitterPage);
}
void AppDelegate::openGooglePlusPage() {
  authentication_.ondrelSoftwareWeb(kGooglePlusPage);
}
void AppDelegate::openHelpPage() {
  authentication_.ondrelSoftwareWeb(kHelpPage);
}

void AppDelegate::cloudControl() {
  const auto information =
      ports_.informationFile.read(ports_.workspace.applicationSupportFolder() + kSuiteFolder + kInformationFile);
  ports_.workspace.openAddress(ports_.suiteWeb.portalLoginAddress() + entryOf(information, "UID") + "/" +
                               entryOf(information, "DID") + "/do");
}

void AppDelegate::getItNow() {
  cloudControl();
}

}  // namespace calvero
