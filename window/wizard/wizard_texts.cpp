#include "window/wizard/wizard_texts.h"

#include "app/app_delegate.h"
#include "app/filled_in.h"
#include "ports/localisation.h"
#include "volumes/refusal.h"
#include "window/widget_text.h"
#include "wipe/filler_names.h"

namespace calvero {
namespace {

/// Each value is kept from disturbing the direction of the text around it.
std::string filledInIsolated(const std::string& text, std::vector<std::string> values) {
  for (std::string& value : values) value = isolated(QString::fromStdString(value)).toStdString();
  return filledIn(text, values);
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
  return filledInIsolated(text, {run.volume.name()});
}

std::string partialText(const Localisation& texts, const RunAccount& account, const std::string& volume) {
  const std::string overwritten = AppDelegate::getFormattedStringForSize(account.overwritten());
  const std::string free = AppDelegate::getFormattedStringForSize(account.freeAtStart);
  if (account.shortBy() != 0 && overwritten != free) {
    return filledInIsolated(
        texts.localised("Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be "
                        "readable there."),
        {overwritten, free, volume});
  }
  return filledInIsolated(texts.localised("Part of the free space of %1 could not be erased. Deleted data may still be "
                                          "readable there."),
                          {volume});
}

}  // namespace

std::optional<std::string> refusalText(const Localisation& texts, const Error& error) {
  if (!error.failed()) return std::nullopt;
  const RefusalWords& words = refusalWords(error.code);
  return filledInIsolated(texts.localised(words.key),
                          {words.value == RefusalValue::folderPath ? error.path : kFillerDirectoryName});
}

std::string administratorText(const Localisation& texts) {
  return texts.localised(
      "You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase "
      "its free space as administrator.");
}

std::string untrustedProgramText(const Localisation& texts, const std::string& program) {
  return filledInIsolated(
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
  return filledInIsolated(texts.localised("%1 of free space on %2 have been overwritten."),
                          {AppDelegate::getFormattedStringForSize(account.overwritten()), run.volume.name()});
}

std::string remainsText(const Localisation& texts, const Error& remains) {
  return filledInIsolated(texts.localised("The free space has been erased, but \"%1\" could not be removed. Change the "
                                          "permissions and remove it, or erase the drive again."),
                          {remains.path});
}

}  // namespace calvero
