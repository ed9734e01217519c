// Removing a directory of empty files by a bare loop: what a clean-up is measured against. Prints the seconds.
//
//   bench_bare_directory VOLUME FILES

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/paired.h"

namespace {

[[noreturn]] void fail(const char* what) {
  std::perror(what);
  std::exit(1);
}

void create(int directory, long files) {
  for (long i = 0; i < files; ++i) {
    const std::string name = ".temp" + std::to_string(i);
    const int file = ::openat(directory, name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
    if (file < 0) fail("openat");
    ::close(file);
  }
}

long removeAll(const std::string& folder, int directory) {
  DIR* stream = ::opendir(folder.c_str());
  if (stream == nullptr) fail("opendir");
  long removed = 0;
  while (const dirent* entry = ::readdir(stream)) {
    if (entry->d_type != DT_REG) continue;
    if (::unlinkat(directory, entry->d_name, 0) != 0) fail("unlinkat");
    ++removed;
  }
  ::closedir(stream);
  if (::rmdir(folder.c_str()) != 0) fail("rmdir");
  return removed;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return std::fputs("usage: bench_bare_directory VOLUME FILES\n", stderr), 2;
  const std::string folder = std::string(argv[1]) + "/bare";
  const long files = std::atol(argv[2]);
  if (::mkdir(folder.c_str(), 0700) != 0) fail("mkdir");
  const int directory = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  create(directory, files);
  long removed = 0;
  std::printf("%.6f\n", calvero::bench::secondsOf([&] { removed = removeAll(folder, directory); }));
  return removed == files ? 0 : 1;
}
