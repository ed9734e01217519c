#pragma once

#include <string>

namespace calvero {

class SystemLog;

/// Sends a notification to the programs of the user's session. True once the bus has passed it on; false, and a line in
/// the log, when there is no bus, when the texts are not UTF-8 without NUL, or when the bus has not answered within two
/// seconds; in that last case it may still go out. Any thread; blocks until then.
bool postNotification(const std::string& name, const std::string& object, SystemLog& log);

}  // namespace calvero
