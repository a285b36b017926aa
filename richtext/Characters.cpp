#include "richtext/Characters.h"

#include <algorithm>
#include <iterator>

namespace Parlino::RichText {
namespace {

constexpr char32_t LineSeparator = 0x2028;
constexpr char32_t ParagraphSeparator = 0x2029;

// Code page 1252 from 0x80 to 0x9F; the rest of it is Latin-1.
constexpr char32_t Windows1252[32] = {
    0x20AC,     Unreadable, 0x201A, 0x0192, 0x201E, 0x2026,     0x2020, 0x2021,
    0x02C6,     0x2030,     0x0160, 0x2039, 0x0152, Unreadable, 0x017D, Unreadable,
    Unreadable, 0x2018,     0x2019, 0x201C, 0x201D, 0x2022,     0x2013, 0x2014,
    0x02DC,     0x2122,     0x0161, 0x203A, 0x0153, Unreadable, 0x017E, 0x0178};

struct Picture {
  SymbolSet Set;
  unsigned char Byte;
  char32_t Character;
};

// The symbols found in documents: bullets, card suits, arrows and arithmetic signs.
constexpr Picture Pictures[] = {
    {SymbolSet::Symbol, 0xA3, 0x2264},    {SymbolSet::Symbol, 0xA7, 0x2663},
    {SymbolSet::Symbol, 0xA8, 0x2666},    {SymbolSet::Symbol, 0xA9, 0x2665},
    {SymbolSet::Symbol, 0xAA, 0x2660},    {SymbolSet::Symbol, 0xAB, 0x2194},
    {SymbolSet::Symbol, 0xAC, 0x2190},    {SymbolSet::Symbol, 0xAD, 0x2191},
    {SymbolSet::Symbol, 0xAE, 0x2192},    {SymbolSet::Symbol, 0xAF, 0x2193},
    {SymbolSet::Symbol, 0xB3, 0x2265},    {SymbolSet::Symbol, 0xB4, 0x00D7},
    {SymbolSet::Symbol, 0xB7, Bullet},    {SymbolSet::Symbol, 0xB8, 0x00F7},
    {SymbolSet::Symbol, 0xB9, 0x2260},    {SymbolSet::Wingdings, 'J', 0x263A},
    {SymbolSet::Wingdings, 'L', 0x2639},  {SymbolSet::Wingdings, 'l', 0x25CF},
    {SymbolSet::Wingdings, 'n', 0x25A0},  {SymbolSet::Wingdings, 'q', 0x2751},
    {SymbolSet::Wingdings, 'v', 0x2756},  {SymbolSet::Wingdings, 0xA7, 0x25AA},
    {SymbolSet::Wingdings, 0xA8, 0x25A1}, {SymbolSet::Wingdings, 0xD8, 0x27A2},
    {SymbolSet::Wingdings, 0xE0, 0x2192}, {SymbolSet::Wingdings, 0xFC, 0x2713},
};

char32_t FromCodePage(unsigned char byte) {
  if (byte < 0x20) return byte == '\t' ? '\t' : 0;
  if (byte == 0x7F) return 0;
  return byte >= 0x80 && byte <= 0x9F ? Windows1252[byte - 0x80] : byte;
}

bool IsPrivate(char32_t character) {
  return character >= 0xE000 && character <= 0xF8FF;
}

void AppendContinued(std::string& text, char32_t lead, char32_t character, int bytes) {
  text += static_cast<char>(lead | (character >> (6 * bytes)));
  while (bytes-- > 0) text += static_cast<char>(0x80 | ((character >> (6 * bytes)) & 0x3F));
}

}  // namespace

SymbolSet SymbolSetOf(std::string_view name, bool isMarked) {
  if (name == "Symbol") return SymbolSet::Symbol;
  if (name.starts_with("Wingdings")) return SymbolSet::Wingdings;
  return isMarked ? SymbolSet::Other : SymbolSet::None;
}

char32_t FromByte(unsigned char byte, SymbolSet symbols, bool isMarker) {
  if (symbols == SymbolSet::None) return FromCodePage(byte);
  const auto* picture =
      std::find_if(std::begin(Pictures), std::end(Pictures),
                   [&](const Picture& each) { return each.Set == symbols && each.Byte == byte; });
  if (picture != std::end(Pictures)) return picture->Character;
  return isMarker && byte >= 0x80 ? Bullet : FromCodePage(byte);
}

char32_t FromNumber(int number, SymbolSet symbols, bool isMarker) {
  // Writers use signed 16-bit numbers, though some write larger ones.
  const auto character = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
  if (character < 0xA0) return FromCodePage(static_cast<unsigned char>(character));
  if (character == LineSeparator || character == ParagraphSeparator) return '\n';
  if (character >= 0xF000 && character <= 0xF0FF && symbols != SymbolSet::None)
    return FromByte(static_cast<unsigned char>(character & 0xFF), symbols, isMarker);
  return isMarker && IsPrivate(character) ? Bullet : character;
}

bool IsHighSurrogate(char32_t character) {
  return character >= 0xD800 && character <= 0xDBFF;
}

bool IsLowSurrogate(char32_t character) {
  return character >= 0xDC00 && character <= 0xDFFF;
}

void AppendUtf8(std::string& text, char32_t character) {
  if (IsHighSurrogate(character) || IsLowSurrogate(character) || character > 0x10FFFF)
    character = Unreadable;
  if (character < 0x80)
    text += static_cast<char>(character);
  else if (character < 0x800)
    AppendContinued(text, 0xC0, character, 1);
  else if (character < 0x10000)
    AppendContinued(text, 0xE0, character, 2);
  else
    AppendContinued(text, 0xF0, character, 3);
}

}  // namespace Parlino::RichText
