#include "platform/qt/wizard/wizard_texts.h"

#include "platform/qt/widget_text.h"
#include "ports/localisation.h"
#include "wipe/filler_names.h"

namespace calvero {
namespace {

std::string filledIn(std::string text, const std::string& value) {
  constexpr std::string_view kPlaceholder = "%1";
  const auto at = text.find(kPlaceholder);
  if (at == std::string::npos) return text;
  return text.replace(at, kPlaceholder.size(), isolated(QString::fromStdString(value)).toStdString());
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
                      kFillerDirectoryName);
    case ErrorCode::locked:
      return filledIn(texts.localised("This drive holds a folder \"%1\" that an earlier run left and that is locked. "
                                      "Unlock or remove it, then try again."),
                      error.path);
    case ErrorCode::thinStorage:
      return texts.localised(
          "The storage below this drive has less room than the drive shows. Make room there, or select another drive.");
    case ErrorCode::gone:
      return texts.localised("This drive does not respond. Check its connection, then press \"Reload Drives\".");
    case ErrorCode::exists:
    case ErrorCode::full:
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
      program);
}

std::string outcomeText(const Localisation& texts, RunOutcome outcome, bool isFlawed, const std::string& volume) {
  if (outcome != RunOutcome::finished) {
    return filledIn(
        texts.localised("The drive %1 was removed or has failed. Deleted data may still be readable on it."), volume);
  }
  if (isFlawed) {
    return filledIn(texts.localised("Part of the free space of %1 could not be erased. Deleted data may still be "
                                    "readable there."),
                    volume);
  }
  return filledIn(texts.localised("The free space of %1 has been erased."), volume);
}

std::string remainsText(const Localisation& texts, const Error& remains) {
  return filledIn(texts.localised("The free space has been erased, but \"%1\" could not be removed. Change the "
                                  "permissions and remove it, or erase the drive again."),
                  remains.path);
}

}  // namespace calvero
