// What the running program uses of the machine, as the long runs print it.
#pragma once

namespace Parlino {

// Memory in use, in KiB: all of it, and without what is only read from files, code above all, of
// which a first error report or a first dialog brings in more. -1 where the system does not tell.
struct MemoryFigures {
  long residentKiB = -1;
  long dataKiB = -1;
};
MemoryFigures MemoryInUse();

// -1 where the system does not tell.
int OpenDescriptors();

// Processor time used so far, in milliseconds.
double ProcessorMs();

}  // namespace Parlino
