#include "table/ErrorBox.h"

#include <cerrno>
#include <string>

#include "engine/state/Errors.h"
#include "platform/Platform.h"

namespace Parlino {

void ShowErrorBox(std::string_view procedure, const std::exception& error) {
  const auto* known = dynamic_cast<const GameError*>(&error);
  const int number = known != nullptr ? known->Number() : EFAULT;
  std::string text = "Unexpected error in procedure: ";
  text.append(procedure).append("\nError #").append(std::to_string(number));
  text.append(": ").append(error.what());
  ThePlatform().MsgBox(text, ApplicationTitle, true);
}

}  // namespace Parlino
