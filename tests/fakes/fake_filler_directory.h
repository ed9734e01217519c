#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ports/files.h"
#include "tests/fakes/fake_files.h"

namespace calvero::testing {

/// An error of the in-memory file manager; success for `none`.
Error fakeError(ErrorCode code, const std::string& operation, const std::string& path);

/// A run's filler directory in memory.
class FakeFillerDirectory : public FillerDirectory {
 public:
  FakeFillerDirectory(FakeFiles& files, std::shared_ptr<FakeDirectory> directory);
  ~FakeFillerDirectory() override;

  Error createEmptyFile(const std::string& path) override;
  bool exists(const std::string& path) override;
  Error readAttributes(const std::string& path) override;
  std::unique_ptr<FillerFile> openForWriting(const std::string& path, Error& error) override;
  Error removeItem(const std::string& path) override;
  std::optional<std::uint64_t> availableBytes() override;
  [[nodiscard]] std::uint64_t bytesNotKept() const override;
  void releaseSpace() override;
  [[nodiscard]] std::uint64_t cleanUpSteps() const override { return cleanUpSteps_; }
  Error remove() override;

 private:
  [[nodiscard]] ErrorCode mediumFault() const;
  void releaseNames();  // under the lock of the files

  FakeFiles& files_;
  std::shared_ptr<FakeDirectory> directory_;
  std::vector<std::shared_ptr<FakeFileBody>> kept_;                  // removed files whose space stays taken
  std::map<std::string, std::shared_ptr<FakeFileBody>> keptByName_;  // written files that stay for want of handles
  std::uint64_t bytesNotKept_ = 0;
  bool closed_ = false;
  std::atomic<std::uint64_t> cleanUpSteps_{0};
};

/// One open file in memory.
class FakeFillerFile : public FillerFile {
 public:
  FakeFillerFile(FakeFiles& files, std::shared_ptr<FakeFileBody> body, std::string path);
  ~FakeFillerFile() override;

  WriteResult pwrite(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset) override;
  Error fsync() override;

 private:
  [[nodiscard]] WriteResult store(const std::uint8_t* data, std::size_t bytes, std::uint64_t offset);

  FakeFiles& files_;
  std::shared_ptr<FakeFileBody> body_;
  const std::string path_;
  const std::string name_;
};

}  // namespace calvero::testing
