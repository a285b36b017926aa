#include "table/window/help/DocumentWriter.h"

#include <QTextBlock>
#include <QTextDocument>

#include "table/window/help/ParagraphWriter.h"
#include "table/window/help/TableWriter.h"
#include "table/window/painting/Design.h"

namespace Parlino {
namespace {

using RichText::Paragraph;
using RichText::Table;

// A table needs a paragraph before and after it; an empty one should take up no room.
void ShrinkEmptyBlock(QTextCursor& cursor) {
  QTextBlockFormat format;
  format.setLineHeight(1, QTextBlockFormat::FixedHeight);
  cursor.setBlockFormat(format);
}

Paragraph NoteOfCut() {
  RichText::Run run;
  run.Look.Italic = true;
  run.Text.append("The document goes on, but no more of it is shown here.");
  Paragraph note;
  note.Runs.push_back(run);
  return note;
}

class DocumentWriter {
 public:
  DocumentWriter(double zoom, QTextDocument& target) : zoom_(zoom), cursor_(&target) {}

  void Write(const Paragraph& paragraph) {
    if (!isBlockFree_) cursor_.insertBlock();
    WriteParagraph(paragraph, zoom_, cursor_);
    isBlockFree_ = false;
  }

  void Write(const Table& table) {
    if (!FitsGrid(table)) return WriteAsText(table);
    if (isBlockFree_) ShrinkEmptyBlock(cursor_);
    WriteTable(table, zoom_, cursor_);
    cursor_.movePosition(QTextCursor::End);
    isBlockFree_ = true;
  }

  void Write(const RichText::Document& source) {
    cursor_.beginEditBlock();  // the layout is done once, at the end
    for (const RichText::Block& block : source.Blocks)
      std::visit([this](const auto& content) { Write(content); }, block);
    if (source.IsCut) Write(NoteOfCut());
    if (isBlockFree_) ShrinkEmptyBlock(cursor_);
    cursor_.endEditBlock();
  }

 private:
  // A table too large for a grid is written as text, one cell below the other.
  void WriteAsText(const Table& table) {
    for (const RichText::Row& row : table.Rows)
      for (const RichText::Cell& cell : row.Cells)
        for (const Paragraph& paragraph : cell.Paragraphs) Write(paragraph);
  }

  double zoom_;
  QTextCursor cursor_;
  bool isBlockFree_ = true;  // whether the cursor is in a paragraph that has not been written yet
};

}  // namespace

void WriteDocument(const RichText::Document& source, double zoom, QTextDocument& target) {
  target.clear();
  target.setUndoRedoEnabled(false);
  DocumentWriter(zoom, target).Write(source);
}

}  // namespace Parlino
