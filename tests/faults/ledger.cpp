#include <unistd.h>

#include <fstream>

#include "tests/faults/file_system.h"

namespace faultfs {

void FileSystem::writeLedger() const {
  std::ofstream out(ledger);
  for (std::size_t kind = 0; kind < kKindNames.size(); ++kind)
    out << kKindNames[kind] << ' ' << plan.calls(kind) << '\n';
  out << "hits " << plan.hits() << '\n'
      << "filesBegun " << filesBegun.size() << '\n'
      << "bytesWritten " << bytesWritten << '\n'
      << "bytesFlushed " << bytesFlushed << '\n'
      << "unflushedWrites " << unflushedWrites << '\n'
      << "fewestFreeClusters " << room.fewestFree() << '\n';
}

void FileSystem::die() const {
  writeLedger();
  ::_exit(0);
}

}  // namespace faultfs
