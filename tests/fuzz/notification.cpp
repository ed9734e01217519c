#include <fuzzer/FuzzedDataProvider.h>
#include <sdbus-c++/sdbus-c++.h>

#include <algorithm>
#include <vector>

#include "platform/dbus/notification_signal.h"
#include "tests/fuzz/fuzzing.h"

namespace sdbus {
PlainMessage createPlainMessage();  // part of the library, not of its headers; needs no bus
}

namespace calvero::fuzzing {
namespace {

constexpr std::size_t kMaxText = 300;
constexpr int kMaxArguments = 8;
constexpr int kMaxDepth = 3;

/// Appends arguments that the input chooses, and notes what they are.
class Sender {
 public:
  Sender(FuzzedDataProvider& input, sdbus::Message& message) : input_(input), message_(message) {}

  void appendArguments() {
    for (int left = input_.ConsumeIntegralInRange(0, kMaxArguments); left > 0; --left) append(0);
  }
  /// Two texts and nothing else.
  [[nodiscard]] bool isNotification() const { return texts_.size() == 2 && !others_; }
  [[nodiscard]] Notification notification() const { return {.name = texts_.at(0), .object = texts_.at(1)}; }

 private:
  enum class Kind {
    text,
    number,
    wide,
    real,
    yesOrNo,
    path,
    signature,
    variant,
    array,
    structure,
    kMaxValue = structure
  };

  void append(int depth) {
    const Kind kind = input_.ConsumeEnum<Kind>();
    if (kind == Kind::text) return appendText(depth);
    appendOther(kind, depth);
    others_ = true;
  }

  void appendText(int depth) {
    // A message's text ends at its first NUL.
    const std::string text = input_.ConsumeRandomLengthString(kMaxText).c_str();
    message_ << text;
    if (depth == 0) texts_.push_back(text);
  }

  void appendOther(Kind kind, int depth) {
    switch (kind) {
      case Kind::number:
        message_ << input_.ConsumeIntegral<std::int32_t>();
        break;
      case Kind::wide:
        message_ << input_.ConsumeIntegral<std::uint64_t>();
        break;
      case Kind::real:
        message_ << input_.ConsumeFloatingPoint<double>();
        break;
      case Kind::yesOrNo:
        message_ << input_.ConsumeBool();
        break;
      case Kind::path:
        message_ << sdbus::ObjectPath(input_.ConsumeRandomLengthString(kMaxText));
        break;
      case Kind::signature:
        message_ << sdbus::Signature(input_.ConsumeRandomLengthString(kMaxText));
        break;
      default:
        appendContainer(kind, depth);
    }
  }

  /// Of any signature, and filled with whatever comes: the library refuses what does not fit.
  void appendContainer(Kind kind, int depth) {
    if (depth == kMaxDepth) return;
    const std::string signature = input_.ConsumeRandomLengthString(8);
    if (kind == Kind::variant) {
      message_.openVariant(signature);
      append(depth + 1);
      message_.closeVariant();
    } else if (kind == Kind::array) {
      message_.openContainer(signature);
      for (int left = input_.ConsumeIntegralInRange(0, kMaxArguments); left > 0; --left) append(depth + 1);
      message_.closeContainer();
    } else {
      message_.openStruct(signature);
      for (int left = input_.ConsumeIntegralInRange(0, kMaxArguments); left > 0; --left) append(depth + 1);
      message_.closeStruct();
    }
  }

  FuzzedDataProvider& input_;
  sdbus::Message& message_;
  std::vector<std::string> texts_;
  bool others_ = false;
};

void receive(FuzzedDataProvider& input) {
  sdbus::PlainMessage message = sdbus::createPlainMessage();
  Sender sender(input, message);
  try {
    sender.appendArguments();
    message.seal();
  } catch (const sdbus::Error&) {
    return;  // no message that a bus would pass on
  }
  const auto read = readNotification(message);
  require(read.has_value() == sender.isNotification(), "a notification is two texts and nothing else");
  require(!read || *read == sender.notification(), "the texts arrive as they were sent");
}

void writeRule(FuzzedDataProvider& input) {
  constexpr std::size_t kMaxRule = 1024;
  Notification wanted;
  wanted.name = input.ConsumeRandomLengthString(kMaxText);
  wanted.object = input.ConsumeRandomLengthString(kMaxText);
  const std::string rule = matchRule(wanted);
  require(rule.size() <= kMaxRule, "no bus refuses a rule for its length");
  require(std::ranges::count(rule, '\'') % 2 == 0, "each quote is closed");
  const auto isPlain = [](char letter) { return letter >= ' ' && letter <= '~' && letter != '\\'; };
  require(std::ranges::all_of(rule, isPlain), "a rule is plain text");
}

}  // namespace
}  // namespace calvero::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t bytes) {
  FuzzedDataProvider input(data, bytes);
  calvero::fuzzing::receive(input);
  calvero::fuzzing::writeRule(input);
  return 0;
}
