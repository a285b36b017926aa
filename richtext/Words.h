// The control words that are understood.
#pragma once

#include <string_view>

namespace Parlino::RichText {

enum class Meaning {
  // how text looks
  Font,
  FontSize,
  Ink,
  Bold,
  Italic,
  Underline,
  NoUnderline,
  Hidden,
  Plain,
  // how a paragraph is laid out
  NewLayout,
  Align,
  LeftIndent,
  RightIndent,
  FirstIndent,
  SpaceBefore,
  SpaceAfter,
  TabStop,
  InTable,
  OutlineLevel,
  StyleNumber,
  // the plan of a row
  NewRow,
  RowEdge,
  CellEdge,
  CellGround,
  CellMerged,
  Border,
  NoBorder,
  // where something ends
  EndParagraph,
  NewPage,
  EndCell,
  EndRow,
  // text by name or number
  Character,
  Unicode,
  FallbackLength,
  // entries of the header tables
  DefaultFont,
  SymbolCharset,
  Red,
  Green,
  Blue,
  // where what follows in the group goes
  Destination,
};

// Where text goes: the document, the bullet of a paragraph, one of the header tables, or nowhere.
enum class Destination { Body, Marker, Fonts, Colours, Styles, Nowhere };

struct ControlWord {
  std::string_view Name;
  Meaning Means;
  int Value = 0;  // a Character, an Alignment or a Destination
};

// nullptr for a word that is not understood.
const ControlWord* FindWord(std::string_view name);

}  // namespace Parlino::RichText
