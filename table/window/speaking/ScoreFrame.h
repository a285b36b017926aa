// The frame that shows what each seat and team has bid and made.
#pragma once

#include "table/window/painting/CaptionLabel.h"
#include "table/window/painting/FrameBox.h"

namespace Parlino {

// One text of the frame: headings in row 0, names of the rows in column 0, counts elsewhere.
class ScoreCell : public CaptionLabel {
 public:
  ScoreCell(int row, int column, const LabelLook& look, QWidget* parent)
      : CaptionLabel(look, parent), row(row), column(column) {}

  const int row;
  const int column;
};

class ScoreFrame : public FrameBox {
 public:
  static constexpr int Rows = 6;
  static constexpr int Columns = 2;

  using FrameBox::FrameBox;

  ScoreCell* AddCell(int row, int column, const LabelLook& look) {
    return cells_[row][column] = new ScoreCell(row, column, look, this);
  }
  // Row 0..6, column 0..2; there is no cell in the corner between the headings.
  [[nodiscard]] ScoreCell* Cell(int row, int column) const { return cells_[row][column]; }

 private:
  ScoreCell* cells_[Rows + 1][Columns + 1] = {};
};

}  // namespace Parlino
