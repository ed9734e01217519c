#pragma once

#define FUSE_USE_VERSION 312
#include <fuse_lowlevel.h>

#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "tests/faults/fault_plan.h"
#include "tests/faults/nodes.h"
#include "tests/faults/room.h"

namespace faultfs {

/// The whole file system: a folder shown once more, with a small room of its own and one fault. One thread.
struct FileSystem {
  FileSystem(int root, std::uint64_t clusters, const Fault& fault, std::string ledgerPath)
      : ledger(std::move(ledgerPath)), nodes(root), room(clusters), plan(fault, [this] { die(); }) {}

  /// Writes what was seen so far into the ledger, a file outside of the mount: a line "NAME FIGURE" each.
  void writeLedger() const;
  [[noreturn]] void die() const;

  const std::string ledger;
  Nodes nodes;
  Room room;
  FaultPlan plan;
  std::uint64_t bytesWritten = 0;
  std::uint64_t unflushedWrites = 0;  ///< writes that no successful flush of the same file has followed
  std::uint64_t bytesFlushed = 0;
  std::set<ino_t> filesBegun;                        ///< those of which a write was tried
  std::map<std::uint64_t, std::uint64_t> unflushed;  ///< bytes of the last write, by file handle
};

/// The operations, for fuse_session_new with a FileSystem as its user data.
fuse_lowlevel_ops operations();

}  // namespace faultfs
