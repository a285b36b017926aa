#include "table/window/help/TableWriter.h"

#include <algorithm>

#include <QTextTable>

#include "table/window/help/ParagraphWriter.h"

namespace Parlino {
namespace {

using RichText::Cell;
using RichText::Row;
using RichText::Table;

constexpr int CloseEdges = 60;       // twips
constexpr int PageWidth = 560;       // pixels at zoom 1; a wider table takes the full width
constexpr int MostGridColumns = 60;  // nobody could read a table with more
constexpr int MostGridCells = 20'000;

// The right edges of the row's cells, each cell being wide enough to be visible.
std::vector<int> RightEdges(const Row& row) {
  std::vector<int> edges;
  int before = std::max(0, row.LeftEdge);
  for (const Cell& cell : row.Cells) {
    before = std::max(cell.RightEdge, before + CloseEdges);
    edges.push_back(before);
  }
  return edges;
}

QTextLength PartOfWidth(double part) {
  constexpr double whole = 100;
  return QTextLength(QTextLength::PercentageLength, whole * std::min(1.0, part));
}

QTextTableFormat TableFormat(const Table& table, double zoom, const std::vector<int>& edges) {
  const int left = std::ranges::min_element(table.Rows, {}, &Row::LeftEdge)->LeftEdge;
  const double width = edges.back() - left;
  QList<QTextLength> columns;
  int before = left;
  for (const int edge : edges) {
    columns.append(PartOfWidth((edge - before) / width));
    before = edge;
  }
  QTextTableFormat format;
  format.setWidth(PartOfWidth(width * LengthInPixels(1, zoom) / PageWidth));
  format.setColumnWidthConstraints(columns);
  format.setLeftMargin(std::max(0.0, LengthInPixels(left, zoom)));
  format.setTopMargin(6 * zoom);
  format.setBottomMargin(10 * zoom);
  format.setCellPadding(4 * zoom);
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

// A cell that spans several columns takes all of them but leaves one for each cell after it; the
// last cell also takes the remaining columns.
void WriteRow(const Row& row, int number, const std::vector<int>& edges, double zoom,
              QTextTable& grid) {
  const std::vector<int> rightEdges = RightEdges(row);
  int column = 0;
  for (std::size_t place = 0; place < row.Cells.size(); ++place) {
    const int lastColumn = grid.columns() - static_cast<int>(row.Cells.size() - place - 1);
    const auto covers = [&](int edge) {
      return edges[static_cast<std::size_t>(edge)] < rightEdges[place] + CloseEdges;
    };
    int end = column + 1;
    while (end < lastColumn && (place + 1 == row.Cells.size() || covers(end))) ++end;
    if (end > column + 1) grid.mergeCells(number, column, 1, end - column);
    WriteCell(row.Cells[place], zoom, grid.cellAt(number, column));
    column = end;
  }
}

}  // namespace

std::vector<int> ColumnEdges(const Table& table) {
  std::vector<int> all;
  for (const Row& row : table.Rows)
    for (const int edge : RightEdges(row)) all.push_back(edge);
  std::ranges::sort(all);
  std::vector<int> edges;
  for (const int edge : all)
    if (edges.empty() || edge - edges.back() >= CloseEdges) edges.push_back(edge);
  return edges;
}

bool FitsGrid(const Table& table) {
  const std::size_t columns = ColumnEdges(table).size();
  return columns <= MostGridColumns && table.Rows.size() * columns <= MostGridCells;
}

void WriteTable(const Table& table, double zoom, QTextCursor& cursor) {
  const std::vector<int> edges = ColumnEdges(table);
  QTextTable* grid =
      cursor.insertTable(static_cast<int>(table.Rows.size()), static_cast<int>(edges.size()),
                         TableFormat(table, zoom, edges));
  int number = 0;
  for (const Row& row : table.Rows) WriteRow(row, number++, edges, zoom, *grid);
}

}  // namespace Parlino
