#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "methods/pattern_buffers.h"

namespace calvero {

/// The pattern of a zero-based pass; `none` where the plan has none. Pure, and defined for any number: passes beyond a
/// method's count are planned too, but never written.
using PassPlan = Pattern (*)(std::int32_t pass);

/// One erase method: all that there is to tell of it.
struct EraseMethod {
  std::int32_t number;   ///< its place in the catalogue; one-based wherever a person or another program names it
  const char* word;      ///< the short name for the command line
  const char* labelKey;  ///< localisation key; its blanks and letters are part of the key
  std::int32_t passes;   ///< passes written over each block
  PassPlan plan;
};

/// Erase methods, each at the place of its number. What is looked at must outlive those who look.
using MethodCatalogue = std::span<const EraseMethod>;

/// Two pass counts look like mistakes and are meant: method 3 writes only the first of its three planned passes, and
/// method 6 writes none, so that a run lays out and removes empty filler files. Methods 0 and 6 share one label.
extern const MethodCatalogue kMethodCatalogue;

/// Throws std::out_of_range for a number that is none of the catalogue's.
const EraseMethod& methodAt(MethodCatalogue methods, std::int32_t number);

/// The pattern of zero-based pass `pass` of erase method `method`; `none` for a method beyond the catalogue.
Pattern plannedPattern(std::int32_t method, std::int32_t pass, MethodCatalogue methods = kMethodCatalogue);

/// The integer at the start of `text`: leading blanks skipped, an optional sign, decimal digits. 0 when there is none;
/// beyond 32 bits the nearest value.
std::int32_t integerValue(const std::string& text);

/// The methods that an order can name. Those who write and read orders have agreed on "1" to "9", and take a number
/// beyond them for none: a further method is for a person only.
MethodCatalogue orderableMethods(MethodCatalogue methods = kMethodCatalogue);

/// The method that a one-based number in a tag names; nothing outside "1" to "9".
std::optional<std::int32_t> methodFromTag(const std::string& text);

}  // namespace calvero
