// Builds one paragraph after another.
#pragma once

#include <cstddef>
#include <string>

#include "richtext/Format.h"
#include "richtext/HeaderTables.h"
#include "richtext/RichText.h"

namespace Parlino::RichText {

class ParagraphBuilder {
 public:
  explicit ParagraphBuilder(const HeaderTables& tables) : tables_(tables) {}

  // Appends a character of that look; hidden ones are left out.
  void Add(char32_t character, const Look& look);
  void AddToMarker(char32_t character);

  // The paragraph so far; what follows belongs to the next one.
  Paragraph Take(const Layout& layout);

  [[nodiscard]] bool IsEmpty() const { return paragraph_.Runs.empty() && marker_.empty(); }
  // Whether the paragraph has reached the greatest length allowed; the next character belongs to a
  // new one.
  [[nodiscard]] bool IsLong() const;
  // Whether more text was added than a document may hold; the excess has been left out.
  [[nodiscard]] bool IsFull() const { return isFull_; }

 private:
  bool CountCharacter();
  bool BeginRun(const Look& look);
  [[nodiscard]] Style StyleOf(const Look& look) const;

  const HeaderTables& tables_;
  Paragraph paragraph_;
  std::string marker_;
  Look lastLook_;
  std::size_t charactersOfParagraph_ = 0;
  std::size_t characters_ = 0;
  std::size_t runs_ = 0;
  bool isFull_ = false;
};

}  // namespace Parlino::RichText
