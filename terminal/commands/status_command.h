#pragma once

#include <string>

#include "terminal/commands/order_command_pending.h"

namespace calvero {

enum class RunState { none, underWay };

/// The order, its run and its last status, a line each.
std::string statusText(const PendingOrder& order, RunState run);
/// One JSON object.
std::string statusJson(const PendingOrder& order, RunState run);

}  // namespace calvero
