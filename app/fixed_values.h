#pragma once

#include "methods/method_catalogue.h"
#include "wipe/run_scale.h"

namespace calvero {

/// What the product fixes and nobody can set; whoever embeds the controller, or tests it, may hand in something else.
struct FixedValues {
  MethodCatalogue methods = kMethodCatalogue;
  RunScale scale;
};

}  // namespace calvero
