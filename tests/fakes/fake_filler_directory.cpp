#include "tests/fakes/fake_filler_directory.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

namespace calvero::testing {
namespace {

std::string lastPart(const std::string& path) {
  return path.substr(path.find_last_of('/') + 1);
}

/// "0x55" for bytes that are all 0x55, else "random".
std::string patternOf(const std::uint8_t* data, std::size_t bytes) {
  if (data == nullptr) return "nothing";
  if (bytes > 1 && std::memcmp(data, data + 1, bytes - 1) != 0) return "random";
  char text[8];
  std::snprintf(text, sizeof text, "0x%02X", bytes == 0 ? 0U : static_cast<unsigned>(*data));
  return text;
}

}  // namespace

FakeFillerDirectory::FakeFillerDirectory(FakeFiles& files, std::shared_ptr<FakeDirectory> directory)
    : files_(files), directory_(std::move(directory)) {}

FakeFillerDirectory::~FakeFillerDirectory() {
  const std::scoped_lock lock(files_.mutex_);
  directory_->locked = false;
}

ErrorCode FakeFillerDirectory::mediumFault() const {
  if (!directory_->volume->mounted) return ErrorCode::gone;
  return directory_->volume->readOnly ? ErrorCode::readOnly : ErrorCode::none;
}

Error FakeFillerDirectory::createEmptyFile(const std::string& path) {
  const ErrorCode scripted = files_.script.arrive(FileCall::createFile).code;
  files_.journal_.add("create " + lastPart(path));
  if (scripted != ErrorCode::none) return fakeError(scripted, "openat", path);
  const std::scoped_lock lock(files_.mutex_);
  if (closed_) return fakeError(ErrorCode::closed, "openat", path);
  if (mediumFault() != ErrorCode::none) return fakeError(mediumFault(), "openat", path);
  FakeEntry& entry = directory_->entries[lastPart(path)];
  if (entry.kind == FakeEntryKind::folder) return fakeError(ErrorCode::exists, "openat", path);
  if (entry.body) --entry.body->names;
  entry = {FakeEntryKind::regularFile, std::make_shared<FakeFileBody>(directory_->volume)};
  return {};
}

bool FakeFillerDirectory::exists(const std::string& path) {
  files_.script.arrive(FileCall::exists);
  files_.journal_.add("exists " + lastPart(path));
  const std::scoped_lock lock(files_.mutex_);
  const bool isReached = directory_->volume->mounted && files_.isAtItsPath(*directory_);
  return isReached && directory_->entries.contains(lastPart(path));
}

Error FakeFillerDirectory::readAttributes(const std::string& path) {
  files_.journal_.add("readAttributes " + lastPart(path));
  const std::scoped_lock lock(files_.mutex_);
  return directory_->entries.contains(lastPart(path)) ? Error{} : fakeError(ErrorCode::notFound, "statx", path);
}

std::unique_ptr<FillerFile> FakeFillerDirectory::openForWriting(const std::string& path, Error& error) {
  ErrorCode code = files_.script.arrive(FileCall::open).code;
  files_.journal_.add("open " + lastPart(path));
  const std::scoped_lock lock(files_.mutex_);
  const auto found = directory_->entries.find(lastPart(path));
  if (code == ErrorCode::none) code = mediumFault();
  if (code == ErrorCode::none && found == directory_->entries.end()) code = ErrorCode::notFound;
  if (code == ErrorCode::none) {
    const FakeEntry& entry = found->second;
    const bool asCreated = entry.kind == FakeEntryKind::regularFile && entry.body->bytes == 0 && entry.body->names == 1;
    if (!asCreated) code = ErrorCode::notOurs;
  }
  error = fakeError(code, "openat", path);
  if (error.failed()) return nullptr;
  return std::make_unique<FakeFillerFile>(files_, found->second.body, path);
}

Error FakeFillerDirectory::removeItem(const std::string& path) {
  const ErrorCode scripted = files_.script.arrive(FileCall::removeItem).code;
  files_.journal_.add("removeItem " + lastPart(path));
  if (scripted != ErrorCode::none) return fakeError(scripted, "unlinkat", path);
  const std::scoped_lock lock(files_.mutex_);
  if (mediumFault() != ErrorCode::none) return fakeError(mediumFault(), "unlinkat", path);
  const auto found = directory_->entries.find(lastPart(path));
  if (found == directory_->entries.end()) return fakeError(ErrorCode::notFound, "unlinkat", path);
  const bool takesSpace = found->second.kind == FakeEntryKind::regularFile && found->second.body->bytes != 0;
  if (takesSpace && !closed_ && kept_.size() >= files_.handleLimit_) {
    keptByName_[found->first] = found->second.body;
    return {};
  }
  keptByName_.erase(found->first);
  if (takesSpace && !closed_) kept_.push_back(found->second.body);
  --found->second.body->names;
  directory_->entries.erase(found);
  return {};
}

std::optional<std::uint64_t> FakeFillerDirectory::availableBytes() {
  if (!directory_->volume->tellsFreeSpace) return std::nullopt;
  return directory_->volume->disk.freeBytes();
}

std::uint64_t FakeFillerDirectory::bytesNotKept() const {
  const std::scoped_lock lock(files_.mutex_);
  return bytesNotKept_;
}

void FakeFillerDirectory::releaseSpace() {
  files_.script.arrive(FileCall::releaseSpace);
  files_.journal_.add("releaseSpace");
  const std::scoped_lock lock(files_.mutex_);
  cleanUpSteps_ += kept_.size();
  kept_.clear();
  releaseNames();
}

void FakeFillerDirectory::releaseNames() {
  cleanUpSteps_ += keptByName_.size();
  for (const auto& [name, body] : std::exchange(keptByName_, {})) {
    const auto found = directory_->entries.find(name);
    if (found == directory_->entries.end() || found->second.body != body) {
      bytesNotKept_ += body->bytes;
    } else {
      --body->names;
      directory_->entries.erase(found);
    }
  }
}

Error FakeFillerDirectory::remove() {
  const ErrorCode scripted = files_.script.arrive(FileCall::removeDirectory).code;
  files_.journal_.add("removeDirectory " + directory_->path);
  const std::scoped_lock lock(files_.mutex_);
  closed_ = true;
  const ErrorCode code = scripted != ErrorCode::none ? scripted : mediumFault();
  if (code != ErrorCode::none) return fakeError(code, "unlinkat", directory_->path);
  releaseNames();
  cleanUpSteps_ += directory_->entries.size();
  for (auto& [name, entry] : directory_->entries) {
    if (entry.body) --entry.body->names;
  }
  directory_->entries.clear();
  return fakeError(files_.forget(*directory_) ? ErrorCode::none : ErrorCode::notFound, "unlinkat", directory_->path);
}

FakeFillerFile::FakeFillerFile(FakeFiles& files, std::shared_ptr<FakeFileBody> body, std::string path)
    : files_(files), body_(std::move(body)), path_(std::move(path)), name_(lastPart(path_)) {}

FakeFillerFile::~FakeFillerFile() {
  files_.journal_.add("close " + name_);
}

WriteResult FakeFillerFile::pwrite(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) {
  const FaultScript::Verdict verdict = files_.script.arrive(FileCall::pwrite);
  files_.journal_.add("pwrite " + name_ + ' ' + std::to_string(bytes) + '@' + std::to_string(offset) + ' ' +
                      patternOf(data, bytes));
  if (body_->names == 0) ++body_->volume->writesWithoutName;
  ErrorCode code = verdict.code;
  if (code == ErrorCode::none && data == nullptr) code = ErrorCode::other;
  if (code == ErrorCode::none && !body_->volume->mounted) code = ErrorCode::gone;
  if (code == ErrorCode::none && body_->volume->readOnly) code = ErrorCode::readOnly;
  if (code != ErrorCode::none) return {-1, fakeError(code, "pwrite", path_)};
  return store(data, std::min(bytes, verdict.shortBytes.value_or(bytes)), offset);
}

WriteResult FakeFillerFile::store(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) {
  FakeDisk& disk = body_->volume->disk;
  const std::uint64_t end = offset + bytes;
  std::uint64_t room = body_->blocks.size() * FakeDisk::kBlockBytes;
  while (room < std::min(end, body_->volume->largestFile.load())) {
    const auto block = disk.allocate();
    if (!block) break;
    body_->blocks.push_back(*block);
    room += FakeDisk::kBlockBytes;
  }
  const std::uint64_t stored = std::min(end, room);
  if (stored <= offset && bytes > 0) return {-1, fakeError(ErrorCode::full, "pwrite", path_)};
  for (std::uint64_t at = offset; at < stored; at += FakeDisk::kBlockBytes) {
    disk.write(body_->blocks[static_cast<std::size_t>(at / FakeDisk::kBlockBytes)], data[at - offset]);
  }
  body_->bytes = std::max(body_->bytes, stored);
  return {static_cast<std::int64_t>(stored - offset), {}};
}

Error FakeFillerFile::fsync() {
  const ErrorCode scripted = files_.script.arrive(FileCall::fsync).code;
  files_.journal_.add("fsync " + name_);
  const ErrorCode medium = body_->volume->mounted ? ErrorCode::none : ErrorCode::gone;
  return fakeError(scripted != ErrorCode::none ? scripted : medium, "fsync", path_);
}

}  // namespace calvero::testing
