#pragma once

#include <string>
#include <vector>

namespace calvero {

enum class Align { left, right };

struct Column {
  std::string heading;
  Align align = Align::left;
};

/// Lines of aligned columns with their headings, without blanks at their ends. Every row has a cell for each column.
std::string table(const std::vector<Column>& columns, const std::vector<std::vector<std::string>>& rows);

}  // namespace calvero
