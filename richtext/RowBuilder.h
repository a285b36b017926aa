// Puts the row of a table together from its plan and from the paragraphs of its cells. The plan
// stays for the following rows until a new one is begun.
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

  // Changes the plan as the word says; words that are none of the plan's are passed over.
  void ChangePlan(const ControlWord& word, std::optional<int> number);

  void AddParagraph(Paragraph paragraph);
  void EndCell();

  // The cells that are ended so far, and the unended one if it holds anything. Cells beyond the
  // plan get edges of their own, cells of the plan without content are not there.
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
  bool isBordered_ = false;  // by the border last named, unless a word still takes it away
  std::vector<std::vector<Paragraph>> contents_;
  std::vector<Paragraph> paragraphs_;  // of the cell that is not ended
};

}  // namespace Parlino::RichText
