#include "terminal/commands/wipe_wizard.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "terminal/asio_event_loop.h"
#include "terminal/line_input.h"
#include "terminal/output.h"
#include "tests/ten_methods.h"

namespace calvero {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using testing::tenMethods;

std::array<int, 2> newPipe(int flags) {
  std::array<int, 2> ends{};
  EXPECT_EQ(::pipe2(ends.data(), flags), 0);
  return ends;
}

/// A person who has typed everything beforehand.
class AskForMethod : public ::testing::Test {
 protected:
  ~AskForMethod() override {
    for (const int end : {in_[0], in_[1], out_[0], out_[1]}) ::close(end);
  }

  std::optional<std::int32_t> answer(const std::string& typed, MethodCatalogue methods) {
    Output(in_[1]).write(typed);
    return askForMethod(Output(out_[1]), input_, methods);
  }
  [[nodiscard]] std::string shown() const {
    std::array<char, 8192> text{};
    const ssize_t bytes = ::read(out_[0], text.data(), text.size());
    return {text.data(), static_cast<std::size_t>(std::max<ssize_t>(bytes, 0))};
  }

 private:
  const std::array<int, 2> in_ = newPipe(0);
  const std::array<int, 2> out_ = newPipe(O_NONBLOCK);
  AsioEventLoop loop_;
  LineInput input_{loop_, in_[0]};
};

TEST_F(AskForMethod, OffersEveryRowOfItsCatalogueByNumberAndWord) {
  EXPECT_EQ(answer("10\n", tenMethods()), 9);
  EXPECT_THAT(shown(), HasSubstr("10  twice"));
  EXPECT_EQ(answer("twice\n", tenMethods()), 9);
}

TEST_F(AskForMethod, AsksAgainForWhatIsNoneOfItsCatalogue) {
  EXPECT_EQ(answer("10\n9\n", kMethodCatalogue), 8);
  EXPECT_THAT(shown(), AllOf(HasSubstr("9  gutmann-dod"), HasSubstr("Please type a number or a word of the list.")));
}

TEST_F(AskForMethod, TakesTheFirstForEnterAlone) {
  EXPECT_EQ(answer("\n", tenMethods()), 0);
}

}  // namespace
}  // namespace calvero
