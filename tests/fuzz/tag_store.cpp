#include "platform/suite/tag_database.h"
#include "tests/fuzz/fuzzing.h"

namespace calvero::fuzzing {
namespace {

constexpr const char* kTag = "cvrOnline";
constexpr const char* kOtherTag = "cvrStatus";
constexpr const char* kWritten = "done";

/// What the input's first byte makes of the rest.
enum class Form : std::uint8_t {
  wholeFile,
  behindHeader,  ///< all that follows the header of a store
  changes,       ///< to a store, byte by byte: two bytes tell where, one what
  log,           ///< the write-ahead log beside a store
  journal,       ///< the rollback journal beside one
  kForms,
};

/// The store's place, with what another program may have left there.
class StorePlace {
 public:
  StorePlace() : path_(folder_.path() + "/tags.sqlite") {
    require(writeTags(path_, {{kTag, "1"}, {"cvrDrive", "BACKUP"}, {"cvrAlgo", "5"}}).state == StoreState::fine,
            "a store can be made");
    store_ = bytesOf(path_);
  }

  [[nodiscard]] const std::string& path() const { return path_; }

  void lay(Form form, std::string_view bytes) const {
    for (const char* companion : {"-wal", "-shm", "-journal"}) std::filesystem::remove(path_ + companion);
    putBytes(path_, file(form, bytes));
    if (form == Form::log) putBytes(path_ + "-wal", bytes);
    if (form == Form::journal) putBytes(path_ + "-journal", bytes);
  }

 private:
  [[nodiscard]] std::string file(Form form, std::string_view bytes) const {
    switch (form) {
      case Form::wholeFile:
        return std::string(bytes);
      case Form::behindHeader:
        return wholePages(store_.substr(0, kHeaderBytes).append(bytes));
      case Form::changes:
        return changed(bytes);
      default:
        return store_;
    }
  }

  static std::string wholePages(std::string bytes) {
    constexpr std::size_t kPageBytes = 4096;
    bytes.resize((bytes.size() + kPageBytes - 1) / kPageBytes * kPageBytes);
    return bytes;
  }

  [[nodiscard]] std::string changed(std::string_view changes) const {
    std::string bytes = store_;
    for (; changes.size() >= 3; changes.remove_prefix(3)) {
      const std::size_t high = static_cast<unsigned char>(changes[0]);
      const std::size_t low = static_cast<unsigned char>(changes[1]);
      bytes.at((high << 8U | low) % bytes.size()) = changes[2];
    }
    return bytes;
  }

  static constexpr std::size_t kHeaderBytes = 100;

  const testing::ScopedFolder folder_;
  const std::string path_;
  std::string store_;
};

void requireSane(const TagReading& reading) {
  if (!reading.value) return;
  require(reading.outcome.state == StoreState::fine, "only a store that is fine holds tags");
  require(reading.value->size() <= kMaxValueBytes, "a value is within its bounds");
  require(reading.value->find('\0') == std::string::npos, "a value is a text");
}

void readAndWrite(const std::string& path, Form form) {
  const std::string before = bytesOf(path);
  const TagReading reading = readTag(path, kTag);
  requireSane(reading);
  // What an interrupted transaction left is taken back before anything can be looked at.
  const bool stays = form != Form::journal;
  if (stays && reading.outcome.state == StoreState::leftAlone) {
    require(bytesOf(path) == before, "reading leaves alone what is no store");
  }
  const StoreOutcome outcome = writeTags(path, {{kOtherTag, kWritten}});
  if (stays && outcome.state == StoreState::leftAlone) {
    require(bytesOf(path) == before, "writing leaves alone what is no store");
  }
  if (outcome.state != StoreState::fine) return;
  const TagReading written = readTag(path, kOtherTag);
  require(written.value == kWritten, "what was written can be read");
}

}  // namespace
}  // namespace calvero::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t bytes) {
  using namespace calvero::fuzzing;
  static const StorePlace place;
  if (bytes == 0) return 0;
  const auto form = static_cast<Form>(data[0] % static_cast<std::uint8_t>(Form::kForms));
  place.lay(form, textOf(data + 1, bytes - 1));
  readAndWrite(place.path(), form);
  return 0;
}
