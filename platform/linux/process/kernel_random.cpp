#include "platform/linux/process/kernel_random.h"

#include <cstdlib>

namespace calvero {

std::uint32_t KernelRandom::next() {
  return ::arc4random();
}

}  // namespace calvero
