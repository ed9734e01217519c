#include "tests/fakes/fake_files.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <utility>

#include "tests/fakes/fake_filler_directory.h"

namespace calvero::testing {

FakeFileBody::~FakeFileBody() {
  for (const std::size_t block : blocks) volume->disk.release(block);
}

Error fakeError(ErrorCode code, const std::string& operation, const std::string& path) {
  if (code == ErrorCode::none) return {};
  return {code, operation, path, "as the test has it"};
}

FakeVolume& FakeFiles::addVolume(const std::string& mountPath, std::uint64_t freeBytes) {
  const std::scoped_lock lock(mutex_);
  return *(volumes_[mountPath] = std::make_shared<FakeVolume>(freeBytes));
}

void FakeFiles::addDirectory(const std::string& mountPath, const std::string& path) {
  const std::scoped_lock lock(mutex_);
  auto directory = std::make_shared<FakeDirectory>();
  directory->volume = volumes_.at(mountPath);
  directory->path = path;
  directories_[path] = std::move(directory);
}

void FakeFiles::addForeignDirectory(const std::string& mountPath, const std::string& path) {
  addDirectory(mountPath, path);
  const std::scoped_lock lock(mutex_);
  directories_.at(path)->ours = false;
}

void FakeFiles::addEntry(const std::string& directoryPath, const std::string& name, FakeEntryKind kind,
                         std::uint64_t bytes) {
  const std::scoped_lock lock(mutex_);
  FakeDirectory& directory = *directories_.at(directoryPath);
  auto body = std::make_shared<FakeFileBody>(directory.volume);
  body->bytes = bytes;
  while (body->blocks.size() * FakeDisk::kBlockBytes < bytes) {
    const auto block = directory.volume->disk.allocate();
    if (!block) throw std::length_error("the volume is too small for " + name);
    body->blocks.push_back(*block);
  }
  directory.entries[name] = {kind, std::move(body)};
}

void FakeFiles::addHardLink(const std::string& directoryPath, const std::string& existing, const std::string& name) {
  const std::scoped_lock lock(mutex_);
  auto& entries = directories_.at(directoryPath)->entries;
  FakeEntry entry = entries.at(existing);
  ++entry.body->names;
  entries[name] = std::move(entry);
}

void FakeFiles::removeFromOutside(const std::string& directoryPath, const std::string& name) {
  const std::scoped_lock lock(mutex_);
  if (directories_.at(directoryPath)->entries.erase(name) == 0) throw std::out_of_range("no entry " + name);
}

void FakeFiles::renameFromOutside(const std::string& directoryPath, const std::string& newPath) {
  const std::scoped_lock lock(mutex_);
  auto directory = std::move(directories_.at(directoryPath));
  directories_.erase(directoryPath);
  directories_[newPath] = std::move(directory);
}

bool FakeFiles::directoryExists(const std::string& path) const {
  const std::scoped_lock lock(mutex_);
  return directories_.contains(path);
}

Steps FakeFiles::names(const std::string& directoryPath) const {
  const std::scoped_lock lock(mutex_);
  Steps found;
  for (const auto& [name, entry] : directories_.at(directoryPath)->entries) found.push_back(name);
  return found;
}

std::optional<std::uint64_t> FakeFiles::bytesOf(const std::string& directoryPath, const std::string& name) const {
  const std::scoped_lock lock(mutex_);
  const auto& entries = directories_.at(directoryPath)->entries;
  const auto found = entries.find(name);
  if (found == entries.end() || found->second.kind != FakeEntryKind::regularFile) return std::nullopt;
  return found->second.body->bytes;
}

bool FakeFiles::exists(const std::string& path) {
  script.arrive(FileCall::volumeExists);
  journal_.add("exists " + path);
  const std::scoped_lock lock(mutex_);
  const auto found = volumes_.find(path);
  return found != volumes_.end() && found->second->mounted;
}

ErrorCode FakeFiles::obstacle(const std::string& volumePath, const std::string& directoryPath) const {
  const auto volume = volumes_.find(volumePath);
  if (volume == volumes_.end() || !volume->second->mounted) return ErrorCode::notFound;
  if (volume->second->readOnly) return ErrorCode::readOnly;
  const auto directory = directories_.find(directoryPath);
  if (directory == directories_.end()) return ErrorCode::none;
  if (!directory->second->ours) return ErrorCode::notOurs;
  return directory->second->locked ? ErrorCode::busy : ErrorCode::none;
}

Error FakeFiles::checkFillerDirectory(const std::string& volumePath, const std::string& directoryPath) {
  const ErrorCode scripted = script.arrive(FileCall::checkDirectory).code;
  journal_.add("checkDirectory " + directoryPath);
  const std::scoped_lock lock(mutex_);
  return fakeError(scripted != ErrorCode::none ? scripted : obstacle(volumePath, directoryPath), "check",
                   directoryPath);
}

std::unique_ptr<FillerDirectory> FakeFiles::createFillerDirectory(const std::string& volumePath,
                                                                  const std::string& directoryPath, Error& error) {
  const ErrorCode scripted = script.arrive(FileCall::createDirectory).code;
  journal_.add("createDirectory " + directoryPath);
  const std::scoped_lock lock(mutex_);
  error =
      fakeError(scripted != ErrorCode::none ? scripted : obstacle(volumePath, directoryPath), "mkdir", directoryPath);
  if (error.failed()) return nullptr;
  auto& directory = directories_[directoryPath];
  if (!directory) directory = std::make_shared<FakeDirectory>();
  directory->volume = volumes_.at(volumePath);
  directory->path = directoryPath;
  directory->locked = true;
  directory->entries.clear();
  return std::make_unique<FakeFillerDirectory>(*this, directory);
}

Error FakeFiles::removeFillerDirectory(const std::string& volumePath, const std::string& directoryPath) {
  const ErrorCode scripted = script.arrive(FileCall::removeLeftDirectory).code;
  journal_.add("removeLeftDirectory " + directoryPath);
  const std::scoped_lock lock(mutex_);
  ErrorCode code = scripted != ErrorCode::none ? scripted : obstacle(volumePath, directoryPath);
  if (code == ErrorCode::none && directories_.erase(directoryPath) == 0) code = ErrorCode::notFound;
  return fakeError(code, "rmdir", directoryPath);
}

bool FakeFiles::isAtItsPath(const FakeDirectory& directory) const {
  const auto found = directories_.find(directory.path);
  return found != directories_.end() && found->second.get() == &directory;
}

bool FakeFiles::forget(const FakeDirectory& directory) {
  return std::erase_if(directories_, [&](const auto& entry) { return entry.second.get() == &directory; }) != 0;
}

}  // namespace calvero::testing
