// Follows the tokens of a source and builds the document they describe.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "richtext/DocumentBuilder.h"
#include "richtext/Format.h"
#include "richtext/HeaderTables.h"
#include "richtext/Scanner.h"

namespace Parlino::RichText {

class Interpreter {
 public:
  // Takes tokens until the outermost group ends or the document is full; false from then on.
  bool Take(const Token& token);
  // The document described so far.
  Document Finish();

 private:
  // What a group may change and its end restores.
  struct State {
    Look Letters;
    Layout Lines;
    Destination Into = Destination::Body;
    int FallbackLength = 1;
  };

  void OpenGroup();
  bool CloseGroup();
  void TakeWord(const Token& token);
  void ObeyWord(const ControlWord& word, std::optional<int> number);
  void ObeyInBody(const ControlWord& word, std::optional<int> number);
  void TakeSymbol(char symbol);
  void TakeBytes(std::string_view bytes);
  void TakeByte(unsigned char byte, SymbolSet symbols);
  void TakeUnicode(int number);
  void TakeCharacter(char32_t character);
  void EndParagraph();

  void Put(char32_t character);
  void PutBroken();
  bool IsFallback();
  [[nodiscard]] bool IsInMarker() const { return state_.Into == Destination::Marker; }
  [[nodiscard]] SymbolSet Symbols() const { return tables_.FontAt(state_.Letters.Font).Symbols; }

  HeaderTables tables_;
  DocumentBuilder builder_{tables_};
  State state_;
  std::vector<State> outerStates_;
  std::size_t deeperGroups_ = 0;  // open, but too deep to have a state of their own
  bool isOptional_ = false;       // whether the next word is marked as optional
  int fallbackLeft_ = 0;          // characters to skip after a \u
  char32_t highSurrogate_ = 0;    // waiting for its other half
};

}  // namespace Parlino::RichText
