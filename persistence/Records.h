// The text of a data file: one line of comma-separated fields. Text is in double quotes, whole
// numbers are plain digits, flags are #TRUE# or #FALSE#.
#pragma once

#include <string>
#include <string_view>

#include "engine/state/GameState.h"

namespace Parlino {

// Takes the fields of a record in turn. Every call raises a GameError that says what is wrong when
// the next field is missing or is not of the kind asked for.
class RecordReader {
 public:
  explicit RecordReader(std::string_view record);

  std::string TakeText();
  Integer TakeInteger();
  Flag TakeFlag();
  // Raises unless every field has been taken.
  void ExpectEnd() const;

 private:
  std::string_view NextField();

  std::string_view rest_;
  int fieldsTaken_ = 0;
  bool atEnd_ = false;
};

// Builds a record field by field.
class RecordWriter {
 public:
  RecordWriter& Add(std::string_view text);
  RecordWriter& Add(Integer number);
  RecordWriter& AddFlag(Flag flag);
  // The record with its line end.
  [[nodiscard]] std::string Line() const { return line_ + "\r\n"; }

 private:
  void Separate();

  std::string line_;
};

// The text without what a record cannot hold: double quotes, control characters and line ends.
// Everything else stays, commas and accents too, and text of any length. Text is UTF-8.
std::string KeepStorable(std::string_view text);

}  // namespace Parlino
