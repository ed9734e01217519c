// Laying out filler files, against a bare loop that creates and closes as many; and the memory that one costs.
//
//   bench_layout VOLUME FILES PAIRS MOST_RATIO MOST_BYTES

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "app/app_delegate.h"
#include "bench/paired.h"
#include "bench/quiet_ports.h"
#include "platform/linux/files/linux_files.h"
#include "ports/files.h"
#include "wipe/filler_size.h"

namespace {

using namespace calvero;

long residentBytes() {
  long pages = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  return resident * ::sysconf(_SC_PAGESIZE);
}

struct Layout {
  bench::QuietPorts ports;
  LinuxFiles files;
  AppDelegate app;

  explicit Layout(const MountedVolume& volume) : ports(volume), app(ports.with(files)) {}

  double seconds() {
    app.allocateAllArrays();
    const RunPtr run = app.currentRun();
    const double time = bench::secondsOf([&] { app.createFile(*run); });
    run->directory()->remove();
    return time;
  }
};

double createBare(const std::string& volume, std::uint64_t count) {
  const std::string folder = volume + "/bare";
  ::mkdir(folder.c_str(), 0700);
  const int directory = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const double seconds = bench::secondsOf([&] {
    for (std::uint64_t i = 0; i < count; ++i) {
      const std::string name = ".temp" + std::to_string(i);
      const int file = ::openat(directory, name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
      if (file < 0) std::exit((std::perror("bare"), 1));
      ::close(file);
    }
  });
  for (std::uint64_t i = 0; i < count; ++i) ::unlinkat(directory, (".temp" + std::to_string(i)).c_str(), 0);
  ::close(directory);
  ::rmdir(folder.c_str());
  return seconds;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 6) return std::fputs("usage: bench_layout VOLUME FILES PAIRS MOST_RATIO MOST_BYTES\n", stderr), 2;
  const std::string volume = argv[1];
  const auto files = static_cast<std::uint64_t>(std::atoll(argv[2]));
  Layout layout(bench::benchVolume(volume, (files - 1) * kFillerFileBytes));

  const long before = residentBytes();
  layout.seconds();
  const double bytesPerFile = static_cast<double>(residentBytes() - before) / static_cast<double>(files);
  std::printf("memory for a filler file: %.0f bytes\n", bytesPerFile);

  const double ratio =
      bench::printMedianRatio(("laying out " + std::to_string(files) + " filler files").c_str(), std::atoi(argv[3]),
                              [&] { return layout.seconds(); }, [&] { return createBare(volume, files); });
  return ratio <= std::atof(argv[4]) && bytesPerFile <= std::atof(argv[5]) ? 0 : 1;
}
