#pragma once

#include <optional>
#include <string>

namespace calvero {

/// The first of the folders, links and files on the way to the absolute path `path`, itself included, that somebody
/// else than root can change or replace; nothing where all of them that exist are root's alone. What cannot be looked
/// at counts as changeable. In a sticky folder such as /tmp everybody can add, but nobody can replace root's entries.
std::optional<std::string> changeableByOthers(const std::string& path);

/// The first link on the way to `path`, itself included, that belongs neither to root nor to this process's user.
std::optional<std::string> linkOfAnother(const std::string& path);

}  // namespace calvero
