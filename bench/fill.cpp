// Filling one filler file, against a bare loop of the same pwrite and fsync calls on the same volume.
//
//   bench_fill VOLUME PASSES PAIRS MOST_RATIO

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "app/app_delegate.h"
#include "bench/paired.h"
#include "bench/quiet_ports.h"
#include "methods/method_catalogue.h"
#include "platform/linux/files/linux_files.h"
#include "ports/files.h"
#include "wipe/block_plan.h"
#include "wipe/filler_names.h"
#include "wipe/filler_size.h"

namespace {

using namespace calvero;

constexpr std::uint64_t kBytes = kFillerFileBytes;

double fillWithTheProduct(AppDelegate& app, Files& files, const std::string& volume) {
  Error error;
  std::shared_ptr<FillerDirectory> directory = files.createFillerDirectory(volume, fillerDirectoryPath(volume), error);
  if (!directory) std::exit((std::fprintf(stderr, "%s\n", error.text().c_str()), 1));
  WipeRun& run = *app.currentRun();
  run.setDirectory(directory);
  const std::string path = fillerFilePath(volume, 0);
  directory->createEmptyFile(path);
  const double seconds = bench::secondsOf([&] { app.fillFilePath(run, path, kBytes); });
  directory->remove();
  if (run.faults() != 0) std::exit((std::fprintf(stderr, "%s\n", run.firstFault().text().c_str()), 1));
  return seconds;
}

double fillBare(const AppDelegate& app, const std::string& volume) {
  const std::string path = volume + "/bare";
  const int file = ::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
  const BlockPlan plan = blockPlan(kBytes);
  const std::int32_t method = app.methodChoice().eraseMethodSelected;
  const std::int32_t passes = app.methodChoice().numPassSelected;
  const double seconds = bench::secondsOf([&] {
    for (std::int32_t block = 0; block < plan.count; ++block) {
      const std::int32_t bytes = block + 1 < plan.count ? kBlockBytes : plan.lastBytes;
      for (std::int32_t pass = 0; pass < passes; ++pass) {
        const std::uint8_t* buffer = app.fillBuffer(nullptr, kBlockBytes, method, pass);
        if (::pwrite(file, buffer, static_cast<std::size_t>(bytes), static_cast<off_t>(block) * kBlockBytes) != bytes ||
            ::fsync(file) != 0) {
          std::exit((std::perror("bare"), 1));
        }
      }
    }
  });
  ::close(file);
  ::unlink(path.c_str());
  return seconds;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) return std::fputs("usage: bench_fill VOLUME PASSES PAIRS MOST_RATIO\n", stderr), 2;
  const std::string volume = argv[1];
  const bool threePasses = std::atoi(argv[2]) == 3;
  bench::QuietPorts ports(bench::benchVolume(volume, kBytes));
  LinuxFiles files;
  AppDelegate app(ports.with(files));
  app.createBuffersForErasing();
  app.chooseMethod(threePasses ? 2 : 0);
  const std::string what = "filling a filler file, " + std::to_string(app.methodChoice().numPassSelected) + " pass(es)";
  const double ratio = bench::printMedianRatio(
      what.c_str(), std::atoi(argv[3]), [&] { return fillWithTheProduct(app, files, volume); },
      [&] { return fillBare(app, volume); });
  return ratio <= std::atof(argv[4]) ? 0 : 1;
}
