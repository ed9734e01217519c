#include "window/wizard/wizard_texts.h"

#include "app/app_delegate.h"
#include "ports/localisation.h"
#include "window/widget_text.h"
#include "wipe/filler_names.h"

namespace calvero {
namespace {

/// The values stand for "%1", "%2" and so on. None is looked through for the placeholder of another.
std::string filledIn(const std::string& text, const std::vector<std::string>& values) {
  std::string filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isPlaceholder = text[at] == '%' && at + 1 < text.size() && text[at + 1] >= '1' && text[at + 1] <= '9';
    const auto number = isPlaceholder ? static_cast<std::size_t>(text[at + 1] - '1') : values.size();
    if (number < values.size()) {
      filled += isolated(QString::fromStdString(values[number])).toStdString();
      ++at;
    } else {
      filled += text[at];
    }
  }
  return filled;
}

std::string failureText(const Localisation& texts, const WipeRun& run) {
  const ErrorCode cause = run.cause().code;
  const bool isUnderneath = cause == ErrorCode::storageFull || cause == ErrorCode::overQuota;
  const std::string text =
      isUnderneath
          ? texts.localised(
                "The storage behind the drive %1 is full or failing. Make room there before the drive is removed. "
                "Deleted data may still be readable on the drive.")
          : texts.localised("The drive %1 was removed or has failed. Deleted data may still be readable on it.");
  return filledIn(text, {run.volume.name()});
}

std::string partialText(const Localisation& texts, const RunAccount& account, const std::string& volume) {
  const std::string overwritten = AppDelegate::getFormattedStringForSize(account.overwritten());
  const std::string free = AppDelegate::getFormattedStringForSize(account.freeAtStart);
  if (account.shortBy() != 0 && overwritten != free) {
    return filledIn(
        texts.localised("Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be "
                        "readable there."),
        {overwritten, free, volume});
  }
  return filledIn(texts.localised("Part of the free space of %1 could not be erased. Deleted data may still be "
                                  "readable there."),
                  {volume});
}

}  // namespace

std::optional<std::string> refusalText(const Localisation& texts, const Error& error) {
  switch (error.code) {
    case ErrorCode::none:
      return std::nullopt;
    case ErrorCode::readOnly:
      return texts.localised("Read only drive, please select other drives");
    case ErrorCode::notPermitted:
      return texts.localised(
          "You are not allowed to write to this drive. Select another drive, or ask its "
          "administrator.");
    case ErrorCode::busy:
      return texts.localised(
          "This drive is being erased by another process. Wait until it has ended, or select "
          "another drive.");
    case ErrorCode::notFound:
      return texts.localised("This drive is not connected any more. Press \"Reload Drives\".");
    case ErrorCode::notOurs:
      return filledIn(texts.localised("This drive holds a folder \"%1\" that was not made by Calvero. Rename or remove "
                                      "it, then try again."),
                      {kFillerDirectoryName});
    case ErrorCode::locked:
      return filledIn(texts.localised("This drive holds a folder \"%1\" that an earlier run left and that is locked. "
                                      "Unlock or remove it, then try again."),
                      {error.path});
    case ErrorCode::thinStorage:
      return texts.localised(
          "The storage below this drive has less room than the drive shows. Make room there, or select another drive.");
    case ErrorCode::gone:
      return texts.localised("This drive does not respond. Check its connection, then press \"Reload Drives\".");
    case ErrorCode::exists:
    case ErrorCode::full:
    case ErrorCode::overQuota:
    case ErrorCode::storageFull:
    case ErrorCode::noHandles:
    case ErrorCode::closed:
    case ErrorCode::other:
      break;
  }
  return texts.localised("Unknown Error Occured");
}

std::string administratorText(const Localisation& texts) {
  return texts.localised(
      "You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase "
      "its free space as administrator.");
}

std::string untrustedProgramText(const Localisation& texts, const std::string& program) {
  return filledIn(
      texts.localised("You are not allowed to write to this drive. A user can change the program %1, so it must not be "
                      "started as administrator. Have the administrator install Calvero, then try again."),
      {program});
}

std::string outcomeText(const Localisation& texts, const WipeRun& run, bool isFlawed) {
  if (run.outcome != RunOutcome::finished) return failureText(texts, run);
  const RunAccount account = run.account();
  const RunGrade grade = gradeOf(account);
  if (grade == RunGrade::nothing) return texts.localised("Nothing was overwritten: this method writes no data.");
  if (grade == RunGrade::partial || isFlawed) return partialText(texts, account, run.volume.name());
  return filledIn(texts.localised("%1 of free space on %2 have been overwritten."),
                  {AppDelegate::getFormattedStringForSize(account.overwritten()), run.volume.name()});
}

std::string remainsText(const Localisation& texts, const Error& remains) {
  return filledIn(texts.localised("The free space has been erased, but \"%1\" could not be removed. Change the "
                                  "permissions and remove it, or erase the drive again."),
                  {remains.path});
}

}  // namespace calvero
