#include "tests/support/DocumentDump.h"

#include <iomanip>
#include <sstream>

namespace Parlino::RichText {
namespace {

constexpr const char* AlignmentNames[] = {"left", "centre", "right", "justified"};

// Words with a blank between them.
class WordList {
 public:
  void Add(const std::string& word) { words_ += words_.empty() ? word : " " + word; }
  void AddIf(bool condition, const std::string& word) {
    if (condition) Add(word);
  }
  void AddNumber(const char* name, int number) {
    if (number != 0) Add(name + std::to_string(number));
  }
  [[nodiscard]] const std::string& Words() const { return words_; }

 private:
  std::string words_;
};

std::string DumpColour(Colour colour) {
  std::ostringstream out;
  out << '#' << std::hex << std::setw(6) << std::setfill('0') << colour;
  return out.str();
}

std::string DumpText(const std::string& text) {
  std::string dumped;
  for (const char character : text)
    if (character == '\n')
      dumped += "\\n";
    else if (character == '\t')
      dumped += "\\t";
    else
      dumped += character;
  return dumped;
}

std::string DumpRun(const Run& run) {
  WordList words;
  words.AddIf(!run.Look.Font.empty(), run.Look.Font);
  if (run.Look.HalfPoints != 24) words.AddNumber("", run.Look.HalfPoints);
  words.AddIf(run.Look.Bold, "b");
  words.AddIf(run.Look.Italic, "i");
  words.AddIf(run.Look.Underline, "u");
  if (run.Look.Ink) words.Add(DumpColour(*run.Look.Ink));
  const std::string text = DumpText(run.Text);
  return words.Words().empty() ? text : "<" + words.Words() + "|" + text + ">";
}

std::string DumpParagraph(const Paragraph& paragraph) {
  WordList words;
  words.AddNumber("h", paragraph.Heading);
  words.AddIf(paragraph.Aligned != Alignment::Left,
              AlignmentNames[static_cast<int>(paragraph.Aligned)]);
  words.AddNumber("li", paragraph.LeftIndent);
  words.AddNumber("ri", paragraph.RightIndent);
  words.AddNumber("fi", paragraph.FirstIndent);
  words.AddNumber("sb", paragraph.SpaceBefore);
  words.AddNumber("sa", paragraph.SpaceAfter);
  for (const int tab : paragraph.Tabs) words.AddNumber("tx", tab);
  words.AddIf(!paragraph.Marker.empty(), paragraph.Marker);
  std::string dumped = words.Words().empty() ? "" : "(" + words.Words() + ")";
  for (const Run& run : paragraph.Runs) dumped += DumpRun(run);
  return dumped;
}

std::string DumpCell(const Cell& cell) {
  std::string dumped = std::to_string(cell.RightEdge);
  if (cell.Ground) dumped += DumpColour(*cell.Ground);
  dumped += '[';
  for (const Paragraph& paragraph : cell.Paragraphs)
    dumped += (&paragraph == cell.Paragraphs.data() ? "" : " / ") + DumpParagraph(paragraph);
  return dumped + ']';
}

std::string DumpTable(const Table& table) {
  std::string dumped = table.HasBorders ? "bordered table\n" : "table\n";
  for (const Row& row : table.Rows) {
    dumped += "  " + std::to_string(row.LeftEdge);
    for (const Cell& cell : row.Cells) dumped += " " + DumpCell(cell);
    dumped += '\n';
  }
  return dumped;
}

}  // namespace

std::string DumpDocument(const Document& document) {
  std::string dumped;
  for (const Block& block : document.Blocks)
    dumped += std::holds_alternative<Table>(block)
                  ? DumpTable(std::get<Table>(block))
                  : DumpParagraph(std::get<Paragraph>(block)) + "\n";
  return dumped + (document.IsCut ? "cut\n" : "");
}

}  // namespace Parlino::RichText
