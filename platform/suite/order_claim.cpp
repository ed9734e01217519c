#include "platform/suite/order_claim.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/suite/private_file.h"

namespace calvero {

namespace {

constexpr int kNoDescriptor = -1;
constexpr std::chrono::milliseconds kPauseBetweenAttempts{20};

/// A lock of the open file, so that a program inherits it, and that can be looked at without taking it.
struct flock wholeFile(short kind) {
  struct flock lock {};
  lock.l_type = kind;
  lock.l_whence = SEEK_SET;
  return lock;
}

/// What is no plain file under that name is not ours to lock.
int openClaim(const std::string& path, int access) {
  const int descriptor = ::open(path.c_str(), access | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return kNoDescriptor;
  struct stat status {};
  if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) return descriptor;
  ::close(descriptor);
  return kNoDescriptor;
}

int openOrMakeClaim(const std::string& path) {
  if (placeAt(path) == Place::nothing) {
    try {
      makePrivateFile(path, [](const std::string&) {});
    } catch (const std::system_error&) {
      return kNoDescriptor;
    }
  }
  return openClaim(path, O_RDWR);
}

bool isSameFile(int descriptor, const std::string& path) {
  struct stat open {};
  struct stat named {};
  return ::fstat(descriptor, &open) == 0 && ::lstat(path.c_str(), &named) == 0 && open.st_dev == named.st_dev &&
         open.st_ino == named.st_ino;
}

OrderClaim::Holder lock(int descriptor, std::chrono::milliseconds timeout) {
  const auto end = std::chrono::steady_clock::now() + timeout;
  while (true) {
    struct flock exclusive = wholeFile(F_WRLCK);
    if (::fcntl(descriptor, F_OFD_SETLK, &exclusive) == 0) return OrderClaim::Holder::us;
    if (errno != EAGAIN && errno != EACCES && errno != EINTR) return OrderClaim::Holder::nobody;
    if (std::chrono::steady_clock::now() >= end) return OrderClaim::Holder::another;
    std::this_thread::sleep_for(kPauseBetweenAttempts);
  }
}

}  // namespace

OrderClaim::OrderClaim(std::string tagStorePath) : tagStorePath_(std::move(tagStorePath)) {}

OrderClaim::~OrderClaim() {
  handOver();
}

std::string OrderClaim::path() const {
  return withoutLinks(tagStorePath_) + "-order";
}

void OrderClaim::inherit() {
  const char* text = std::getenv(kInheritedVariable);
  if (text == nullptr) return;
  int inherited = kNoDescriptor;
  const auto [end, error] = std::from_chars(text, text + std::strlen(text), inherited);
  const bool isNumber = error == std::errc() && *end == '\0' && inherited > STDERR_FILENO;
  ::unsetenv(kInheritedVariable);
  if (!isNumber || !isSameFile(inherited, path())) return;
  ::fcntl(inherited, F_SETFD, FD_CLOEXEC);
  if (lock(inherited, {}) == Holder::us) descriptor_ = inherited;
}

OrderClaim::Holder OrderClaim::take(std::chrono::milliseconds timeout) {
  if (descriptor_ >= 0) return Holder::us;
  if (tagStorePath_.empty()) return Holder::nobody;
  const int descriptor = openOrMakeClaim(path());
  if (descriptor < 0) return Holder::nobody;
  const Holder holder = lock(descriptor, timeout);
  if (holder == Holder::us) {
    descriptor_ = descriptor;
  } else {
    ::close(descriptor);
  }
  return holder;
}

bool OrderClaim::isHeldByAnother() const {
  if (descriptor_ >= 0 || tagStorePath_.empty()) return false;
  const int descriptor = openClaim(path(), O_RDONLY);
  if (descriptor < 0) return false;
  struct flock other = wholeFile(F_WRLCK);
  const bool isKnown = ::fcntl(descriptor, F_OFD_GETLK, &other) == 0;
  ::close(descriptor);
  return isKnown && other.l_type != F_UNLCK;
}

void OrderClaim::giveUp() {
  if (descriptor_ < 0) return;
  struct flock nothing = wholeFile(F_UNLCK);
  ::fcntl(descriptor_, F_OFD_SETLK, &nothing);
  handOver();
}

void OrderClaim::handOver() {
  if (descriptor_ >= 0) ::close(std::exchange(descriptor_, kNoDescriptor));
}

}  // namespace calvero
