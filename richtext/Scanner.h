// Splits Rich Text Format into its tokens.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace Parlino::RichText {

enum class TokenKind { End, OpenGroup, CloseGroup, Word, Symbol, Byte, Text };

struct Token {
  TokenKind Kind = TokenKind::End;
  std::string_view Text;      // a word's name, a symbol's one character, or text as it stands
  std::optional<int> Number;  // after a word, limited to 32 bits; the value of a byte
};

class Scanner {
 public:
  // The tokens are views into `source`, which must outlive them.
  explicit Scanner(std::string_view source) : rest_(source) {}

  // The next token; always End once nothing is left. Line ends between tokens and the data of \bin
  // are skipped. Takes time in proportion to the length of the token.
  Token Next();

 private:
  std::string_view Take(std::size_t count);
  Token NextControl();
  Token NextWord();
  std::optional<int> TakeNumber();

  std::string_view rest_;
};

}  // namespace Parlino::RichText
