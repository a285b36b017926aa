// The system calls with which the data files are read and written, failing when a test wants it.
// The linker puts them in place of the system's own in the whole executable (--wrap), so that the
// program's code is the one that is delivered.
#pragma once

#include <string_view>
#include <vector>

namespace Parlino {

enum class Manner {
  Once,      // this call fails, those after it work
  FromHere,  // this call fails and all after it
  Short,     // a write that takes one byte only, and after it every write fails
  Bit,       // a write that takes one byte only
  Killed,    // the process is killed before this call
  Nothing,   // from this call on no write takes a byte, and none fails
};

struct Fault {
  std::size_t call = 0;  // counted from 1; 0 for no fault
  int number = 0;        // the system's number of the error
  Manner manner = Manner::Once;
};

// Counts the calls while it lives, and makes the fault. Nothing is flushed to the disk at any time:
// nobody cuts the power of a test.
class FaultySystem {
 public:
  explicit FaultySystem(const Fault& fault = {});
  FaultySystem(const FaultySystem&) = delete;
  FaultySystem& operator=(const FaultySystem&) = delete;
  ~FaultySystem();

  // From now on everything works; the calls are not counted any more.
  void Mend();
  // Names of the calls so far, in order.
  [[nodiscard]] const std::vector<std::string_view>& Calls() const { return calls_; }

  // Whether this call, the next one, shall fail; sets errno. Asked by the calls themselves.
  bool Fails(std::string_view call);
  [[nodiscard]] bool IsAt(Manner manner) const;

 private:
  Fault fault_;
  std::vector<std::string_view> calls_;
};

}  // namespace Parlino
