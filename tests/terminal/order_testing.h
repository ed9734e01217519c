#pragma once

// The tests of this folder write "testing" for Google Test's namespace. Where one source includes the project's own
// namespace of that name, those that are compiled as one with it must still find what they mean.
namespace testing {}
namespace calvero::testing {
using namespace ::testing;
}
