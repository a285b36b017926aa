#include "tests/support/Rows.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace Parlino {
namespace {

std::string TakeCell(std::string_view cell) {
  constexpr int hexadecimal = 16;
  while (cell.starts_with(' ')) cell.remove_prefix(1);
  while (cell.ends_with(' ')) cell.remove_suffix(1);
  std::string text;
  for (std::size_t place = 0; place < cell.size(); ++place) {
    if (cell[place] != '%') {
      text += cell[place];
      continue;
    }
    text += static_cast<char>(std::stoi(std::string(cell.substr(place + 1, 2)), {}, hexadecimal));
    place += 2;
  }
  return text;
}

std::vector<std::string> SplitRow(std::string_view row, std::string_view separator) {
  std::vector<std::string> cells;
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = row.find(separator);
    cells.push_back(TakeCell(row.substr(0, end)));
    row.remove_prefix(end == std::string_view::npos ? row.size() : end + separator.size());
  }
  return cells;
}

}  // namespace

std::vector<Row> ReadRows(const std::string& file, std::string_view kind,
                          std::string_view separator) {
  std::ifstream text(PARLINO_SOURCE_FOLDER "/tests/" + file);
  std::vector<std::string> heads;
  std::vector<Row> rows;
  for (std::string line; std::getline(text, line);) {
    const std::vector<std::string> cells = SplitRow(line, separator);
    if (cells.size() < 2 || cells.front() != kind) continue;
    if (heads.empty()) {
      heads = cells;
      continue;
    }
    Row row;
    for (std::size_t cell = 0; cell < heads.size(); ++cell) row[heads[cell]] = cells.at(cell);
    rows.push_back(row);
  }
  if (rows.empty()) throw std::runtime_error("no rows of " + std::string(kind) + " in " + file);
  return rows;
}

std::string ReadText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace Parlino
