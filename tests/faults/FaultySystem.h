// The system calls with which the data files are read and written, failing when a test wants it.
// The linker puts them in place of the system's own in the whole executable (--wrap), so that the
// program's code is the one that is delivered.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

namespace Parlino {

enum class Manner {
  Once,      // this call fails, those after it work
  FromHere,  // this call fails and all after it
  Bit,       // a write that takes one byte only
  Nothing,   // from this call on no write takes a byte, and none fails
  Killed,    // the process is killed before this call
};

struct Fault {
  int number = 0;  // the system's number of the error
  Manner manner = Manner::Once;
  std::size_t call = 0;  // counted from 1; 0 for no fault
};

using Calls = std::vector<std::string_view>;  // names, in order

// From now on counts the calls and makes the fault. Afterwards everything works again; returns the
// calls.
void BeginFault(const Fault& fault);
Calls EndFault();

// Does something without a fault, and then with each of these faults at each of the calls that it
// made. `tryOnce` does it afresh, checks what has come of it, and returns the calls.
void TryAtEveryCall(const std::vector<Fault>& faults,
                    const std::function<Calls(const Fault&)>& tryOnce);

}  // namespace Parlino
