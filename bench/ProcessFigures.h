// What the running program uses of the machine, as the long runs print it.
#pragma once

namespace Parlino {

// Memory in use, in KiB: all of it, and without the pages that are only read from files. Those are
// mostly code; the first error report or dialog, for instance, loads more of it. -1 if the system
// does not say.
struct MemoryFigures {
  long residentKiB = -1;
  long dataKiB = -1;
};
MemoryFigures MemoryInUse();

// -1 if the system does not say.
int OpenDescriptors();

// Processor time used so far, in milliseconds.
double ProcessorMs();

}  // namespace Parlino
