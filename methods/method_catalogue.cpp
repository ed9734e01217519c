#include "methods/method_catalogue.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <limits>
#include <stdexcept>

namespace calvero {
namespace {

constexpr std::int32_t kMethodsOfOrders = 9;

constexpr Pattern byParity(std::int32_t pass, Pattern odd, Pattern even) {
  return pass % 2 != 0 ? odd : even;
}

constexpr Pattern zerosAndOnes(std::int32_t pass) {
  return byParity(pass, Pattern::xFF, Pattern::zeros);
}

constexpr Pattern oneOfThree(std::int32_t pass, std::array<Pattern, 3> patterns) {
  return pass >= 0 && pass < 3 ? patterns[static_cast<std::size_t>(pass)] : Pattern::none;
}

constexpr Pattern gutmann(std::int32_t pass) {
  // 32 is no slip: that pass is one of zeros.
  const bool isRandom = (pass >= 0 && pass <= 3) || pass == 31 || pass == 33 || pass == 34;
  return isRandom ? Pattern::random : zerosAndOnes(pass);
}

constexpr Pattern dod(std::int32_t pass) {
  return oneOfThree(pass, {Pattern::x55, Pattern::xAA, Pattern::random});
}

constexpr Pattern gutmannThenDod(std::int32_t pass) {
  constexpr std::int32_t kFirstOfDod = 35;
  const bool isOfDod = pass >= kFirstOfDod && pass < kFirstOfDod + 3;
  return isOfDod ? dod(pass - kFirstOfDod) : gutmann(pass);
}

constexpr Pattern navso(std::int32_t pass) {
  return oneOfThree(pass, {Pattern::zeros, Pattern::xFF, Pattern::random});
}

constexpr Pattern nato(std::int32_t pass) {
  return pass == 6 ? Pattern::random : zerosAndOnes(pass);
}

// Ends with 0xAA where its neighbours end with random data.
constexpr Pattern vsitr(std::int32_t pass) {
  return pass == 6 ? Pattern::xAA : zerosAndOnes(pass);
}

constexpr Pattern neverWritten(std::int32_t pass) {
  return pass == 6 ? Pattern::random : byParity(pass, Pattern::xAA, Pattern::x56);
}

constexpr Pattern always0x00(std::int32_t /*pass*/) {
  return Pattern::zeros;
}

constexpr Pattern alwaysRandom(std::int32_t /*pass*/) {
  return Pattern::random;
}

constexpr auto kRows = std::to_array<EraseMethod>({
    {0, "zero", "Fast Zero Write (Wipes data with 0's (Zero))", 1, always0x00},
    {1, "random", "Random ", 1, alwaysRandom},
    {2, "dod", "DOD 5220.22.M (US Dept. of Defence Standard) ", 3, dod},
    {3, "navso", "N.A.V.S.O.- RLL (US Navy Standard) ", 1, navso},
    {4, "nato", "N.A.T.O. (North Atlantic Treaty Organization  Standard)", 7, nato},
    {5, "vsitr", "V.S.I.T.R.  (German Standard) ", 7, vsitr},
    {6, "none", "Fast Zero Write (Wipes data with 0's (Zero))", 0, neverWritten},
    {7, "gutmann", "Peter Guttman Method", 35, gutmann},
    {8, "gutmann-dod", "Peter Guttman + (DoD 5220.22-M)", 38, gutmannThenDod},
});

constexpr bool isEachAtItsPlace() {
  for (std::size_t place = 0; place < kRows.size(); ++place) {
    if (kRows[place].number != static_cast<std::int32_t>(place)) return false;
  }
  return true;
}
static_assert(isEachAtItsPlace());

bool isOf(MethodCatalogue methods, std::int32_t number) {
  return number >= 0 && static_cast<std::size_t>(number) < methods.size();
}

}  // namespace

constinit const MethodCatalogue kMethodCatalogue{kRows};

const EraseMethod& methodAt(MethodCatalogue methods, std::int32_t number) {
  if (!isOf(methods, number)) throw std::out_of_range("there is no erase method " + std::to_string(number));
  return methods[static_cast<std::size_t>(number)];
}

Pattern plannedPattern(std::int32_t method, std::int32_t pass, MethodCatalogue methods) {
  return isOf(methods, method) ? methodAt(methods, method).plan(pass) : Pattern::none;
}

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

MethodCatalogue orderableMethods(MethodCatalogue methods) {
  return methods.first(std::min<std::size_t>(methods.size(), kMethodsOfOrders));
}

std::optional<std::int32_t> methodFromTag(const std::string& text) {
  const std::int32_t oneBased = integerValue(text);
  if (oneBased < 1 || oneBased > kMethodsOfOrders) return std::nullopt;
  return oneBased - 1;
}

}  // namespace calvero
