#include "table/window/mirror/Glides.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QScreen>
#include <QWidget>

#include "platform/Platform.h"
#include "table/window/painting/CardBody.h"

namespace Parlino {
namespace {

// A card that takes longer looks slow; it rests for what is left of the pause.
constexpr double LongestGlideMs = 300;
// While the game waits for the person there is no pause to fit into.
constexpr double GlideMsBeforeTurn = 150;

// Starts fast and comes to rest gently; 0 to 1 for 0 to 1.
double EaseOut(double progress) {
  const double rest = 1 - progress;
  return 1 - rest * rest;
}

// How much of a pause a finished trick rests, so that its winner can be seen.
constexpr double RestOfPause = 0.45;

void Lift(QWidget* widget, bool isLifted) {
  if (auto* body = dynamic_cast<CardBody*>(widget)) body->Lift(isLifted);
}

void Leave(std::function<void()>& onLeaving) {
  if (const auto leave = std::exchange(onLeaving, nullptr)) leave();
}

}  // namespace

double MsBetweenFrames(const QScreen& screen) {
  constexpr double msInSecond = 1000;
  constexpr double slowest = 24;  // virtual displays report a rate of next to nothing
  constexpr double usual = 60;
  const double rate = screen.refreshRate();
  return msInSecond / (rate >= slowest ? rate : usual);
}

void Glides::Allow(bool allowed) {
  areAllowed_ = allowed;
  if (allowed) return;
  while (!glides_.empty()) Cut(glides_.back().widget);
}

void Glides::Begin(QWidget* widget, QPoint goal, std::uint32_t now, std::uint32_t pauseMs) {
  if (!areAllowed_ || pauseMs == 0) return widget->move(goal);
  if (glides_.empty()) BeginCounting(*widget, now);
  const double roomMs =
      pauseMs == Forever ? GlideMsBeforeTurn : std::min<double>(pauseMs, LongestGlideMs);
  // Half a frame less than there is room for: so the last frame comes before the pause ends.
  const double lengthMs = std::max(1.0, roomMs - frameMs_ / 2);
  glides_.push_back({widget, widget->pos(), goal, now, 0, lengthMs, {}, {}});
  // A card that only closes a gap in its hand stays down.
  constexpr int shortWay = 40;
  Lift(widget, (goal - widget->pos()).manhattanLength() > shortWay);
}

void Glides::BeginAfterRest(QWidget* widget, QPoint goal, std::uint32_t now, std::uint32_t pauseMs,
                            std::function<void()> onLeaving, std::function<void()> onArrival) {
  const double restMs = RestOfPause * pauseMs;
  if (glides_.empty()) BeginCounting(*widget, now);
  const double lengthMs = areAllowed_ ? std::max(1.0, pauseMs - restMs - frameMs_ / 2) : 1;
  Glide glide{widget,
              widget->pos(),
              goal,
              now,
              restMs,
              lengthMs,
              std::move(onLeaving),
              std::move(onArrival)};
  const bool hasTime = pauseMs != 0 && pauseMs != Forever;
  if (!hasTime) return Arrive(glide);
  glides_.push_back(std::move(glide));
}

void Glides::BeginCounting(const QWidget& widget, std::uint32_t now) {
  frameMs_ = MsBetweenFrames(*widget.screen());
  firstFrame_ = now;
  nextFrame_ = 0;
}

void Glides::Cut(const QWidget* widget) {
  const auto place = std::ranges::find(glides_, widget, &Glide::widget);
  if (place == glides_.end()) return;
  Glide glide = std::move(*place);
  glides_.erase(place);
  Arrive(glide);
}

void Glides::DrawFrame(std::uint32_t now) {
  if (glides_.empty() || MsToNextFrame(now) > 0) return;
  const int frame = static_cast<int>((now - firstFrame_) / frameMs_);
  nextFrame_ = std::max(frame, nextFrame_) + 1;
  for (Glide& glide : glides_) Advance(glide, now);
  std::erase_if(glides_, [](const Glide& glide) { return glide.hasArrived; });
}

void Glides::Arrive(Glide& glide) {
  Leave(glide.onLeaving);
  Lift(glide.widget, false);
  glide.widget->move(glide.goal);
  if (glide.onArrival) glide.onArrival();
  glide.hasArrived = true;
}

// What is drawn now is seen until the next frame; it is right in the middle of that time.
void Glides::Advance(Glide& glide, std::uint32_t now) const {
  const double progress = (now - glide.begun + frameMs_ / 2 - glide.restMs) / glide.lengthMs;
  if (progress <= 0) return;
  if (progress >= 1) return Arrive(glide);
  if (glide.onLeaving) {
    Leave(glide.onLeaving);
    Lift(glide.widget, true);
  }
  glide.widget->move(glide.from + (glide.goal - glide.from) * EaseOut(progress));
}

std::uint32_t Glides::MsToNextFrame(std::uint32_t now) const {
  if (glides_.empty()) return Forever;
  const auto due = static_cast<std::uint32_t>(std::ceil(nextFrame_ * frameMs_));
  const std::uint32_t elapsed = now - firstFrame_;
  return elapsed < due ? due - elapsed : 0;
}

}  // namespace Parlino
