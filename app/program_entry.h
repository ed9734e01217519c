#pragma once

#include <string>

namespace calvero {

class Authentication;
class UserDefaults;

constexpr const char* kTagLanguage = "LANG";                 ///< the suite's interface language
constexpr const char* kDefaultLanguages = "AppleLanguages";  ///< the user default that holds the language in use
constexpr const char* kLanguageWithoutTheSuitesChoice = "en";

/// Makes the suite's choice of language the application's, before any text is shown, and returns it. A value that is
/// not the name of a language is kept all the same.
std::string chooseInterfaceLanguage(Authentication& authentication, UserDefaults& defaults);

}  // namespace calvero
