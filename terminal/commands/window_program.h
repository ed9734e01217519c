#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace calvero {

/// A started program. It goes on when this object is destroyed and when this process ends.
class StartedProgram {
 public:
  StartedProgram() = default;
  StartedProgram(const StartedProgram&) = delete;
  StartedProgram& operator=(const StartedProgram&) = delete;
  virtual ~StartedProgram() = default;

  virtual bool hasEnded() = 0;
  /// "exit code 1", "signal 9"; empty before its end.
  [[nodiscard]] virtual std::string ending() const = 0;
  /// Nothing before its end, and where it is not known or a signal has ended it.
  [[nodiscard]] virtual std::optional<int> exitCode() const = 0;
};

/// Throws std::system_error when the program cannot be started.
using Starter = std::function<std::unique_ptr<StartedProgram>(const std::string& path)>;

/// The full path of the window program: in `ownFolder`, where a build puts it from there, or in an absolute folder of
/// `searchPath`, as PATH lists them; for root, one of the latter only where no other user can change it.
std::optional<std::string> findWindowProgram(const std::string& ownFolder, const std::string& searchPath);
/// The same for this process.
std::optional<std::string> findWindowProgram();

/// Starts the program in a session of its own, without this process's standard streams and other open files. It
/// inherits an order's claim by the descriptor `claim`; a negative one is none.
std::unique_ptr<StartedProgram> startDetached(const std::string& path, int claim);

}  // namespace calvero
