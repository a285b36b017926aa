// A file that is there whole or not at all: it is written beside its place and put there at the
// end.
#pragma once

#include <fstream>
#include <string>

namespace Parlino {

class OutputFile {
 public:
  // Raises std::runtime_error if the file cannot be written. What is no ordinary file, such as a
  // pipe, is written to directly.
  explicit OutputFile(const std::string& name);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  // Removes what has been written if it was not put in place.
  ~OutputFile();

  std::ostream& Stream() { return stream_; }

  // Raises std::runtime_error if not all of it could be written.
  void Close();
  // Puts the closed file in its place. Raises std::runtime_error if it cannot.
  void PutInPlace();

 private:
  void RaiseUnwritable() const;

  std::string name_;
  std::string place_;    // links followed
  std::string written_;  // where it is written
  std::ofstream stream_;
  bool isInPlace_ = false;
};

}  // namespace Parlino
