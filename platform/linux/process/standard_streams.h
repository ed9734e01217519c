#pragma once

#include <chrono>
#include <string_view>

namespace calvero {

/// Takes the places of the standard streams that the process was started without, before a file of a run gets one of
/// them and is written into as if it were the terminal. Reading and writing there go on failing.
void occupyStandardStreams();

constexpr int kNobodyReads = -1;

/// Longer than any reader that is at work is silent; after it, an ending program has waited long enough.
constexpr std::chrono::seconds kReaderTimeout{10};

/// Writes all of `text`: 0, or the system's number of the failure, or kNobodyReads where no more is taken for
/// `timeout`. A reader that takes some of it now and then gets all of it. Waits for a terminal for ever: a person has
/// stopped it. Any thread.
int writeAll(int descriptor, std::string_view text, std::chrono::milliseconds timeout);

/// Whether something can be written at once. Any thread.
bool isReadyForText(int descriptor);

}  // namespace calvero
