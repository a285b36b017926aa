// The tables before the text: fonts, colours, and which styles are headings. Each entry ends at its
// semicolon, whatever groups it is in.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "richtext/Characters.h"
#include "richtext/RichText.h"
#include "richtext/Words.h"

namespace Parlino::RichText {

struct Font {
  std::string Name;  // "" for a symbol font: its text is translated
  SymbolSet Symbols = SymbolSet::None;
};

class HeaderTables {
 public:
  // Take a word or a character of the table `which`.
  void TakeWord(Destination which, const ControlWord& word, std::optional<int> number);
  void TakeCharacter(Destination which, char32_t character);
  void SetDefaultFont(int number) { defaultFont_ = number; }

  // The entry with a number. A negative number stands for the default font; one that is not in its
  // table stands for a font without a name, no colour, no heading.
  [[nodiscard]] const Font& FontAt(int number) const;
  [[nodiscard]] std::optional<Colour> ColourAt(int number) const;
  [[nodiscard]] int HeadingOfStyle(int number) const;

 private:
  // The entry that is being read.
  struct Entry {
    int Number = 0;
    std::string Name;
    bool IsSymbols = false;
    std::optional<Colour> Shade;
    int Heading = 0;
  };

  void SetShade(int lowestBit, int value);
  void EndEntry(Destination which);

  Entry entry_;
  std::map<int, Font> fonts_;
  std::vector<std::optional<Colour>> colours_;
  std::map<int, int> headings_;
  int defaultFont_ = 0;
};

// The rank of the heading from the number after \outlinelevel, 0 for none.
int HeadingFromOutline(int level);

}  // namespace Parlino::RichText
