// Finds the system-information tool of the operating system through its registry, and starts it.
#pragma once

#include <cstdint>
#include <string>

namespace Parlino {

// Starts the tool in a window of its own without waiting for it, or says that system information is
// unavailable, whatever the reason.
void StartSysInfo();

// Reads a value of the registry into `KeyVal`: true and the text, without a NUL at its end; false
// and empty text when the key cannot be opened with full rights or the value cannot be read. For a
// value that is not a string the result is true and `KeyVal` stays as it was. The key is closed
// again.
bool GetKeyValue(const std::uint32_t& KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal);

}  // namespace Parlino
