#pragma once

#include "ports/random_source.h"

namespace calvero {

class KernelRandom : public RandomSource {
 public:
  std::uint32_t next() override;
};

}  // namespace calvero
