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
      : length_(static_cast<std::size_t>(
            std::to_chars(digits_, digits_ + sizeof digits_, number).ptr - digits_)) {}
  [[nodiscard]] std::string_view Text() const {
    return length_ > 0 ? std::string_view(digits_, length_) : text_;
  }

 private:
  std::string_view text_;
  char digits_[12];
  std::size_t length_ = 0;
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
