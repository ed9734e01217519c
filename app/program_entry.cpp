#include "app/program_entry.h"

#include "ports/user_defaults.h"
#include "remote/authentication.h"

namespace calvero {

std::string chooseInterfaceLanguage(Authentication& authentication, UserDefaults& defaults) {
  std::string language = authentication.GetValueForTag(kTagLanguage).value_or(kLanguageWithoutTheSuitesChoice);
  defaults.setTexts(kDefaultLanguages, {language});
  defaults.synchronise();
  return language;
}

}  // namespace calvero
