// Whether a filler file costs more when there are more of them: one set of MANY files against as many in sets of FEW.
//
//   bench_growth VOLUME FEW MANY PAIRS MOST_RATIO

#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

#include "app/app_delegate.h"
#include "bench/paired.h"
#include "bench/quiet_ports.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/process/process_limits.h"
#include "ports/files.h"
#include "wipe/filler_names.h"
#include "wipe/filler_size.h"

namespace {

using namespace calvero;

void check(const Error& error) {
  if (error.failed()) std::exit((std::fprintf(stderr, "%s\n", error.text().c_str()), 1));
}

/// Makes sets of one size on a volume. Each public function makes one, gets rid of it, and returns the seconds of the
/// step that it names.
class Sets {
 public:
  Sets(const std::string& volume, std::uint64_t files)
      : volume_(volume),
        count_(files),
        ports_(bench::benchVolume(volume, (files - 1) * kFillerFileBytes)),
        app_(ports_.with(files_)) {}

  double layOut() {
    check(laidOut()->remove());
    return layoutSeconds_;
  }

  double removeDirectory() {
    const auto directory = laidOut();
    return bench::secondsOf([&] { check(directory->remove()); });
  }

  double removeWrittenFiles() {
    const auto directory = written();
    const double seconds = bench::secondsOf([&] { removeEach(*directory); });
    check(directory->remove());
    return seconds;
  }

  double release() {
    const auto directory = written();
    removeEach(*directory);
    const double seconds = bench::secondsOf([&] { directory->releaseSpace(); });
    check(directory->remove());
    return seconds;
  }

 private:
  std::shared_ptr<FillerDirectory> laidOut() {
    app_.allocateAllArrays();
    const RunPtr run = app_.currentRun();
    layoutSeconds_ = bench::secondsOf([&] { app_.createFile(*run); });
    check(run->firstFault());
    check(run->refusal());
    return run->directory();
  }

  /// A set with a few bytes in each file, so that its removal has something to hold.
  std::shared_ptr<FillerDirectory> written() {
    const auto directory = laidOut();
    for (std::uint64_t i = 0; i < count_; ++i) {
      Error error;
      const auto file = directory->openForWriting(fillerFilePath(volume_, i), error);
      check(error);
      if (file->pwrite(data_.data(), data_.size(), 0).bytes < 0) std::exit((std::perror("pwrite"), 1));
    }
    return directory;
  }

  void removeEach(FillerDirectory& directory) {
    for (std::uint64_t i = 0; i < count_; ++i) check(directory.removeItem(fillerFilePath(volume_, i)));
    if (directory.bytesNotKept() != 0) std::exit((std::fputs("the limit of open files is too low\n", stderr), 1));
  }

  std::string volume_;
  std::uint64_t count_;
  std::array<std::uint8_t, 512> data_{};
  bench::QuietPorts ports_;
  LinuxFiles files_;
  AppDelegate app_;
  double layoutSeconds_ = 0;
};

struct Step {
  const char* what;
  double (Sets::*seconds)();
  bool holdsFiles;
};

constexpr Step kSteps[] = {{"laying out", &Sets::layOut, false},
                           {"removing the directory of", &Sets::removeDirectory, false},
                           {"removing and holding", &Sets::removeWrittenFiles, true},
                           {"releasing", &Sets::release, true}};

/// As many files as can be held open, a multiple of `sets`.
std::uint64_t mostHeld(std::uint64_t sets) {
  rlimit limit = {};
  ::getrlimit(RLIMIT_NOFILE, &limit);
  constexpr rlim_t kForEverythingElse = 2 * kSpareDescriptors;
  return (limit.rlim_cur - std::min(limit.rlim_cur, kForEverythingElse)) / sets * sets;
}

double measure(const Step& step, const std::string& volume, std::uint64_t few, std::uint64_t many, int pairs) {
  Sets fewFiles(volume, few);
  Sets manyFiles(volume, many);
  const std::string what = step.what + (" " + std::to_string(many)) + " files, against sets of " + std::to_string(few);
  return bench::printMedianRatio(
      what.c_str(), pairs, [&] { return (manyFiles.*step.seconds)(); },
      [&] {
        double seconds = 0;
        for (std::uint64_t made = 0; made < many; made += few) seconds += (fewFiles.*step.seconds)();
        return seconds;
      });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 6) return std::fputs("usage: bench_growth VOLUME FEW MANY PAIRS MOST_RATIO\n", stderr), 2;
  const auto few = static_cast<std::uint64_t>(std::atoll(argv[2]));
  const auto many = static_cast<std::uint64_t>(std::atoll(argv[3])) / few * few;
  raiseOpenFileLimit();
  bool isWithinBounds = true;
  for (const Step& step : kSteps) {
    // Where the limit of open files is low, the same number of sets, only smaller ones.
    const std::uint64_t sets = many / few;
    const std::uint64_t files = step.holdsFiles ? std::min(many, mostHeld(sets)) : many;
    const double ratio = measure(step, argv[1], files / sets, files, std::atoi(argv[4]));
    std::fflush(stdout);
    isWithinBounds = isWithinBounds && ratio <= std::atof(argv[5]);
  }
  return isWithinBounds ? 0 : 1;
}
