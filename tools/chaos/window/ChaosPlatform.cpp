#include "tools/chaos/window/ChaosPlatform.h"

#include <cmath>

namespace Parlino {
namespace {

// Counts for as long as it exists, even if its scope is left by an exception.
class Counting {
 public:
  explicit Counting(int& counter) : counter_(counter) { ++counter_; }
  Counting(const Counting&) = delete;
  Counting& operator=(const Counting&) = delete;
  ~Counting() { --counter_; }

 private:
  int& counter_;
};

}  // namespace

// What has already been clicked may leave the person no chance to act, so the rules are checked on
// every call.
void ChaosPlatform::ProcessEvents(std::uint32_t atMostMs) {
  const Counting level(depth_);
  session_.CheckRules(depth_);
  QuickPlatform::ProcessEvents(atMostMs);
}

// Now and then somebody sets the machine's clock.
void ChaosPlatform::WaitForQt(std::uint32_t atMostMs) {
  if (session_.person.Once(1000)) clockAtStart_ = session_.person.NextBelow(86'400);
  QuickPlatform::WaitForQt(session_.person.ChooseWait(atMostMs));
}

double ChaosPlatform::ClockSeconds() {
  constexpr double secondsInDay = 86'400;
  constexpr double secondsInMs = 0.001;
  return std::fmod(clockAtStart_ + Ticks() * secondsInMs, secondsInDay);
}

std::string ChaosPlatform::InputBox(std::string_view prompt, std::string_view title,
                                    std::string_view defaultAnswer) {
  const Counting level(depth_);
  const Counting box(boxesOpen_);
  return QuickPlatform::InputBox(prompt, title, defaultAnswer);
}

void ChaosPlatform::MsgBox(std::string_view text, std::string_view title, bool critical) {
  const Counting level(depth_);
  const Counting box(boxesOpen_);
  session_.OnMsgBox(text);
  QuickPlatform::MsgBox(text, title, critical);
}

}  // namespace Parlino
