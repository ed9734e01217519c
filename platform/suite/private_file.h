#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace calvero {

/// What stands at a path, links followed.
enum class Place { nothing, file, somethingElse, unknown };
Place placeAt(const std::string& path);

/// Where the file at `path` really is, and with it the journals that others keep beside it; `path` when it is nowhere.
std::string withoutLinks(const std::string& path);

/// The bytes of the file at `path`, 0 when there is none.
std::uint64_t fileBytes(const std::string& path);

/// Makes a file that nobody but the user can read, with the missing folders above it. It appears at `path` complete, as
/// `fill` leaves it, or not at all; `fill` gets the path of the empty file that it fills, and whatever it throws is
/// passed on. When a file is there already, it stays as it is. On a file system without hard links it appears empty.
/// Throws std::system_error.
void makePrivateFile(const std::string& path, const std::function<void(const std::string&)>& fill);

}  // namespace calvero
