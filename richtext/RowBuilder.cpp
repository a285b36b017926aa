#include "richtext/RowBuilder.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "richtext/Limits.h"

namespace Parlino::RichText {
namespace {

constexpr int UnplannedWidth = 1440;

void MoveToEnd(std::vector<Paragraph>& from, std::vector<Paragraph>& to) {
  std::move(from.begin(), from.end(), std::back_inserter(to));
  from.clear();
}

bool IsEmpty(const std::vector<Paragraph>& paragraphs) {
  return paragraphs.size() == 1 && paragraphs.front().Runs.empty();
}

}  // namespace

void RowBuilder::ChangePlan(const ControlWord& word, std::optional<int> number) {
  switch (word.Means) {
    case Meaning::NewRow:
      plan_.clear();
      next_ = {};
      leftEdge_ = 0;
      isBegun_ = true;
      hasBorders_ = isBordered_ = false;
      break;
    case Meaning::RowEdge:
      leftEdge_ = ToTwips(number.value_or(0));
      break;
    case Meaning::CellEdge:
      PlanCell(ToEdge(number.value_or(0)));
      break;
    case Meaning::CellGround:
      next_.Ground = tables_.ColourAt(number.value_or(0));
      break;
    case Meaning::CellMerged:
      next_.IsMerged = true;
      break;
    case Meaning::Border:
      hasBorders_ |= std::exchange(isBordered_, true);
      break;
    case Meaning::NoBorder:
      isBordered_ = false;
      break;
    default:
      break;
  }
}

void RowBuilder::PlanCell(int rightEdge) {
  hasBorders_ |= std::exchange(isBordered_, false);
  PlannedCell planned = std::exchange(next_, {});
  if (plan_.size() == MostColumns) return;
  planned.RightEdge = rightEdge;
  plan_.push_back(planned);
}

void RowBuilder::AddParagraph(Paragraph paragraph) {
  paragraphs_.push_back(std::move(paragraph));
}

void RowBuilder::EndCell() {
  if (contents_.size() == MostColumns)
    MoveToEnd(paragraphs_, contents_.back());
  else
    contents_.push_back(std::exchange(paragraphs_, {}));
}

Row RowBuilder::Take() {
  if (!paragraphs_.empty()) EndCell();
  Row row{leftEdge_, {}};
  int edge = leftEdge_;
  for (std::size_t column = 0; column < contents_.size(); ++column) {
    const PlannedCell planned = column < plan_.size()
                                    ? plan_[column]
                                    : PlannedCell{ToEdge(edge + UnplannedWidth), {}, false};
    edge = std::max(edge, planned.RightEdge);
    if (planned.IsMerged && !row.Cells.empty()) {
      row.Cells.back().RightEdge = edge;
      if (!IsEmpty(contents_[column])) MoveToEnd(contents_[column], row.Cells.back().Paragraphs);
    } else {
      row.Cells.push_back({edge, planned.Ground, std::move(contents_[column])});
    }
  }
  contents_.clear();
  isBegun_ = false;
  return row;
}

}  // namespace Parlino::RichText
