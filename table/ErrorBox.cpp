#include "table/ErrorBox.h"

#include <cerrno>

#include "engine/state/Errors.h"
#include "engine/state/JoinText.h"
#include "platform/Platform.h"

namespace Parlino {

void ShowErrorBox(std::string_view procedure, const std::exception& error) {
  const auto* known = dynamic_cast<const GameError*>(&error);
  const int number = known != nullptr ? known->Number() : EFAULT;
  ThePlatform().MsgBox(JoinText({"Unexpected error in procedure: ", procedure, "\nError #", number,
                                 ": ", error.what()}),
                       ApplicationTitle, true);
}

}  // namespace Parlino
