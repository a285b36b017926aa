// Feeds the reader of Rich Text Format whatever libFuzzer thinks up, and checks what it gives.
#include <cstdio>
#include <cstdlib>

#include "richtext/Reader.h"
#include "tests/support/DocumentFaults.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t count) {
  using namespace Parlino::RichText;
  const std::string_view source(reinterpret_cast<const char*>(bytes), count);
  const std::string fault = FindFault(ReadDocument(source), count);
  if (fault.empty()) return 0;
  std::fprintf(stderr, "fault: %s\n", fault.c_str());
  std::abort();
}
