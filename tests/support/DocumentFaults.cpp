#include "tests/support/DocumentFaults.h"

#include <algorithm>
#include <locale>

#include "richtext/Limits.h"

namespace Parlino::RichText {
namespace {

constexpr std::size_t FreeBytes = 4'096;
constexpr std::size_t BytesPerSourceByte = 160;

bool HasPlaceInText(char32_t character) {
  const bool isControl = character < 0x20 && character != '\t' && character != '\n';
  const bool isOldControl = character >= 0x7F && character < 0xA0;
  const bool isSeparator = character == 0x2028 || character == 0x2029;
  return !isControl && !isOldControl && !isSeparator;
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

  void InspectText(const std::string& text) {
    std::u32string characters(text.size(), 0);
    std::mbstate_t state{};
    const auto& utf8 =
        std::use_facet<std::codecvt<char32_t, char8_t, std::mbstate_t>>(std::locale::classic());
    const auto* from = reinterpret_cast<const char8_t*>(text.data());
    const char8_t* end = nullptr;
    char32_t* last = nullptr;
    const auto result = utf8.in(state, from, from + text.size(), end, characters.data(),
                                characters.data() + characters.size(), last);
    characters.resize(static_cast<std::size_t>(last - characters.data()));
    Expect(text.empty() || result == std::codecvt_base::ok, "text that is no UTF-8");
    Expect(std::ranges::all_of(characters, HasPlaceInText), "a control character");
    characters_ += characters.size();
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
