#include "richtext/Scanner.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace Parlino::RichText {
namespace {

bool IsLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

bool IsPlain(char character) {
  return character != '\\' && character != '{' && character != '}' && character != '\r' &&
         character != '\n';
}

// -1 if it is not a hexadecimal digit.
int HexDigit(char character) {
  if (IsDigit(character)) return character - '0';
  if (character >= 'a' && character <= 'f') return character - 'a' + 10;
  if (character >= 'A' && character <= 'F') return character - 'A' + 10;
  return -1;
}

template <class Belongs>
std::size_t CountLeading(std::string_view text, Belongs belongs) {
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), belongs) -
                                  text.begin());
}

}  // namespace

std::string_view Scanner::Take(std::size_t count) {
  const std::string_view taken = rest_.substr(0, count);
  rest_.remove_prefix(taken.size());
  return taken;
}

Token Scanner::Next() {
  Take(CountLeading(rest_, [](char character) { return character == '\r' || character == '\n'; }));
  if (rest_.empty()) return {};
  switch (rest_.front()) {
    case '{':
      return {TokenKind::OpenGroup, Take(1), {}};
    case '}':
      return {TokenKind::CloseGroup, Take(1), {}};
    case '\\':
      return NextControl();
    default:
      return {TokenKind::Text, Take(CountLeading(rest_, IsPlain)), {}};
  }
}

Token Scanner::NextControl() {
  Take(1);
  if (rest_.empty()) return {};
  if (IsLetter(rest_.front())) return NextWord();
  const std::string_view symbol = Take(1);
  if (symbol == "'" && rest_.size() >= 2) {
    const int high = HexDigit(rest_[0]);
    const int low = HexDigit(rest_[1]);
    if (high >= 0 && low >= 0) return {TokenKind::Byte, Take(2), high * 16 + low};
  }
  return {TokenKind::Symbol, symbol, {}};
}

// One space after a word belongs to it.
Token Scanner::NextWord() {
  Token token{TokenKind::Word, Take(CountLeading(rest_, IsLetter)), {}};
  token.Number = TakeNumber();
  if (rest_.starts_with(' ')) Take(1);
  if (token.Text == "bin") Take(static_cast<std::size_t>(std::max(0, token.Number.value_or(0))));
  return token;
}

std::optional<int> Scanner::TakeNumber() {
  const bool isNegative = rest_.size() >= 2 && rest_[0] == '-' && IsDigit(rest_[1]);
  if (isNegative) Take(1);
  const std::string_view digits = Take(CountLeading(rest_, IsDigit));
  if (digits.empty()) return std::nullopt;
  std::int64_t number = 0;
  for (const char digit : digits)
    number = std::min<std::int64_t>(number * 10 + (digit - '0'), std::numeric_limits<int>::max());
  return static_cast<int>(isNegative ? -number : number);
}

}  // namespace Parlino::RichText
