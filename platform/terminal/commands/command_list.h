#pragma once

#include <optional>
#include <string>

#include "platform/terminal/exit_code.h"

namespace calvero {

struct ListRequest {
  bool json = false;
};

struct WipeRequest {
  std::optional<std::string> volume;  ///< a name or mount path; without it a person is asked
  std::optional<std::string> method;  ///< a number from 1 to 9 or a method's word
  bool yes = false;                   ///< every question gets its default button
  bool quiet = false;
  bool json = false;
};

ExitCode volumesCommand(const ListRequest& request);
ExitCode methodsCommand(const ListRequest& request);
ExitCode wipeCommand(const WipeRequest& request);

}  // namespace calvero
