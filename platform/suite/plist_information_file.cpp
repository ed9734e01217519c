#include "platform/suite/plist_information_file.h"

#include <plist/plist.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string_view>
#include <type_traits>

#include "platform/suite/plist_bounds.h"

namespace calvero {

namespace {

constexpr std::uint32_t kMaxFileBytes = 1U << 20U;

struct NodeDeleter {
  void operator()(void* node) const { ::plist_free(node); }
};
struct MemoryDeleter {
  void operator()(void* memory) const { std::free(memory); }
};
using Tree = std::unique_ptr<void, NodeDeleter>;
using Text = std::unique_ptr<char, MemoryDeleter>;
static_assert(std::is_same_v<plist_t, void*>);

/// The file's bytes; none when they cannot be read or are too many.
std::string contentOf(const std::string& path) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(path, ignored)) return {};  // a pipe would block
  std::ifstream file(path, std::ios::binary);
  std::string bytes(kMaxFileBytes + 1, '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(file.bad() ? 0 : static_cast<std::size_t>(file.gcount()));
  return bytes.size() > kMaxFileBytes ? std::string() : bytes;
}

Tree parsed(const std::string& bytes) {
  plist_t tree = nullptr;
  if (isModestPropertyList(bytes)) ::plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &tree);
  return Tree(tree);
}

/// The library's getter does not tell negative numbers from those beyond 2^63; its writer does.
std::optional<std::string> decimal(plist_t number) {
  constexpr std::string_view kOpening = "<integer>";
  char* written = nullptr;
  std::uint32_t bytes = 0;
  ::plist_to_xml(number, &written, &bytes);
  const Text owned(written);
  const std::string_view text(written == nullptr ? "" : written, bytes);
  const std::size_t opening = text.find(kOpening);
  if (opening == std::string_view::npos) return std::nullopt;
  const std::size_t begin = opening + kOpening.size();
  return std::string(text.substr(begin, text.find('<', begin) - begin));
}

std::optional<std::string> textOf(plist_t node) {
  const plist_type type = ::plist_get_node_type(node);
  if (type == PLIST_UINT) return decimal(node);
  char* text = nullptr;
  if (type == PLIST_STRING) ::plist_get_string_val(node, &text);
  const Text owned(text);
  return text == nullptr ? std::nullopt : std::optional<std::string>(text);
}

std::map<std::string, std::string> textEntries(plist_t dictionary) {
  std::map<std::string, std::string> entries;
  plist_dict_iter iterator = nullptr;
  ::plist_dict_new_iter(dictionary, &iterator);
  const std::unique_ptr<void, MemoryDeleter> owned(iterator);
  for (;;) {
    char* key = nullptr;
    plist_t value = nullptr;
    ::plist_dict_next_item(dictionary, iterator, &key, &value);
    const Text ownedKey(key);
    if (key == nullptr || value == nullptr) return entries;
    if (auto text = textOf(value)) entries.insert_or_assign(key, std::move(*text));
  }
}

}  // namespace

std::map<std::string, std::string> PlistInformationFile::read(const std::string& path) {
  const std::string bytes = contentOf(path);
  const Tree tree = parsed(bytes);
  if (!tree || ::plist_get_node_type(tree.get()) != PLIST_DICT) return {};
  return textEntries(tree.get());
}

}  // namespace calvero
