#include "tests/support/DocumentFaults.h"

#include <string_view>

#include "richtext/Limits.h"

namespace Parlino::RichText {
namespace {

constexpr std::size_t FreeBytes = 4'096;
constexpr std::size_t BytesPerSourceByte = 160;

// The length of the character that `text` begins with; 0 for what is none or has no place in text.
std::size_t CharacterLength(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  if (lead < 0x80) return lead == '\t' || lead == '\n' || (lead >= 0x20 && lead != 0x7F) ? 1 : 0;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
  char32_t character = lead & (0x7FU >> length);
  for (const char each : text.substr(1, length - 1)) {
    const auto byte = static_cast<unsigned char>(each);
    if ((byte & 0xC0) != 0x80) return 0;
    character = (character << 6) | (byte & 0x3FU);
  }
  constexpr char32_t Least[] = {0, 0, 0xA0, 0x800, 0x10000};
  const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
  const bool isSeparator = character == 0x2028 || character == 0x2029;
  const bool isNone = character < Least[length] || isSurrogate || character > 0x10FFFF;
  return isNone || isSeparator ? 0 : length;
}

class Inspector {
 public:
  void Inspect(const Document& document) {
    bytes_ += document.Blocks.capacity() * sizeof(Block);
    for (const Block& block : document.Blocks)
      std::visit([this](const auto& each) { Inspect(each); }, block);
    Expect(characters_ <= MostCharacters, "too many characters");
    Expect(runs_ <= MostRuns, "too many runs");
    Expect(paragraphs_ <= MostParagraphs, "too many paragraphs");
  }

  [[nodiscard]] const std::string& Fault() const { return fault_; }
  [[nodiscard]] std::size_t Bytes() const { return bytes_; }

 private:
  void Expect(bool condition, const char* fault) {
    if (!condition && fault_.empty()) fault_ = fault;
  }

  void InspectTwips(int twips, int least = -FurthestTwips) {
    Expect(twips >= least && twips <= FurthestTwips, "a distance out of bounds");
  }

  void InspectText(std::string_view text) {
    while (!text.empty()) {
      const std::size_t length = CharacterLength(text);
      if (length == 0) return Expect(false, "text that is no UTF-8 or is a control character");
      ++characters_;
      text.remove_prefix(length);
    }
  }

  void Inspect(const Table& table) {
    Expect(!table.Rows.empty(), "a table without rows");
    bytes_ += table.Rows.capacity() * sizeof(Row);
    for (const Row& row : table.Rows) Inspect(row);
  }

  void Inspect(const Row& row) {
    Expect(!row.Cells.empty() && row.Cells.size() <= MostColumns, "too few or too many columns");
    bytes_ += row.Cells.capacity() * sizeof(Cell);
    InspectTwips(row.LeftEdge);
    int edge = row.LeftEdge;
    for (const Cell& cell : row.Cells) {
      Expect(cell.RightEdge <= FurthestEdge, "an edge out of bounds");
      Expect(cell.RightEdge >= edge, "an edge that goes back");
      Expect(!cell.Paragraphs.empty(), "a cell without a paragraph");
      Expect(!cell.Ground || *cell.Ground <= 0xFFFFFF, "a ground of no colour");
      edge = cell.RightEdge;
      bytes_ += cell.Paragraphs.capacity() * sizeof(Paragraph);
      for (const Paragraph& paragraph : cell.Paragraphs) Inspect(paragraph);
    }
  }

  void Inspect(const Paragraph& paragraph) {
    ++paragraphs_;
    for (const int indent : {paragraph.LeftIndent, paragraph.RightIndent, paragraph.FirstIndent})
      InspectTwips(indent);
    for (const int space : {paragraph.SpaceBefore, paragraph.SpaceAfter}) InspectTwips(space, 0);
    for (const int tab : paragraph.Tabs) InspectTwips(tab, 1);
    Expect(paragraph.Tabs.size() <= MostTabs, "too many tabs");
    Expect(paragraph.Heading >= 0 && paragraph.Heading <= DeepestHeading, "a heading of no rank");
    InspectText(paragraph.Marker);
    Expect(paragraph.Marker.find('\n') == std::string::npos, "a marker of two lines");
    bytes_ += paragraph.Tabs.capacity() * sizeof(int) + paragraph.Marker.capacity() +
              paragraph.Runs.capacity() * sizeof(Run);
    Expect(paragraph.Runs.size() <= MostRunsInParagraph, "a paragraph of too many runs");
    const std::size_t charactersBefore = characters_;
    for (const Run& run : paragraph.Runs) Inspect(run, &run == paragraph.Runs.data());
    Expect(characters_ - charactersBefore <= MostCharactersInParagraph, "a paragraph too long");
  }

  void Inspect(const Run& run, bool isFirst) {
    ++runs_;
    Expect(!run.Text.empty(), "an empty run");
    Expect(isFirst || !(run.Look == (&run - 1)->Look), "two runs of one look");
    Expect(run.Look.HalfPoints >= SmallestHalfPoints && run.Look.HalfPoints <= LargestHalfPoints,
           "a font size out of bounds");
    Expect(!run.Look.Ink || *run.Look.Ink <= 0xFFFFFF, "a colour that is none");
    InspectText(run.Text);
    const std::size_t charactersOfText = characters_;
    InspectText(run.Look.Font);
    characters_ = charactersOfText;
    bytes_ += run.Text.capacity() + run.Look.Font.capacity();
  }

  std::string fault_;
  std::size_t bytes_ = 0;
  std::size_t characters_ = 0;
  std::size_t runs_ = 0;
  std::size_t paragraphs_ = 0;
};

}  // namespace

std::string FindFault(const Document& document, std::size_t sourceBytes) {
  Inspector inspector;
  inspector.Inspect(document);
  if (!inspector.Fault().empty()) return inspector.Fault();
  const bool isInProportion = inspector.Bytes() <= FreeBytes + BytesPerSourceByte * sourceBytes;
  return isInProportion ? "" : "memory out of proportion to the source";
}

}  // namespace Parlino::RichText
