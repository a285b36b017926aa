#include "richtext/DocumentBuilder.h"

#include <utility>

#include "richtext/Limits.h"

namespace Parlino::RichText {

void DocumentBuilder::ChangePlan(const ControlWord& word, std::optional<int> number) {
  row_.ChangePlan(word, number);
}

void DocumentBuilder::Add(char32_t character, const Look& look, const Layout& layout) {
  if (text_.IsLong()) EndParagraph(layout);
  text_.Add(character, look);
}

std::optional<Paragraph> DocumentBuilder::TakeParagraph(const Layout& layout) {
  if (paragraphs_ == MostParagraphs) isFull_ = true;
  if (isFull_) return std::nullopt;
  ++paragraphs_;
  return text_.Take(layout);
}

// Some writers omit the mark of a table from paragraphs between a row's plan and its end.
void DocumentBuilder::EndParagraph(const Layout& layout) {
  std::optional<Paragraph> paragraph = TakeParagraph(layout);
  if (!paragraph) return;
  if (row_.IsBegun() || (layout.InTable && row_.HasPlan())) {
    row_.AddParagraph(*std::move(paragraph));
  } else {
    AddRow();
    document_.Blocks.emplace_back(*std::move(paragraph));
  }
}

void DocumentBuilder::EndCell(const Layout& layout) {
  std::optional<Paragraph> paragraph = TakeParagraph(layout);
  if (!paragraph) return;
  row_.AddParagraph(*std::move(paragraph));
  row_.EndCell();
}

void DocumentBuilder::EndRow(const Layout& layout) {
  if (!text_.IsEmpty()) EndCell(layout);
  AddRow();
}

void DocumentBuilder::AddRow() {
  const bool hasContent = row_.HasContent();
  Row row = row_.Take();
  if (!hasContent) return;
  if (document_.Blocks.empty() || !std::holds_alternative<Table>(document_.Blocks.back()))
    document_.Blocks.emplace_back(Table{});
  auto& table = std::get<Table>(document_.Blocks.back());
  table.Rows.push_back(std::move(row));
  table.HasBorders |= row_.HasBorders();
}

Document DocumentBuilder::Take(const Layout& layout) {
  if (!text_.IsEmpty()) EndParagraph(layout);
  AddRow();
  document_.IsCut = IsFull();
  return std::exchange(document_, {});
}

}  // namespace Parlino::RichText
