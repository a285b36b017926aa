// Writes tables into a Qt document.
#pragma once

#include <vector>

#include <QTextCursor>

#include "richtext/RichText.h"

namespace Parlino {

// Whether a grid can hold the table: beyond a useful size it would cost too much memory.
bool FitsGrid(const RichText::Table& table);

// Inserts a table that fits a grid after the paragraph that the cursor is in. The cursor ends up
// inside the table.
void WriteTable(const RichText::Table& table, double zoom, QTextCursor& cursor);

// The right edges of the columns that all rows of the table share, in twips and ascending. Edges
// that are close enough to be meant as one are merged.
std::vector<int> ColumnEdges(const RichText::Table& table);

}  // namespace Parlino
