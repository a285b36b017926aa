#include "table/window/TextTable.h"

#include <algorithm>

#include <QTextTable>

#include "table/window/TextWriter.h"

namespace Parlino {
namespace {

using RichText::Cell;
using RichText::Row;
using RichText::Table;

constexpr int CloseEdges = 60;     // twips
constexpr int MostColumns = 60;    // a table with more is none that anybody could read
constexpr int MostCells = 20'000;  // of the grid, not only those that hold something

int RightEdge(const Cell& cell) {
  return std::clamp(cell.RightEdge, 0, LongestLength);
}

int LeftEdge(const Table& table) {
  const auto left = std::ranges::min_element(table.Rows, {}, &Row::LeftEdge);
  return std::clamp(left->LeftEdge, -LongestLength, LongestLength);
}

QTextLength PartOfWidth(double part) {
  constexpr double whole = 100;
  return QTextLength(QTextLength::PercentageLength, whole * std::min(1.0, part));
}

QTextTableFormat TableFormat(const Table& table, const Page& page, const std::vector<int>& edges) {
  const int left = LeftEdge(table);
  const double width = std::max(1.0, LengthInPixels(edges.back() - left, page.zoom));
  QList<QTextLength> columns;
  int before = left;
  for (const int edge : edges) {
    columns.append(PartOfWidth(LengthInPixels(edge - before, page.zoom) / width));
    before = edge;
  }
  QTextTableFormat format;
  format.setWidth(PartOfWidth(width / page.textWidth));
  format.setColumnWidthConstraints(columns);
  format.setLeftMargin(std::max(0.0, LengthInPixels(left, page.zoom)));
  format.setTopMargin(6 * page.zoom);
  format.setBottomMargin(10 * page.zoom);
  format.setCellPadding(4 * page.zoom);
  format.setCellSpacing(0);
  format.setBorder(table.HasBorders ? 1 : 0);
  format.setBorderCollapse(true);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderBrush(QColor(160, 152, 136));
  return format;
}

void WriteCell(const Cell& cell, double zoom, QTextTableCell place) {
  QTextCursor cursor = place.firstCursorPosition();
  bool isFirst = true;
  for (const RichText::Paragraph& paragraph : cell.Paragraphs) {
    if (!isFirst) cursor.insertBlock();
    isFirst = false;
    WriteParagraph(paragraph, zoom, cursor);
  }
  if (!cell.Ground) return;
  QTextCharFormat format = place.format();
  format.setBackground(QColor::fromRgb(*cell.Ground));
  place.setFormat(format);
}

// A cell that runs over several columns takes them all; the last one, those that are left as well.
void WriteRow(const Row& row, int number, const std::vector<int>& edges, double zoom,
              QTextTable& grid) {
  const int columns = grid.columns();
  int column = 0;
  for (const Cell& cell : row.Cells) {
    if (column == columns) return;
    int end = column + 1;
    const auto covers = [&](int edge) {
      return edges[static_cast<std::size_t>(edge)] < RightEdge(cell) + CloseEdges;
    };
    while (end < columns && (&cell == &row.Cells.back() || covers(end))) ++end;
    if (end > column + 1) grid.mergeCells(number, column, 1, end - column);
    WriteCell(cell, zoom, grid.cellAt(number, column));
    column = end;
  }
}

}  // namespace

std::vector<int> ColumnEdges(const Table& table) {
  std::vector<int> all;
  for (const Row& row : table.Rows)
    for (const Cell& cell : row.Cells) all.push_back(RightEdge(cell));
  std::ranges::sort(all);
  std::vector<int> edges;
  for (const int edge : all)
    if (edges.empty() || edge - edges.back() >= CloseEdges) edges.push_back(edge);
  return edges;
}

bool FitsGrid(const Table& table) {
  const std::size_t columns = ColumnEdges(table).size();
  return columns > 0 && columns <= MostColumns && table.Rows.size() * columns <= MostCells;
}

void WriteTable(const Table& table, const Page& page, QTextCursor& cursor) {
  const std::vector<int> edges = ColumnEdges(table);
  QTextTable* grid =
      cursor.insertTable(static_cast<int>(table.Rows.size()), static_cast<int>(edges.size()),
                         TableFormat(table, page, edges));
  int number = 0;
  for (const Row& row : table.Rows) WriteRow(row, number++, edges, page.zoom, *grid);
}

}  // namespace Parlino
