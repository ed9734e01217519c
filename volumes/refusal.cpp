#include "volumes/refusal.h"

#include <algorithm>
#include <array>

namespace calvero {
namespace {

/// Marks a text as one of the tables.
constexpr const char* textKey(const char* key) {
  return key;
}

constexpr const char* kCannotBeWiped = "%1 cannot be wiped: %4";

constexpr std::array<RefusalWords, 9> kRefusals{{
    {ErrorCode::notFound, textKey("This drive is not connected any more. Press \"Reload Drives\"."), RefusalValue::none,
     "%1 is not mounted any more"},
    {ErrorCode::readOnly, textKey("Read only drive, please select other drives"), RefusalValue::none,
     "Read only drive, please select other drives"},
    {ErrorCode::gone, textKey("This drive does not respond. Check its connection, then press \"Reload Drives\"."),
     RefusalValue::none, kCannotBeWiped},
    {ErrorCode::notPermitted,
     textKey("You are not allowed to write to this drive. Select another drive, or ask its administrator."),
     RefusalValue::none,
     "You may not create files in the root folder of %1; run the program as root, for example with sudo",
     "Not even the administrator may create files in the root folder of %1: it is locked, or its file system is "
     "another "
     "user's"},
    {ErrorCode::busy,
     textKey("This drive is being erased by another process. Wait until it has ended, or select another drive."),
     RefusalValue::none, "Another run is wiping %1; wait until it has ended"},
    {ErrorCode::notOurs,
     textKey("This drive holds a folder \"%1\" that was not made by Calvero. Rename or remove it, then try again."),
     RefusalValue::folderName, "%2 was not made by a run (%3); move it away and start again"},
    {ErrorCode::locked,
     textKey("This drive holds a folder \"%1\" that an earlier run left and that is locked. Unlock or remove it, then "
             "try again."),
     RefusalValue::folderPath,
     "%2, which an earlier run left, may not be changed (%3); unlock it, for example with chattr -i -a, or remove it, "
     "and start again"},
    {ErrorCode::thinStorage,
     textKey("The storage below this drive has less room than the drive shows. Make room there, or select another "
             "drive."),
     RefusalValue::none, "%1 cannot be filled: %3; make room below it and start again"},
    {ErrorCode::other, textKey("Unknown Error Occured"), RefusalValue::none, kCannotBeWiped},
}};

}  // namespace

const RefusalWords& refusalWords(ErrorCode code) {
  const auto found = std::ranges::find(kRefusals, code, &RefusalWords::code);
  return found == kRefusals.end() ? kRefusals.back() : *found;
}

}  // namespace calvero
