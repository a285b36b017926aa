// A document of formatted text, independent of where it came from and of what shows it: a list of
// blocks, each a paragraph or a table. Lengths are in twips, text is UTF-8.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace Parlino::RichText {

using Colour = std::uint32_t;  // 0xRRGGBB

// How a run of text looks. Without a font or a colour it has those of the window that shows it.
struct Style {
  std::string Font;
  int HalfPoints = 24;
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  std::optional<Colour> Ink;
  bool operator==(const Style&) const = default;
};

// Text of one look. A tab is "\t", a line break inside a paragraph "\n".
struct Run {
  Style Look;
  std::string Text;
};

enum class Alignment { Left, Centre, Right, Justified };

struct Paragraph {
  Alignment Aligned = Alignment::Left;
  int LeftIndent = 0;
  int RightIndent = 0;
  int FirstIndent = 0;  // of the first line, added to the left indent; negative hangs
  int SpaceBefore = 0;
  int SpaceAfter = 0;
  std::vector<int> Tabs;  // distances from the left edge of the text
  int Heading = 0;        // 1 for a heading of the first rank and so on, 0 for ordinary text
  std::string Marker;     // the bullet or number in front of the text, "" for none
  std::vector<Run> Runs;
};

struct Cell {
  int RightEdge = 0;  // distance from the left edge of the text
  std::optional<Colour> Ground;
  std::vector<Paragraph> Paragraphs;
};

struct Row {
  int LeftEdge = 0;
  std::vector<Cell> Cells;
};

struct Table {
  std::vector<Row> Rows;
  bool HasBorders = false;
};

using Block = std::variant<Paragraph, Table>;

struct Document {
  std::vector<Block> Blocks;
  bool IsCut = false;  // the source went on beyond what is read of any document
};

}  // namespace Parlino::RichText
