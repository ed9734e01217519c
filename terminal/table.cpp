#include "terminal/table.h"

#include <algorithm>

#include "terminal/text.h"

namespace calvero {
namespace {

std::string padded(const std::string& cell, std::size_t width, Align align) {
  const std::string blanks(width - columnsOf(cell), ' ');
  return align == Align::right ? blanks + cell : cell + blanks;
}

}  // namespace

std::string table(const std::vector<Column>& columns, const std::vector<std::vector<std::string>>& rows) {
  std::vector<std::string> headings;
  for (const Column& column : columns) headings.push_back(column.heading);
  std::vector<std::vector<std::string>> all{headings};
  all.insert(all.end(), rows.begin(), rows.end());

  std::vector<std::size_t> widths(columns.size());
  for (const auto& row : all) {
    for (std::size_t at = 0; at < columns.size(); ++at) widths[at] = std::max(widths[at], columnsOf(row[at]));
  }
  std::string text;
  for (const auto& row : all) {
    std::string line;
    for (std::size_t at = 0; at < columns.size(); ++at) {
      line += (at == 0 ? "" : "  ") + padded(row[at], widths[at], columns[at].align);
    }
    text += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
  }
  return text;
}

}  // namespace calvero
