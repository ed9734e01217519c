#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string>
#include <vector>

#include "tests/faults/file_system.h"

namespace faultfs {
namespace {

FileSystem& of(fuse_req_t request) {
  return *static_cast<FileSystem*>(fuse_req_userdata(request));
}

/// Counts the call; true if the fault has answered it.
bool answered(fuse_req_t request, Kind kind) {
  const Verdict verdict = of(request).plan.meet(kind);
  if (verdict.errnoValue != 0) fuse_reply_err(request, verdict.errnoValue);
  return verdict.errnoValue != 0;
}

void reply(fuse_req_t request, int result) {
  fuse_reply_err(request, result == 0 ? 0 : errno);
}

/// The path by which a descriptor that was opened with O_PATH is reached for what such ones refuse.
std::string way(FileSystem& fs, fuse_ino_t node) {
  return "/proc/self/fd/" + std::to_string(fs.nodes.descriptor(node));
}

/// Nothing is cached by the kernel: each look at a name or its attributes is a call.
bool enter(fuse_req_t request, fuse_ino_t parent, const char* name, fuse_entry_param& entry) {
  entry = {};
  entry.ino = of(request).nodes.lookUp(parent, name, entry.attr);
  if (entry.ino == 0) fuse_reply_err(request, errno);
  return entry.ino != 0;
}

void lookUp(fuse_req_t request, fuse_ino_t parent, const char* name) {
  if (answered(request, Kind::lookup)) return;
  fuse_entry_param entry;
  if (enter(request, parent, name, entry)) fuse_reply_entry(request, &entry);
}

void forget(fuse_req_t request, fuse_ino_t node, std::uint64_t lookups) {
  of(request).nodes.forget(node, lookups);
  fuse_reply_none(request);
}

void getAttributes(fuse_req_t request, fuse_ino_t node, fuse_file_info*) {
  if (answered(request, Kind::getattr)) return;
  struct stat about = {};
  if (::fstat(of(request).nodes.descriptor(node), &about) != 0) {
    fuse_reply_err(request, errno);
  } else {
    fuse_reply_attr(request, &about, 0);
  }
}

/// A run changes modes only.
void setAttributes(fuse_req_t request, fuse_ino_t node, struct stat* wanted, int which, fuse_file_info*) {
  if (answered(request, Kind::setattr)) return;
  if ((which & FUSE_SET_ATTR_MODE) == 0) {
    fuse_reply_err(request, ENOSYS);
    return;
  }
  struct stat about = {};
  if (::chmod(way(of(request), node).c_str(), wanted->st_mode) != 0 ||
      ::fstat(of(request).nodes.descriptor(node), &about) != 0) {
    fuse_reply_err(request, errno);
  } else {
    fuse_reply_attr(request, &about, 0);
  }
}

/// What is made belongs to whoever made it. The result of the call that made it goes first.
int giveToCaller(fuse_req_t request, int parent, const char* name) {
  const fuse_ctx* caller = fuse_req_ctx(request);
  return ::fchownat(parent, name, caller->uid, caller->gid, AT_SYMLINK_NOFOLLOW);
}

void makeFolder(fuse_req_t request, fuse_ino_t parent, const char* name, mode_t mode) {
  if (answered(request, Kind::mkdir)) return;
  const int folder = of(request).nodes.descriptor(parent);
  fuse_entry_param entry;
  if (::mkdirat(folder, name, mode) != 0 || giveToCaller(request, folder, name) != 0) {
    fuse_reply_err(request, errno);
  } else if (enter(request, parent, name, entry)) {
    fuse_reply_entry(request, &entry);
  }
}

void removeFolder(fuse_req_t request, fuse_ino_t parent, const char* name) {
  if (answered(request, Kind::rmdir)) return;
  reply(request, ::unlinkat(of(request).nodes.descriptor(parent), name, AT_REMOVEDIR));
}

void removeFile(fuse_req_t request, fuse_ino_t parent, const char* name) {
  if (answered(request, Kind::unlink)) return;
  const int folder = of(request).nodes.descriptor(parent);
  struct stat about = {};
  if (::fstatat(folder, name, &about, AT_SYMLINK_NOFOLLOW) != 0 || ::unlinkat(folder, name, 0) != 0) {
    fuse_reply_err(request, errno);
    return;
  }
  if (about.st_nlink == 1) of(request).room.unlinked(about.st_ino);
  fuse_reply_err(request, 0);
}

void opened(fuse_req_t request, int file, fuse_file_info* info) {
  struct stat about = {};
  ::fstat(file, &about);
  of(request).room.opened(about.st_ino);
  info->fh = static_cast<std::uint64_t>(file);
}

void createFile(fuse_req_t request, fuse_ino_t parent, const char* name, mode_t mode, fuse_file_info* info) {
  if (answered(request, Kind::create)) return;
  const int folder = of(request).nodes.descriptor(parent);
  const int file = ::openat(folder, name, info->flags | O_CREAT | O_NOFOLLOW | O_CLOEXEC, mode);
  fuse_entry_param entry;
  if (file < 0 || giveToCaller(request, folder, name) != 0) {
    fuse_reply_err(request, errno);
  } else if (enter(request, parent, name, entry)) {
    opened(request, file, info);
    fuse_reply_create(request, &entry, info);
  }
}

void openFile(fuse_req_t request, fuse_ino_t node, fuse_file_info* info) {
  if (answered(request, Kind::open)) return;
  const int file = ::open(way(of(request), node).c_str(), (info->flags & ~O_NOFOLLOW) | O_CLOEXEC);
  if (file < 0) {
    fuse_reply_err(request, errno);
    return;
  }
  opened(request, file, info);
  fuse_reply_open(request, info);
}

void closeFile(fuse_req_t request, fuse_ino_t, fuse_file_info* info) {
  FileSystem& fs = of(request);
  struct stat about = {};
  ::fstat(static_cast<int>(info->fh), &about);
  fs.room.closed(about.st_ino, about.st_nlink > 0);
  fs.unflushedWrites += fs.unflushed.erase(info->fh);
  ::close(static_cast<int>(info->fh));
  fuse_reply_err(request, 0);
}

void write(fuse_req_t request, fuse_ino_t, const char* data, std::size_t bytes, off_t offset, fuse_file_info* info) {
  FileSystem& fs = of(request);
  const int file = static_cast<int>(info->fh);
  struct stat about = {};
  ::fstat(file, &about);
  fs.filesBegun.insert(about.st_ino);
  const Verdict verdict = fs.plan.meet(Kind::write);
  if (verdict.errnoValue != 0) {
    fuse_reply_err(request, verdict.errnoValue);
    return;
  }
  const std::uint64_t asked = verdict.torn ? bytes / 2 : bytes;
  const std::uint64_t fits = fs.room.take(about.st_ino, static_cast<std::uint64_t>(offset), asked);
  if (fits == 0) {
    fuse_reply_err(request, ENOSPC);
    return;
  }
  const ssize_t written = ::pwrite(file, data, fits, offset);
  if (written < 0) {
    fuse_reply_err(request, errno);
    return;
  }
  fs.bytesWritten += static_cast<std::uint64_t>(written);
  std::uint64_t& unflushed = fs.unflushed[info->fh];
  fs.unflushedWrites += unflushed == 0 ? 0 : 1;
  unflushed = static_cast<std::uint64_t>(written);
  fuse_reply_write(request, static_cast<std::size_t>(written));
}

void flush(fuse_req_t request, fuse_ino_t, int, fuse_file_info* info) {
  if (answered(request, Kind::fsync)) return;
  FileSystem& fs = of(request);
  fs.bytesFlushed += fs.unflushed[info->fh];
  fs.unflushed.erase(info->fh);
  reply(request, ::fsync(static_cast<int>(info->fh)));
}

void openFolder(fuse_req_t request, fuse_ino_t node, fuse_file_info* info) {
  if (answered(request, Kind::opendir)) return;
  DIR* folder = ::opendir(way(of(request), node).c_str());
  if (folder == nullptr) {
    fuse_reply_err(request, errno);
    return;
  }
  info->fh = reinterpret_cast<std::uint64_t>(folder);
  fuse_reply_open(request, info);
}

void readFolder(fuse_req_t request, fuse_ino_t, std::size_t bytes, off_t offset, fuse_file_info* info) {
  if (answered(request, Kind::readdir)) return;
  auto* folder = reinterpret_cast<DIR*>(info->fh);
  ::seekdir(folder, offset);
  std::vector<char> entries(bytes);
  std::size_t used = 0;
  while (const dirent* found = ::readdir(folder)) {
    struct stat about = {};
    about.st_ino = found->d_ino;
    about.st_mode = DTTOIF(found->d_type);
    const std::size_t needed =
        fuse_add_direntry(request, entries.data() + used, bytes - used, found->d_name, &about, found->d_off);
    if (needed > bytes - used) break;
    used += needed;
  }
  fuse_reply_buf(request, entries.data(), used);
}

void closeFolder(fuse_req_t request, fuse_ino_t, fuse_file_info* info) {
  ::closedir(reinterpret_cast<DIR*>(info->fh));
  fuse_reply_err(request, 0);
}

void statistics(fuse_req_t request, fuse_ino_t) {
  if (answered(request, Kind::statfs)) return;
  const Room& room = of(request).room;
  struct statvfs figures = {};
  figures.f_bsize = kClusterBytes;
  figures.f_frsize = kClusterBytes;
  figures.f_blocks = room.clusters();
  figures.f_bfree = room.freeClusters();
  figures.f_bavail = room.freeClusters();
  figures.f_namemax = NAME_MAX;
  fuse_reply_statfs(request, &figures);
}

}  // namespace

fuse_lowlevel_ops operations() {
  fuse_lowlevel_ops ops = {};
  ops.lookup = lookUp;
  ops.forget = forget;
  ops.getattr = getAttributes;
  ops.setattr = setAttributes;
  ops.mkdir = makeFolder;
  ops.rmdir = removeFolder;
  ops.unlink = removeFile;
  ops.create = createFile;
  ops.open = openFile;
  ops.release = closeFile;
  ops.write = write;
  ops.fsync = flush;
  ops.opendir = openFolder;
  ops.readdir = readFolder;
  ops.releasedir = closeFolder;
  ops.statfs = statistics;
  return ops;
}

}  // namespace faultfs
