// parlino-frames: plays one hand in the real window in real time and prints, for the deal and for
// the whole hand, how many frames of gliding cards were drawn and how many were dropped, how often
// the window was painted and how long that took.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>

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
#include "tools/demonstration/Demonstrator.h"

namespace {

struct Paintings {
  int count = 0;
  double totalMs = 0;
  double longestMs = 0;
};

// Frames with a card on its way, and frames of the display that passed between two of them.
struct Frames {
  int drawn = 0;
  int dropped = 0;
  bool isGliding = false;
  QElapsedTimer sinceLast;

  void Count(bool goesOn, double frameMs) {
    if (isGliding) {
      ++drawn;
      constexpr double nsInMs = 1e6;
      const double passed = static_cast<double>(sinceLast.nsecsElapsed()) / nsInMs / frameMs;
      dropped += std::max(0, static_cast<int>(std::lround(passed)) - 1);
    }
    isGliding = goesOn;
    sinceLast.restart();
  }
};

// Qt paints the window in response to one event, which is watched here.
class WatchedApplication : public QApplication {
 public:
  using QApplication::QApplication;
  Paintings paintings;
  std::function<void()> afterPainting = [] {};

  bool notify(QObject* receiver, QEvent* event) override {
    if (event->type() != QEvent::UpdateRequest) return QApplication::notify(receiver, event);
    QElapsedTimer clock;
    clock.start();
    const bool done = QApplication::notify(receiver, event);
    constexpr double nsInMs = 1e6;
    const double ms = static_cast<double>(clock.nsecsElapsed()) / nsInMs;
    ++paintings.count;
    paintings.totalMs += ms;
    paintings.longestMs = std::max(paintings.longestMs, ms);
    afterPainting();
    return done;
  }
};

void Print(const char* what, const Frames& frames, const Paintings& paintings) {
  std::printf(
      "%s: %d frames drawn, %d dropped; painted %d times, %.1f ms on average, %.1f at most\n", what,
      frames.drawn, frames.dropped, paintings.count, paintings.totalMs / paintings.count,
      paintings.longestMs);
}

}  // namespace

int main(int count, char* arguments[]) {
  constexpr std::uint64_t seed = 5;
  WatchedApplication application(count, arguments);
  const QTemporaryDir folder;
  Parlino::QtPlatform platform(folder.path().toStdString());
  Parlino::SetUpGame(platform);
  Parlino::WriteFirstRecords();
  Parlino::DealGenerator.Seed(seed);
  bool isDealt = false;
  Frames frames;
  const double frameMs = 1000 / application.primaryScreen()->refreshRate();
  application.afterPainting = [&] {
    const auto toNextFrame = platform.Motion().MsToNextFrame(platform.Ticks());
    frames.Count(toNextFrame != Parlino::Forever, frameMs);
    if (isDealt || !Parlino::Table.FramBids.Visible) return;
    isDealt = true;
    Print("deal", frames, application.paintings);
  };
  const Parlino::Demonstrator player({});
  const int status = Parlino::RunGame();
  Print("hand", frames, application.paintings);
  return status;
}
