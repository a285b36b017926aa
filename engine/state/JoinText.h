// Texts put together from pieces.
#pragma once

#include <charconv>
#include <initializer_list>
#include <string>
#include <string_view>

namespace Parlino {

// A piece of a caption: text, or a whole number in plain decimal digits.
class TextPiece {
 public:
  TextPiece(std::string_view text) : text_(text) {}
  TextPiece(const std::string& text) : text_(text) {}
  TextPiece(const char* text) : text_(text) {}
  TextPiece(int number)
      : text_(digits_, std::to_chars(digits_, digits_ + sizeof digits_, number).ptr) {}
  TextPiece(const TextPiece&) = delete;  // the text may be its own digits
  TextPiece& operator=(const TextPiece&) = delete;
  ~TextPiece() = default;
  [[nodiscard]] std::string_view Text() const { return text_; }

 private:
  char digits_[12];
  std::string_view text_;
};
using Pieces = std::initializer_list<TextPiece>;

// Replaces the text with the joined pieces; reuses its memory.
inline void JoinInto(std::string& text, Pieces pieces) {
  text.clear();
  for (const TextPiece& piece : pieces) text.append(piece.Text());
}

// The pieces joined into one text.
inline std::string JoinText(Pieces pieces) {
  std::string text;
  JoinInto(text, pieces);
  return text;
}

}  // namespace Parlino
