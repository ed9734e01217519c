#include "terminal/commands/window_program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/linux/process/administrator.h"
#include "platform/linux/process/program_search.h"
#include "platform/linux/process/trusted_path.h"
#include "platform/suite/order_claim.h"
#include "platform/threads/signals.h"

namespace calvero {
namespace {

constexpr const char* kWindowProgramName = "calvero";
constexpr const char* kInBuildTree = "../qt/calvero";

class DetachedProgram : public StartedProgram {
 public:
  explicit DetachedProgram(pid_t id) : id_(id) {}

  bool hasEnded() override {
    if (ending_.empty()) {
      int status = 0;
      const pid_t answer = ::waitpid(id_, &status, WNOHANG);
      if (answer == id_) {
        ending_ = inWords(status);
        if (WIFEXITED(status)) exitCode_ = WEXITSTATUS(status);
      }
      // Whoever started this process may have had it ignore the end of its children.
      if (answer < 0 && errno == ECHILD) ending_ = "in an unknown way";
    }
    return !ending_.empty();
  }

  [[nodiscard]] std::string ending() const override { return ending_; }
  [[nodiscard]] std::optional<int> exitCode() const override { return exitCode_; }

 private:
  static std::string inWords(int status) {
    return WIFSIGNALED(status) ? "signal " + std::to_string(WTERMSIG(status))
                               : "exit code " + std::to_string(WEXITSTATUS(status));
  }

  const pid_t id_;
  std::string ending_;
  std::optional<int> exitCode_;
};

void throwIfFailed(int error, const char* what) {
  if (error != 0) throw std::system_error(error, std::generic_category(), what);
}

/// How a detached program is started. The settings of signals that this program made are undone; a signal that it was
/// itself started to ignore (nohup) stays ignored.
class DetachedStart {
 public:
  explicit DetachedStart(int claim) : claim_(claim) {
    throwIfFailed(::posix_spawnattr_init(&attributes_), "posix_spawnattr_init");
    throwIfFailed(::posix_spawn_file_actions_init(&files_), "posix_spawn_file_actions_init");
    sigset_t ignoredHere;
    ::sigemptyset(&ignoredHere);
    for (const int signal : kIgnoredSignals) ::sigaddset(&ignoredHere, signal);
    throwIfFailed(::posix_spawnattr_setsigdefault(&attributes_, &ignoredHere), "posix_spawnattr_setsigdefault");
    throwIfFailed(::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF),
                  "posix_spawnattr_setflags");
    constexpr mode_t kNoNewFile = 0;
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
      throwIfFailed(::posix_spawn_file_actions_addopen(&files_, stream, "/dev/null", O_RDWR, kNoNewFile),
                    "posix_spawn_file_actions_addopen");
    }
    if (claim_ >= 0) {
      throwIfFailed(::posix_spawn_file_actions_adddup2(&files_, claim_, kInheritedClaim),
                    "posix_spawn_file_actions_adddup2");
    }
    throwIfFailed(
        ::posix_spawn_file_actions_addclosefrom_np(&files_, claim_ >= 0 ? kInheritedClaim + 1 : kInheritedClaim),
        "posix_spawn_file_actions_addclosefrom_np");
  }
  DetachedStart(const DetachedStart&) = delete;
  DetachedStart& operator=(const DetachedStart&) = delete;
  ~DetachedStart() {
    ::posix_spawn_file_actions_destroy(&files_);
    ::posix_spawnattr_destroy(&attributes_);
  }

  [[nodiscard]] pid_t start(std::string path) const {
    char* const arguments[] = {path.data(), nullptr};
    std::string claimVariable = std::string(OrderClaim::kInheritedVariable) + '=';
    std::vector<char*> environment;
    for (char** entry = environ; *entry != nullptr; ++entry) {
      if (!std::string_view(*entry).starts_with(claimVariable)) environment.push_back(*entry);
    }
    claimVariable += std::to_string(kInheritedClaim);
    if (claim_ >= 0) environment.push_back(claimVariable.data());
    environment.push_back(nullptr);
    pid_t id = 0;
    throwIfFailed(::posix_spawn(&id, path.c_str(), &files_, &attributes_, arguments, environment.data()), path.c_str());
    return id;
  }

 private:
  static constexpr int kInheritedClaim = STDERR_FILENO + 1;

  const int claim_;
  posix_spawnattr_t attributes_{};
  posix_spawn_file_actions_t files_{};
};

}  // namespace

std::optional<std::string> findWindowProgram(const std::string& ownFolder, const std::string& searchPath) {
  auto own = findBeside(ownFolder, {kWindowProgramName, kInBuildTree});
  if (own) return own;
  const auto inPath = findInPath(kWindowProgramName, searchPath);
  return inPath && isAdministrator() && changeableByOthers(*inPath) ? std::nullopt : inPath;
}

std::optional<std::string> findWindowProgram() {
  return findWindowProgram(ownFolder(), searchPath());
}

std::unique_ptr<StartedProgram> startDetached(const std::string& path, int claim) {
  return std::make_unique<DetachedProgram>(DetachedStart(claim).start(path));
}

}  // namespace calvero
