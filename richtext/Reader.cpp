#include "richtext/Reader.h"

#include "richtext/Interpreter.h"
#include "richtext/Scanner.h"

namespace Parlino::RichText {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

bool IsRichText(std::string_view source) {
  if (source.starts_with(ByteOrderMark)) source.remove_prefix(ByteOrderMark.size());
  const std::size_t start = source.find_first_not_of(" \t\r\n");
  return start != std::string_view::npos && source.substr(start).starts_with("{\\rtf");
}

}  // namespace

Document ReadDocument(std::string_view source) {
  if (!IsRichText(source)) return {};
  source.remove_prefix(source.find('{'));
  Scanner scanner(source);
  Interpreter interpreter;
  while (interpreter.Take(scanner.Next())) {
  }
  return interpreter.Finish();
}

}  // namespace Parlino::RichText
