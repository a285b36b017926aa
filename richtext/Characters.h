// What the bytes and numbers of a source stand for, as Unicode characters.
#pragma once

#include <string>
#include <string_view>

namespace Parlino::RichText {

inline constexpr char32_t Bullet = 0x2022;
inline constexpr char32_t Unreadable = 0xFFFD;

// A font whose bytes are pictures instead of letters.
enum class SymbolSet { None, Symbol, Wingdings, Other };

// The set of the font called `name`, which its table entry may mark as one of symbols.
SymbolSet SymbolSetOf(std::string_view name, bool isMarked);

// The character of a byte in a font of that set, letters in code page 1252; 0 for a control
// character, which has no place in text. `isMarker` makes a picture that is not known a bullet.
char32_t FromByte(unsigned char byte, SymbolSet symbols, bool isMarker);

// The character for the number behind \u, counted like FromByte: repairs the private numbers of
// symbol fonts and those of code page 1252, and makes separators line breaks. Surrogates are
// returned as they are.
char32_t FromNumber(int number, SymbolSet symbols, bool isMarker);

bool IsHighSurrogate(char32_t character);
bool IsLowSurrogate(char32_t character);

// Appends the character in UTF-8; whatever is none becomes Unreadable.
void AppendUtf8(std::string& text, char32_t character);

}  // namespace Parlino::RichText
