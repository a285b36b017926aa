// A document of formatted text, independent of where it came from and of what shows it: a list of
// blocks, each a paragraph or a table. Lengths are in twips.
//
// Whoever makes a document keeps to the ranges that stand beside the fields, with the limits of
// Limits.h; whoever shows one relies on them. Text is valid UTF-8. Its only control characters are
// "\t", a tab, and "\n", a line break; it holds no other line or paragraph separators.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace Parlino::RichText {

using Colour = std::uint32_t;  // 0xRRGGBB, 0..0xFFFFFF

// How a run of text looks. Without a font or a colour it has those of the window that shows it.
struct Style {
  std::string Font;
  int HalfPoints = 24;  // SmallestHalfPoints..LargestHalfPoints
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  std::optional<Colour> Ink;
  bool operator==(const Style&) const = default;
};

// Text of one look, never empty.
struct Run {
  Style Look;
  std::string Text;
};

enum class Alignment { Left, Centre, Right, Justified };

// Indents are -FurthestTwips..FurthestTwips, spaces 0..FurthestTwips.
struct Paragraph {
  Alignment Aligned = Alignment::Left;
  int LeftIndent = 0;
  int RightIndent = 0;
  int FirstIndent = 0;  // of the first line, added to the left indent; negative hangs
  int SpaceBefore = 0;
  int SpaceAfter = 0;
  std::vector<int> Tabs;  // 1..FurthestTwips from the left edge of the text; at most MostTabs
  int Heading = 0;        // 1..DeepestHeading, 1 for the first rank; 0 for ordinary text
  std::string Marker;     // the bullet or number in front of the text, "" for none; no "\n"
  std::vector<Run> Runs;  // neighbours look different; at most MostRunsInParagraph
};

struct Cell {
  int RightEdge = 0;  // from the left edge of the text; up to FurthestEdge, never back in a row
  std::optional<Colour> Ground;
  std::vector<Paragraph> Paragraphs;  // at least one
};

struct Row {
  int LeftEdge = 0;         // -FurthestTwips..FurthestTwips; no cell ends left of it
  std::vector<Cell> Cells;  // 1..MostColumns
};

struct Table {
  std::vector<Row> Rows;  // at least one
  bool HasBorders = false;
};

using Block = std::variant<Paragraph, Table>;

struct Document {
  std::vector<Block> Blocks;
  bool IsCut = false;  // the source had more than is read of any document
};

}  // namespace Parlino::RichText
