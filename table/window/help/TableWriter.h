// Writes tables into a document of the toolkit's.
#pragma once

#include <vector>

#include <QTextCursor>

#include "richtext/RichText.h"

namespace Parlino {

// Whether a grid can hold the table: beyond a useful size it would cost memory out of proportion.
bool FitsGrid(const RichText::Table& table);

// Puts a table that fits a grid behind the paragraph that the cursor stands in. The cursor ends
// inside it.
void WriteTable(const RichText::Table& table, double zoom, QTextCursor& cursor);

// The right edges of the columns that all rows of the table share, in twips and rising. Edges that
// are so close that they were meant to be one are one.
std::vector<int> ColumnEdges(const RichText::Table& table);

}  // namespace Parlino
