#include "persistence/Records.h"

#include <cerrno>
#include <charconv>

#include "engine/state/JoinText.h"

namespace Parlino {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

[[noreturn]] void RaiseMalformed(const std::string& reason) {
  throw GameError(EILSEQ, reason);
}

void SkipBlanks(std::string_view& text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
}

void DropBlanksAtEnd(std::string_view& text) {
  while (text.ends_with(' ')) text.remove_suffix(1);
}

bool IsControl(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte < 0x20 || byte == 0x7F;
}

// Length in bytes of a line or paragraph separator or a C1 control character that `text` ends with,
// 0 if there is none.
std::size_t WideControlLength(std::string_view text) {
  if (text.ends_with("\u2028") || text.ends_with("\u2029")) return 3;
  if (text.size() < 2 || text[text.size() - 2] != '\xC2') return 0;
  const auto last = static_cast<unsigned char>(text.back());
  return last >= 0x80 && last <= 0x9F ? 2 : 0;
}

// The first line of the file without its line end; raises when anything follows the line.
std::string_view OnlyLine(std::string_view record) {
  if (record.starts_with(ByteOrderMark)) record.remove_prefix(ByteOrderMark.size());
  const std::size_t end = record.find('\n');
  if (end == std::string_view::npos) return record;
  if (end + 1 != record.size()) RaiseMalformed("text follows the record");
  record.remove_suffix(1);
  if (record.ends_with('\r')) record.remove_suffix(1);
  return record;
}

}  // namespace

RecordReader::RecordReader(std::string_view record) : rest_(OnlyLine(record)) {
  for (const char character : rest_)
    if (IsControl(character)) RaiseMalformed("it holds a control character");
}

// A field ends at a comma or at the end of the line; in a quoted field the comma is part of the
// text.
std::string_view RecordReader::NextField() {
  ++fieldsTaken_;
  if (atEnd_) RaiseMalformed(JoinText({"field ", fieldsTaken_, " is missing"}));
  SkipBlanks(rest_);
  std::size_t searchFrom = 0;
  if (rest_.starts_with('"')) {
    const std::size_t closing = rest_.find('"', 1);
    if (closing == std::string_view::npos) RaiseMalformed("a double quote is not closed");
    searchFrom = closing + 1;
  }
  const std::size_t comma = rest_.find(',', searchFrom);
  std::string_view field = rest_.substr(0, comma);
  atEnd_ = comma == std::string_view::npos;
  rest_.remove_prefix(atEnd_ ? rest_.size() : comma + 1);
  DropBlanksAtEnd(field);
  return field;
}

std::string RecordReader::TakeText() {
  std::string_view field = NextField();
  if (field.size() >= 2 && field.starts_with('"') && field.ends_with('"')) {
    field.remove_prefix(1);
    field.remove_suffix(1);
  }
  if (field.find('"') != std::string_view::npos)
    RaiseMalformed(JoinText({"field ", fieldsTaken_, " has a stray double quote"}));
  return KeepStorable(field);
}

Integer RecordReader::TakeInteger() {
  const std::string_view field = NextField();
  Integer value = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), value);
  if (error != std::errc() || end != field.data() + field.size())
    RaiseMalformed(JoinText({"field ", fieldsTaken_, " is not a whole number of 16 bits"}));
  return value;
}

Flag RecordReader::TakeFlag() {
  const std::string_view field = NextField();
  if (field == "#TRUE#") return True;
  if (field == "#FALSE#") return False;
  RaiseMalformed(JoinText({"field ", fieldsTaken_, " is neither #TRUE# nor #FALSE#"}));
}

void RecordReader::ExpectEnd() const {
  if (!atEnd_) RaiseMalformed(JoinText({"it has more than ", fieldsTaken_, " fields"}));
}

void RecordWriter::Separate() {
  if (!line_.empty()) line_ += ',';
}

RecordWriter& RecordWriter::Add(std::string_view text) {
  Separate();
  line_.append("\"").append(KeepStorable(text)).append("\"");
  return *this;
}

RecordWriter& RecordWriter::Add(Integer number) {
  Separate();
  line_ += std::to_string(number);
  return *this;
}

RecordWriter& RecordWriter::AddFlag(Flag flag) {
  Separate();
  line_ += flag == False ? "#FALSE#" : "#TRUE#";
  return *this;
}

// The text kept so far is checked again after every byte: in text that is not UTF-8, removing
// something can join what stood on either side of it into the next thing to remove.
std::string KeepStorable(std::string_view text) {
  std::string kept;
  for (const char character : text) {
    if (character == '"' || IsControl(character)) continue;
    kept += character;
    kept.resize(kept.size() - WideControlLength(kept));
  }
  return kept;
}

}  // namespace Parlino
