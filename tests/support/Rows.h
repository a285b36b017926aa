// Tables of cases, kept as text beside the tests.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Parlino {

using Row = std::map<std::string, std::string>;  // cells by the heads of their columns

// The rows of tests/`file` whose first cell is `kind`; the first of them has the heads. Blanks
// around a cell are not part of it, and %0A is the byte with that number. Raises when there is no
// such row or one has too few cells.
std::vector<Row> ReadRows(const std::string& file, std::string_view kind,
                          std::string_view separator = "|");

// All of a file, and nothing when it cannot be read.
std::string ReadText(const std::string& path);

}  // namespace Parlino
