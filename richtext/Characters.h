// The Unicode characters that the bytes and numbers of a source stand for.
#pragma once

#include <string>
#include <string_view>

namespace Parlino::RichText {

inline constexpr char32_t Bullet = 0x2022;
inline constexpr char32_t Unreadable = 0xFFFD;

// The kinds of fonts whose bytes are symbols instead of letters.
enum class SymbolSet { None, Symbol, Wingdings, Other };

// The symbols of the font called `name`. `isMarked` says that its table entry declares it a symbol
// font.
SymbolSet SymbolSetOf(std::string_view name, bool isMarked);

// The character of a byte in a font with those symbols, or in code page 1252; 0 for a control
// character, which has no place in text. With `isMarker` an unknown symbol becomes a bullet.
char32_t FromByte(unsigned char byte, SymbolSet symbols, bool isMarker);

// The character for the number after \u, with 0 and `isMarker` as above. Translates the private
// numbers of symbol fonts and the numbers of code page 1252; line and paragraph separators become
// line breaks. Surrogates are returned as they are.
char32_t FromNumber(int number, SymbolSet symbols, bool isMarker);

bool IsHighSurrogate(char32_t character);
bool IsLowSurrogate(char32_t character);

// Appends the character in UTF-8, or Unreadable for a number that is not a character.
void AppendUtf8(std::string& text, char32_t character);

}  // namespace Parlino::RichText
