#include "richtext/HeaderTables.h"

#include <algorithm>
#include <cctype>

#include "richtext/Limits.h"

namespace Parlino::RichText {
namespace {

constexpr int SymbolCharsetNumber = 2;

const Font Nameless;

// Old writers mark a heading only by the name of its style.
int HeadingFromName(std::string_view name) {
  constexpr std::string_view Beginning = "heading ";
  if (name.size() != Beginning.size() + 1) return 0;
  const bool isNamedSo =
      std::equal(Beginning.begin(), Beginning.end(), name.begin(), [](char expected, char given) {
        return std::tolower(static_cast<unsigned char>(given)) == expected;
      });
  return isNamedSo ? HeadingFromOutline(name.back() - '1') : 0;
}

std::string Trim(const std::string& name) {
  const std::size_t first = name.find_first_not_of(" \t");
  if (first == std::string::npos) return {};
  return name.substr(first, name.find_last_not_of(" \t") - first + 1);
}

}  // namespace

int HeadingFromOutline(int level) {
  return level >= 0 && level < DeepestHeading ? level + 1 : 0;
}

void HeaderTables::TakeWord(Destination which, const ControlWord& word, std::optional<int> number) {
  const int value = number.value_or(0);
  switch (word.Means) {
    case Meaning::Font:
      if (which == Destination::Fonts) {
        entry_ = Entry{};
        entry_.Number = value;
      }
      break;
    case Meaning::StyleNumber:
      entry_.Number = value;
      break;
    case Meaning::SymbolCharset:
      entry_.IsSymbols = value == SymbolCharsetNumber;
      break;
    case Meaning::OutlineLevel:
      entry_.Heading = HeadingFromOutline(value);
      break;
    case Meaning::Red:
      SetShade(16, value);
      break;
    case Meaning::Green:
      SetShade(8, value);
      break;
    case Meaning::Blue:
      SetShade(0, value);
      break;
    default:
      break;
  }
}

void HeaderTables::SetShade(int lowestBit, int value) {
  const auto part = static_cast<Colour>(std::clamp(value, 0, 255));
  const Colour others = entry_.Shade.value_or(0) & ~(Colour{0xFF} << lowestBit);
  entry_.Shade = others | (part << lowestBit);
}

void HeaderTables::TakeCharacter(Destination which, char32_t character) {
  if (character == ';')
    EndEntry(which);
  else if (entry_.Name.size() < MostNameCharacters)
    AppendUtf8(entry_.Name, character);
}

void HeaderTables::EndEntry(Destination which) {
  const std::string name = Trim(entry_.Name);
  if (which == Destination::Fonts && fonts_.size() < MostTableEntries) {
    const SymbolSet symbols = SymbolSetOf(name, entry_.IsSymbols);
    fonts_[entry_.Number] = {symbols == SymbolSet::None ? name : std::string(), symbols};
  } else if (which == Destination::Colours && colours_.size() < MostTableEntries) {
    colours_.push_back(entry_.Shade);
  } else if (which == Destination::Styles && headings_.size() < MostTableEntries) {
    const int heading = entry_.Heading != 0 ? entry_.Heading : HeadingFromName(name);
    if (heading != 0) headings_[entry_.Number] = heading;
  }
  entry_ = Entry{};
}

const Font& HeaderTables::FontAt(int number) const {
  const auto found = fonts_.find(number < 0 ? defaultFont_ : number);
  return found != fonts_.end() ? found->second : Nameless;
}

std::optional<Colour> HeaderTables::ColourAt(int number) const {
  if (number < 0 || static_cast<std::size_t>(number) >= colours_.size()) return std::nullopt;
  return colours_[static_cast<std::size_t>(number)];
}

int HeaderTables::HeadingOfStyle(int number) const {
  const auto found = headings_.find(number);
  return found != headings_.end() ? found->second : 0;
}

}  // namespace Parlino::RichText
