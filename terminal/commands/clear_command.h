#pragma once

#include "terminal/commands/order_command_pending.h"

namespace calvero {

/// Removes the order with everything that belongs to it, unless a run of it is under way. Throws TagStoreFailure.
Answer clearOrder(OrderTags& tags, const RunLookup& isUnderWay);

}  // namespace calvero
