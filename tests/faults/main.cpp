// calvero-faultfs FOLDER MOUNT CLUSTERS LEDGER [KIND:CALL:ACTION]
//
// Mounts at MOUNT what is in FOLDER, with CLUSTERS free clusters of 4096 bytes, says "mounted", serves it until it is
// unmounted, and leaves in LEDGER how many calls of each kind there were. See fault_plan.h for the fault.

#include <fcntl.h>

#include <cstdio>
#include <exception>
#include <string>

#include "tests/faults/file_system.h"

namespace {

constexpr const char* kMountOptions = "allow_other,default_permissions,fsname=calvero-faultfs,subtype=faultfs";

int serve(faultfs::FileSystem& fs, const char* mountPath) {
  const fuse_lowlevel_ops operations = faultfs::operations();
  fuse_args arguments = FUSE_ARGS_INIT(0, nullptr);
  fuse_opt_add_arg(&arguments, "calvero-faultfs");
  fuse_opt_add_arg(&arguments, "-o");
  fuse_opt_add_arg(&arguments, kMountOptions);
  fuse_session* session = fuse_session_new(&arguments, &operations, sizeof operations, &fs);
  fuse_opt_free_args(&arguments);
  if (session == nullptr) return 1;
  int result = fuse_session_mount(session, mountPath);
  if (result == 0) {
    std::puts("mounted");
    std::fflush(stdout);
    result = fuse_session_loop(session);
    fs.writeLedger();
  }
  fuse_session_destroy(session);
  return result == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) try {
  if (count != 5 && count != 6) {
    std::fputs("calvero-faultfs FOLDER MOUNT CLUSTERS LEDGER [KIND:CALL:ACTION]\n", stderr);
    return 2;
  }
  const faultfs::Fault fault = count == 6 ? faultfs::faultFrom(arguments[5]) : faultfs::Fault{};
  const int root = ::open(arguments[1], O_PATH | O_DIRECTORY | O_CLOEXEC);
  if (root < 0) {
    std::perror(arguments[1]);
    return 2;
  }
  faultfs::FileSystem fs(root, std::stoull(arguments[3]), fault, arguments[4]);
  return serve(fs, arguments[2]);
} catch (const std::exception& error) {
  std::fprintf(stderr, "calvero-faultfs: %s\n", error.what());
  return 2;
}
