// Builds the row of a table from its plan and the paragraphs of its cells. The plan stays in force
// for the following rows until a new one begins.
#pragma once

#include <optional>
#include <vector>

#include "richtext/HeaderTables.h"
#include "richtext/RichText.h"
#include "richtext/Words.h"

namespace Parlino::RichText {

class RowBuilder {
 public:
  explicit RowBuilder(const HeaderTables& tables) : tables_(tables) {}

  // Changes the plan as the word says; words that do not belong to the plan are ignored.
  void ChangePlan(const ControlWord& word, std::optional<int> number);

  void AddParagraph(Paragraph paragraph);
  void EndCell();

  // The cells ended so far, and the current one if it holds anything. Cells beyond the plan get
  // edges of their own; planned cells without content are left out.
  Row Take();

  // Whether a plan was begun since the last row was taken, and whether there is one at all.
  [[nodiscard]] bool IsBegun() const { return isBegun_; }
  [[nodiscard]] bool HasPlan() const { return !plan_.empty(); }
  [[nodiscard]] bool HasContent() const { return !contents_.empty() || !paragraphs_.empty(); }
  [[nodiscard]] bool HasBorders() const { return hasBorders_ || isBordered_; }

 private:
  struct PlannedCell {
    int RightEdge = 0;
    std::optional<Colour> Ground;
    bool IsMerged = false;  // with the cell on its left
  };

  void PlanCell(int rightEdge);

  const HeaderTables& tables_;
  int leftEdge_ = 0;
  std::vector<PlannedCell> plan_;
  PlannedCell next_;
  bool isBegun_ = false;
  bool hasBorders_ = false;
  bool isBordered_ = false;  // by the last border named, unless a later word removes it
  std::vector<std::vector<Paragraph>> contents_;
  std::vector<Paragraph> paragraphs_;  // of the current cell
};

}  // namespace Parlino::RichText
