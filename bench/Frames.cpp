// parlino-frames: plays one hand in the real window in real time and prints, for the deal and for
// the whole hand, how many frames of gliding cards were drawn and how many were dropped, the
// longest time between two of them, how often the window was painted and how long that took.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <optional>
#include <utility>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QScreen>
#include <QTemporaryDir>

#include "engine/Generator.h"
#include "game/Game.h"
#include "headless/FirstFiles.h"
#include "table/TableView.h"
#include "table/window/QtPlatform.h"
#include "table/window/parts/PictureView.h"
#include "tools/demonstration/Demonstrator.h"

namespace {

double MsOf(const QElapsedTimer& clock) {
  constexpr double nsInMs = 1e6;
  return static_cast<double>(clock.nsecsElapsed()) / nsInMs;
}

struct Paintings {
  int count = 0;
  int ofMovingCards = 0;
  double totalMs = 0;
  double longestMs = 0;
  double longestGapMs = 0;  // between two paintings of cards on their way
};

// Qt paints the window in response to one event, which is watched here.
class WatchedApplication : public QApplication {
 public:
  using QApplication::QApplication;
  Paintings paintings;
  std::function<void()> afterPainting = [] {};

  bool notify(QObject* receiver, QEvent* event) override {
    if (event->type() == QEvent::Move && dynamic_cast<Parlino::PictureView*>(receiver) != nullptr)
      hasCardMoved_ = true;
    if (event->type() != QEvent::UpdateRequest) return QApplication::notify(receiver, event);
    QElapsedTimer clock;
    clock.start();
    const bool done = QApplication::notify(receiver, event);
    const double ms = MsOf(clock);
    ++paintings.count;
    if (std::exchange(hasCardMoved_, false)) CountFrame();
    paintings.totalMs += ms;
    paintings.longestMs = std::max(paintings.longestMs, ms);
    afterPainting();
    return done;
  }

  // What is painted next is not a part of the movement before.
  void EndMovement() { sinceFrame_.invalidate(); }

 private:
  void CountFrame() {
    ++paintings.ofMovingCards;
    if (sinceFrame_.isValid())
      paintings.longestGapMs = std::max(paintings.longestGapMs, MsOf(sinceFrame_));
    sinceFrame_.start();
  }

  bool hasCardMoved_ = false;
  QElapsedTimer sinceFrame_;
};

// While cards are on their way, every wait has a time at which the next frame is due. When that has
// moved on by more than one frame, those between have been dropped.
class WatchedPlatform : public Parlino::QtPlatform {
 public:
  using QtPlatform::QtPlatform;
  int dropped = 0;
  std::function<void()> onRest = [] {};  // no card is on its way

 protected:
  void WaitForQt(std::uint32_t atMostMs) override {
    const std::uint32_t now = Ticks();
    const std::uint32_t toNextFrame = Motion().MsToNextFrame(now);
    if (toNextFrame == Parlino::Forever) {
      due_.reset();
      onRest();
    } else {
      Count(now + toNextFrame);
    }
    QtPlatform::WaitForQt(atMostMs);
  }

 private:
  void Count(std::uint32_t due) {
    if (due_ && due != *due_)
      dropped += std::max(0, static_cast<int>(std::lround((due - *due_) / frameMs_)) - 1);
    due_ = due;
  }

  std::optional<std::uint32_t> due_;
  double frameMs_ = Parlino::MsBetweenFrames(*QGuiApplication::primaryScreen());
};

void Print(const char* what, const WatchedPlatform& platform, const Paintings& paintings) {
  std::printf(
      "%s: %d frames drawn, %d dropped, %.1f ms apart at most; "
      "painted %d times, %.1f ms on average, %.1f at most\n",
      what, paintings.ofMovingCards, platform.dropped, paintings.longestGapMs, paintings.count,
      paintings.totalMs / paintings.count, paintings.longestMs);
}

}  // namespace

int main(int count, char* arguments[]) {
  constexpr std::uint64_t seed = 5;
  WatchedApplication application(count, arguments);
  const QTemporaryDir folder;
  WatchedPlatform platform(folder.path().toStdString());
  Parlino::SetUpGame(platform);
  Parlino::WriteFirstRecords();
  Parlino::DealGenerator.Seed(seed);
  platform.onRest = [&application] { application.EndMovement(); };
  bool isDealt = false;
  application.afterPainting = [&] {
    if (isDealt || !Parlino::Table.FramBids.Visible) return;
    isDealt = true;
    Print("deal", platform, application.paintings);
  };
  // Opening the window is no part of the deal, and a person would not begin before it is there.
  constexpr int thinkingMs = 500;
  const Parlino::Demonstrator player({}, thinkingMs);
  const int status = Parlino::RunGame();
  Print("hand", platform, application.paintings);
  return status;
}
