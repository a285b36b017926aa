// The formatting in force at a place in the source, in the numbers of the source.
#pragma once

#include <optional>
#include <vector>

#include "richtext/RichText.h"
#include "richtext/Words.h"

namespace Parlino::RichText {

// Of characters.
struct Look {
  int Font = -1;  // the default font of the document
  int HalfPoints = 24;
  int Ink = 0;
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  bool Hidden = false;
  bool operator==(const Look&) const = default;
};

// Of paragraphs.
struct Layout {
  Alignment Aligned = Alignment::Left;
  int LeftIndent = 0;
  int RightIndent = 0;
  int FirstIndent = 0;
  int SpaceBefore = 0;
  int SpaceAfter = 0;
  std::vector<int> Tabs;
  std::optional<int> OutlineLevel;  // 0 for the first rank
  std::optional<int> StyleNumber;
  bool InTable = false;
};

// Both change the formatting as the word says and return whether the word is one of theirs. Numbers
// out of range are clamped.
bool ChangeLook(Look& look, const ControlWord& word, std::optional<int> number);
bool ChangeLayout(Layout& layout, const ControlWord& word, std::optional<int> number);

}  // namespace Parlino::RichText
