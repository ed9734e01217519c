#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "app/exit_code.h"
#include "wipe/run_scale.h"

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

struct OrderRequest {
  std::string volume;
  std::string method;
  bool wait = false;
  std::optional<std::uint32_t> timeoutSeconds;
};

struct CancelRequest {
  bool wait = false;
  std::function<bool()> notify;  ///< tells every running Calvero at once, false when that is not possible; may be empty
};

ExitCode volumesCommand(const ListRequest& request);
ExitCode methodsCommand(const ListRequest& request);
ExitCode wipeCommand(const WipeRequest& request, const RunScale& scale);

// What another program orders, through the suite's tag store. They throw what the store cannot do.
ExitCode orderCommand(const OrderRequest& request);
ExitCode statusCommand(const ListRequest& request);
ExitCode cancelCommand(const CancelRequest& request);
ExitCode clearCommand();

}  // namespace calvero
