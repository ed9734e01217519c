#include "terminal/commands/command_words.h"

#include "app/app_delegate.h"

namespace calvero {
namespace {

std::string sizeText(std::uint64_t bytes) {
  return AppDelegate::getFormattedStringForSize(bytes);
}

}  // namespace

std::string overwrittenText(const RunAccount& account) {
  return sizeText(account.overwritten()) + " of " + sizeText(account.freeAtStart);
}

std::string missingText(const RunAccount& account, const std::string& volume) {
  if (account.notHeld != 0) {
    return sizeText(account.notHeld) + " of the space overwritten on " + volume +
           " could not be held until the end of the run";
  }
  return sizeText(account.shortBy()) + " of the free space of " + volume +
         " have not been overwritten: another program took them during the run, or the file system gave no more";
}

std::string causeText(ErrorCode cause, const std::string& volume) {
  switch (cause) {
    case ErrorCode::storageFull:
      return "the storage under " + volume +
             " is full: it dropped what the volume had taken already, and more would damage the file system; make room "
             "there before the volume is unmounted";
    case ErrorCode::overQuota:
      return "the quota on " + volume + " is used up, and what had been taken already was dropped";
    case ErrorCode::gone:
      return "the medium of " + volume + " fails or has been pulled";
    case ErrorCode::readOnly:
      return volume + " turned read-only during the run";
    default:
      return "";
  }
}

}  // namespace calvero
