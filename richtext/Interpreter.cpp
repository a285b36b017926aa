#include "richtext/Interpreter.h"

#include <algorithm>
#include <utility>

#include "richtext/Characters.h"
#include "richtext/Limits.h"

namespace Parlino::RichText {

bool Interpreter::Take(const Token& token) {
  switch (token.Kind) {
    case TokenKind::End:
      return false;
    case TokenKind::OpenGroup:
      OpenGroup();
      return true;
    case TokenKind::CloseGroup:
      return CloseGroup();
    default:
      break;
  }
  if (state_.Into == Destination::Nowhere) return true;
  switch (token.Kind) {
    case TokenKind::Word:
      TakeWord(token);
      break;
    case TokenKind::Symbol:
      TakeSymbol(token.Text.front());
      break;
    case TokenKind::Byte:
      TakeByte(static_cast<unsigned char>(token.Number.value_or(0)), Symbols());
      break;
    default:
      TakeBytes(token.Text);
      break;
  }
  return !builder_.IsFull();
}

Document Interpreter::Finish() {
  PutBroken();
  return builder_.Take(state_.Lines);
}

void Interpreter::OpenGroup() {
  PutBroken();
  isOptional_ = false;
  fallbackLeft_ = 0;
  if (outerStates_.size() < MostNestedGroups)
    outerStates_.push_back(state_);
  else
    ++deeperGroups_;
}

// The outermost state is kept: it formats a last paragraph that is never ended.
bool Interpreter::CloseGroup() {
  PutBroken();
  isOptional_ = false;
  fallbackLeft_ = 0;
  if (deeperGroups_ > 0) {
    --deeperGroups_;
    return true;
  }
  if (outerStates_.size() <= 1) return false;
  state_ = std::move(outerStates_.back());
  outerStates_.pop_back();
  return true;
}

void Interpreter::TakeWord(const Token& token) {
  const ControlWord* word = FindWord(token.Text);
  const bool leadsSomewhere = word != nullptr && word->Means == Meaning::Destination;
  if (std::exchange(isOptional_, false) && !leadsSomewhere)
    state_.Into = Destination::Nowhere;
  else if (word != nullptr)
    ObeyWord(*word, token.Number);
}

void Interpreter::ObeyWord(const ControlWord& word, std::optional<int> number) {
  switch (word.Means) {
    case Meaning::Unicode:
      return TakeUnicode(number.value_or(0));
    case Meaning::FallbackLength:
      state_.FallbackLength = std::max(0, number.value_or(1));
      return;
    case Meaning::Character:
      return TakeCharacter(static_cast<char32_t>(word.Value));
    case Meaning::Destination:
      PutBroken();
      state_.Into = static_cast<Destination>(word.Value);
      break;
    default:
      PutBroken();
      if (state_.Into == Destination::Body || IsInMarker())
        ObeyInBody(word, number);
      else
        tables_.TakeWord(state_.Into, word, number);
  }
  fallbackLeft_ = 0;
}

void Interpreter::ObeyInBody(const ControlWord& word, std::optional<int> number) {
  if (ChangeLook(state_.Letters, word, number)) return;
  if (ChangeLayout(state_.Lines, word, number)) return;
  if (IsInMarker()) return;
  switch (word.Means) {
    case Meaning::DefaultFont:
      return tables_.SetDefaultFont(number.value_or(0));
    case Meaning::EndParagraph:
      return EndParagraph();
    case Meaning::NewPage:
      return builder_.HasText() ? EndParagraph() : void();
    case Meaning::EndCell:
      return builder_.EndCell(state_.Lines);
    case Meaning::EndRow:
      return builder_.EndRow(state_.Lines);
    default:
      return builder_.ChangePlan(word, number);
  }
}

// A hidden paragraph end leaves the text on either side in one paragraph.
void Interpreter::EndParagraph() {
  fallbackLeft_ = 0;
  PutBroken();
  if (state_.Into == Destination::Body && !state_.Letters.Hidden)
    builder_.EndParagraph(state_.Lines);
}

void Interpreter::TakeSymbol(char symbol) {
  isOptional_ = symbol == '*';
  switch (symbol) {
    case '\\':
    case '{':
    case '}':
      return TakeCharacter(static_cast<unsigned char>(symbol));
    case '~':
      return TakeCharacter(0x00A0);
    case '_':
      return TakeCharacter(0x2011);
    case '-':
      return TakeCharacter(0x00AD);
    case '\t':
      return TakeCharacter('\t');
    case '\r':
    case '\n':
      return EndParagraph();
    default:
      return;
  }
}

void Interpreter::TakeBytes(std::string_view bytes) {
  const SymbolSet symbols = Symbols();
  for (const char byte : bytes) {
    TakeByte(static_cast<unsigned char>(byte), symbols);
    if (builder_.IsFull()) return;
  }
}

void Interpreter::TakeByte(unsigned char byte, SymbolSet symbols) {
  isOptional_ = false;
  if (IsFallback()) return;
  if (const char32_t character = FromByte(byte, symbols, IsInMarker())) Put(character);
}

void Interpreter::TakeCharacter(char32_t character) {
  if (!IsFallback()) Put(character);
}

void Interpreter::TakeUnicode(int number) {
  if (const char32_t character = FromNumber(number, Symbols(), IsInMarker())) Put(character);
  fallbackLeft_ = state_.FallbackLength;
}

bool Interpreter::IsFallback() {
  if (fallbackLeft_ == 0) return false;
  --fallbackLeft_;
  return true;
}

// Puts a character where the group's text goes; the two halves of a surrogate pair become one
// character.
void Interpreter::Put(char32_t character) {
  if (highSurrogate_ != 0 && IsLowSurrogate(character)) {
    const char32_t high = std::exchange(highSurrogate_, 0);
    return Put(0x10000 + ((high - 0xD800) << 10) + (character - 0xDC00));
  }
  PutBroken();
  if (IsHighSurrogate(character)) {
    highSurrogate_ = character;
    return;
  }
  switch (state_.Into) {
    case Destination::Body:
      return builder_.Add(character, state_.Letters, state_.Lines);
    case Destination::Marker:
      return builder_.AddToMarker(character);
    default:
      return tables_.TakeCharacter(state_.Into, character);
  }
}

// Replaces the first half of a pair whose second half did not follow.
void Interpreter::PutBroken() {
  if (std::exchange(highSurrogate_, 0) != 0) Put(Unreadable);
}

}  // namespace Parlino::RichText
