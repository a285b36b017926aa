// Puts the document together: text into paragraphs, and these into cells, rows and tables or
// directly into the document.
#pragma once

#include <cstddef>
#include <optional>

#include "richtext/Format.h"
#include "richtext/HeaderTables.h"
#include "richtext/ParagraphBuilder.h"
#include "richtext/RichText.h"
#include "richtext/RowBuilder.h"

namespace Parlino::RichText {

class DocumentBuilder {
 public:
  // Looks fonts, colours and styles up in `tables`, which must outlive it.
  explicit DocumentBuilder(const HeaderTables& tables) : text_(tables), row_(tables) {}

  // Add to the text of the current paragraph, which continues in a new one when it becomes too
  // long, and to the bullet or number in front of it.
  void Add(char32_t character, const Look& look, const Layout& layout);
  void AddToMarker(char32_t character) { text_.AddToMarker(character); }
  void ChangePlan(const ControlWord& word, std::optional<int> number);

  // End what is being built; `layout` is that of the paragraph that ends with it.
  void EndParagraph(const Layout& layout);
  void EndCell(const Layout& layout);
  void EndRow(const Layout& layout);

  // Whether the current paragraph has any text.
  [[nodiscard]] bool HasText() const { return !text_.IsEmpty(); }

  // Whether the document has reached the largest size allowed; anything else added may be lost.
  [[nodiscard]] bool IsFull() const { return isFull_ || text_.IsFull(); }

  // The document, including what has not been ended.
  Document Take(const Layout& layout);

 private:
  std::optional<Paragraph> TakeParagraph(const Layout& layout);
  void AddRow();

  ParagraphBuilder text_;
  RowBuilder row_;
  Document document_;
  std::size_t paragraphs_ = 0;
  bool isFull_ = false;
};

}  // namespace Parlino::RichText
