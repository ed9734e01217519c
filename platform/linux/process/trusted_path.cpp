#include "platform/linux/process/trusted_path.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <deque>
#include <filesystem>
#include <system_error>

namespace calvero {
namespace {

using Doubt = bool (*)(const struct stat& entry);

constexpr uid_t kRoot = 0;
constexpr int kMostLinks = 40;  // as the kernel has it

bool isChangeable(const struct stat& entry) {
  if (entry.st_uid != kRoot) return true;
  const bool isSticky = S_ISDIR(entry.st_mode) && (entry.st_mode & S_ISVTX) != 0;
  return !S_ISLNK(entry.st_mode) && !isSticky && (entry.st_mode & (S_IWGRP | S_IWOTH)) != 0;
}

bool isLinkOfAnother(const struct stat& entry) {
  return S_ISLNK(entry.st_mode) && entry.st_uid != kRoot && entry.st_uid != ::geteuid();
}

/// Goes a path as the kernel does, component by component.
class Way {
 public:
  explicit Way(const std::filesystem::path& path) { prepend(path); }

  std::optional<std::string> firstDoubtful(Doubt doubt) {
    while (true) {
      struct stat entry {};
      if (::lstat(reached_.c_str(), &entry) != 0) {
        const bool isAbsent = errno == ENOENT || errno == ENOTDIR;
        return isAbsent ? std::nullopt : std::optional(reached_.string());
      }
      if (doubt(entry)) return reached_.string();
      if (S_ISLNK(entry.st_mode)) {
        if (!follow()) return reached_.string();
      } else if (left_.empty()) {
        return std::nullopt;
      } else {
        advance();
      }
    }
  }

 private:
  void prepend(const std::filesystem::path& path) {
    left_.insert(left_.begin(), path.begin(), path.end());
    if (path.is_absolute()) reached_ = "/";
  }

  bool follow() {
    std::error_code error;
    const auto target = std::filesystem::read_symlink(reached_, error);
    if (error || ++links_ > kMostLinks) return false;
    reached_ = reached_.parent_path();
    prepend(target);
    return true;
  }

  void advance() {
    const std::filesystem::path next = left_.front();
    left_.pop_front();
    if (next == "..") {
      reached_ = reached_.parent_path();
    } else if (next != "." && next != "/" && !next.empty()) {
      reached_ /= next;
    }
  }

  std::filesystem::path reached_ = "/";
  std::deque<std::filesystem::path> left_;
  int links_ = 0;
};

}  // namespace

std::optional<std::string> changeableByOthers(const std::string& path) {
  return Way(path).firstDoubtful(isChangeable);
}

std::optional<std::string> linkOfAnother(const std::string& path) {
  std::error_code unknown;
  return Way(std::filesystem::absolute(path, unknown)).firstDoubtful(isLinkOfAnother);
}

}  // namespace calvero
