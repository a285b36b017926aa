#include "tests/chaos/window/ChaosPlatform.h"

#include <QScopedValueRollback>

namespace Parlino {

// What has already been clicked may leave the person no chance to act, so the rules are checked on
// every call.
void ChaosPlatform::ProcessEvents(std::uint32_t atMostMs) {
  const QScopedValueRollback level(depth_, depth_ + 1);
  session_.CheckRules(depth_);
  QuickPlatform::ProcessEvents(atMostMs);
}

// Now and then somebody sets the machine's clock.
void ChaosPlatform::WaitForQt(std::uint32_t atMostMs) {
  if (session_.person.Once(1000)) clockAtStart = session_.person.NextBelow(86'400);
  QuickPlatform::WaitForQt(session_.person.ChooseWait(atMostMs));
}

std::string ChaosPlatform::InputBox(std::string_view prompt, std::string_view title,
                                    std::string_view defaultAnswer) {
  const QScopedValueRollback level(depth_, depth_ + 1);
  const QScopedValueRollback box(boxesOpen_, boxesOpen_ + 1);
  return QuickPlatform::InputBox(prompt, title, defaultAnswer);
}

void ChaosPlatform::MsgBox(std::string_view text, std::string_view title, bool critical) {
  const QScopedValueRollback level(depth_, depth_ + 1);
  const QScopedValueRollback box(boxesOpen_, boxesOpen_ + 1);
  session_.OnMsgBox(text);
  QuickPlatform::MsgBox(text, title, critical);
}

}  // namespace Parlino
