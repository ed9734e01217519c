#include "window/event_dispatch.h"

#include <exception>
#include <string>

#include "ports/system_log.h"

namespace calvero {

void EventDispatch::run(const std::function<void()>& handler) const noexcept {
  try {
    handler();
  } catch (const std::exception& error) {
    log_.line(std::string("Unexpected failure: ") + error.what());
  } catch (...) {
    log_.line("Unexpected failure of an unknown kind");
  }
}

}  // namespace calvero
