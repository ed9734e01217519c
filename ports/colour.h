#pragma once

namespace calvero {

/// Components from 0.0 to 1.0.
struct Colour {
  double red = 0.0;
  double green = 0.0;
  double blue = 0.0;
  double alpha = 1.0;

  bool operator==(const Colour&) const = default;
};

}  // namespace calvero
