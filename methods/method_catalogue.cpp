#include "methods/method_catalogue.h"

#include <algorithm>
#include <cctype>
#include <limits>

namespace calvero {

const std::array<EraseMethod, kMethodCount> kMethodCatalogue{{
    {0, "zero", Control::butFastZeroWipe, Control::algorithm_1, "Fast Zero Write (Wipes data with 0's (Zero))", 1},
    {1, "random", Control::butRandomWipe, Control::algorithm_2, "Random ", 1},
    {2, "dod", Control::butDOD5220, Control::algorithm_3, "DOD 5220.22.M (US Dept. of Defence Standard) ", 3},
    {3, "navso", Control::butNAVSO, Control::algorithm_4, "N.A.V.S.O.- RLL (US Navy Standard) ", 1},
    {4, "nato", Control::butNATO, Control::algorithm_5, "N.A.T.O. (North Atlantic Treaty Organization  Standard)", 7},
    {5, "vsitr", Control::butVSITR, Control::algorithm_6, "V.S.I.T.R.  (German Standard) ", 7},
    {6, "none", Control::butFAST_ZERO_WRITE, Control::algorithm_7, "Fast Zero Write (Wipes data with 0's (Zero))", 0},
    {7, "gutmann", Control::butPETER_GUTTMAN, Control::algorithm_8, "Peter Guttman Method", 35},
    {8, "gutmann-dod", Control::butNINTH_ALGO, Control::algorithm_9, "Peter Guttman + (DoD 5220.22-M)", 38},
}};

const std::array<Control, kMethodCount> kButtonOrder{
    Control::butFastZeroWipe,  Control::butRandomWipe,      Control::butDOD5220,
    Control::butNATO,          Control::butFAST_ZERO_WRITE, Control::butNAVSO,
    Control::butPETER_GUTTMAN, Control::butVSITR,           Control::butNINTH_ALGO,
};

std::int32_t integerValue(const std::string& text) {
  const auto isBlank = [](unsigned char c) { return std::isspace(c) != 0; };
  auto at = std::find_if_not(text.begin(), text.end(), isBlank);
  const bool negative = at != text.end() && *at == '-';
  if (at != text.end() && (*at == '-' || *at == '+')) ++at;
  std::int64_t value = 0;
  for (; at != text.end() && *at >= '0' && *at <= '9'; ++at) {
    value = std::min<std::int64_t>(value * 10 + (*at - '0'), std::int64_t{1} << 32);
  }
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(negative ? -value : value, Limits::min(), Limits::max()));
}

std::optional<std::int32_t> methodFromTag(const std::string& text) {
  const std::int32_t oneBased = integerValue(text);
  if (oneBased < 1 || oneBased > kMethodCount) return std::nullopt;
  return oneBased - 1;
}

}  // namespace calvero
