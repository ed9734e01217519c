#pragma once

#include <memory>
#include <optional>
#include <string>

namespace calvero {

class AsioEventLoop;

/// What a person types, line by line. Event loop thread.
class LineInput {
 public:
  LineInput(AsioEventLoop& loop, int descriptor) : loop_(loop), descriptor_(descriptor) {}

  [[nodiscard]] bool isTerminal() const;

  /// Waits for the next line and returns it without its end; other events go on being served meanwhile. Nothing at the
  /// end of input, when interrupted, and when the loop ends. An incomplete last line counts as none. A signal that came
  /// before the line is served before it is returned, so that Ctrl-C wins over an Enter that follows.
  std::optional<std::string> readLine();

  [[nodiscard]] bool isReading() const { return isReading_; }
  /// Ends the reading under way; from now on there is no line any more.
  void interrupt();

 private:
  struct Reading;

  [[nodiscard]] std::optional<std::string> nextLine();
  [[nodiscard]] bool readMore();

  AsioEventLoop& loop_;
  const int descriptor_;
  std::string typed_;  // what has been read beyond the lines handed out
  std::shared_ptr<Reading> reading_;
  bool isReading_ = false;
  bool interrupted_ = false;
};

}  // namespace calvero
