// The way of a card between two places of the model, drawn as a short glide. The model is at the
// new place at once; only the picture takes its time, and never longer than the game pauses.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include <QPoint>

class QScreen;
class QWidget;

namespace Parlino {

// How long the display shows one frame.
double MsBetweenFrames(const QScreen& screen);

// Times are milliseconds of the platform's tick counter.
class Glides {
 public:
  // Whether cards glide at all. If not, those that are moving arrive at once.
  void Allow(bool allowed);

  // The widget leaves for `goal` and is there before `pauseMs` milliseconds have passed.
  void Begin(QWidget* widget, QPoint goal, std::uint32_t now, std::uint32_t pauseMs);

  // The same for a card of a finished trick: it rests for a moment before it leaves, so that the
  // trick can be seen; where nothing glides it rests as long and is then there. `onLeaving` is
  // called when it leaves and `onArrival` at the end, both once; neither may begin or cut a glide.
  void BeginAfterRest(QWidget* widget, QPoint goal, std::uint32_t now, std::uint32_t pauseMs,
                      std::function<void()> onLeaving, std::function<void()> onArrival);

  // Ends the widget's glide where it was going; without one nothing happens.
  void Cut(const QWidget* widget);

  // Moves every gliding widget on when the display's next frame is due.
  void DrawFrame(std::uint32_t now);

  // How long nothing need be drawn; `Forever` when nothing glides.
  [[nodiscard]] std::uint32_t MsToNextFrame(std::uint32_t now) const;

 private:
  struct Glide {
    QWidget* widget;
    QPoint from;
    QPoint goal;
    std::uint32_t begun;
    double restMs;
    double lengthMs;
    std::function<void()> onLeaving;
    std::function<void()> onArrival;
    bool hasArrived = false;
  };

  static void Arrive(Glide& glide);
  void BeginCounting(const QWidget& widget, std::uint32_t now);
  void Advance(Glide& glide, std::uint32_t now) const;

  std::vector<Glide> glides_;
  bool areAllowed_ = true;
  // Frames are counted from the moment the first card left while nothing else was gliding.
  std::uint32_t firstFrame_ = 0;
  int nextFrame_ = 0;
  double frameMs_ = 0;
};

}  // namespace Parlino
