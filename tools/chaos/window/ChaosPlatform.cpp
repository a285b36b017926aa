#include "tools/chaos/window/ChaosPlatform.h"

#include <cmath>

namespace Parlino {
namespace {

constexpr std::uint32_t AnHour = 3'600'000;

// Counts as long as it is there, also when it is left by an exception.
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

// What has been clicked already may leave the person no chance: the referee looks every time.
void ChaosPlatform::ProcessEvents(std::uint32_t atMostMs) {
  const Counting level(depth_);
  session_.CheckRules(depth_);
  QuickPlatform::ProcessEvents(atMostMs);
}

// A pause has many chances: most of the time only a part of it goes by. Now and then the machine
// sleeps, or somebody sets its clock.
void ChaosPlatform::WaitForToolkit(std::uint32_t atMostMs) {
  ChaosPerson& person = session_.person;
  if (person.Once(1000)) clockAtStart_ = person.NextBelow(86'400);
  if (atMostMs != Forever && atMostMs > 1 && !person.Once(3))
    atMostMs = static_cast<std::uint32_t>(person.NextBelow(static_cast<int>(atMostMs)));
  if (atMostMs != Forever && person.Once(5000)) atMostMs += AnHour;
  QuickPlatform::WaitForToolkit(atMostMs);
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
