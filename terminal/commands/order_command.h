#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "terminal/commands/order_command_pending.h"
#include "terminal/commands/window_program.h"

namespace calvero {

/// A run to be ordered, of a volume that was found fit for it.
struct NewOrder {
  std::string volume;
  std::string mountPath;
  std::int32_t method = 0;  ///< 0 to 8
  std::string program;      ///< the window program's path
  std::string volumeUuid;   ///< empty where nobody tells it
};

/// The volume as a person reads it.
std::string volumeOf(const NewOrder& order);

struct PlacedOrder {
  Answer answer;
  std::unique_ptr<StartedProgram> program;  ///< null when nothing was ordered
};

/// Stores the order and starts the program that carries it out. Refused, with nothing stored, while an earlier order
/// has not ended; called off when the program cannot be started. Throws TagStoreFailure.
PlacedOrder placeOrder(const NewOrder& order, OrderTags& tags, const RunLookup& isUnderWay, const Starter& start);

}  // namespace calvero
