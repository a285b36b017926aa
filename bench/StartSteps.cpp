// parlino-start-steps: starts the game once and prints how long each step takes up to the first
// painted window, and then how long it takes to make what is made only when it is first asked for.
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>

#include "bench/ProcessFigures.h"
#include "engine/state/GameState.h"
#include "game/Game.h"
#include "table/CardDisplay.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "table/window/QtPlatform.h"

namespace {

constexpr double NsInMs = 1e6;

void Print(const char* step, double ms) {
  std::printf("%-52s %6.2f ms\n", step, ms);
}

void Time(const char* step, const std::function<void()>& act) {
  QElapsedTimer clock;
  clock.start();
  act();
  Print(step, static_cast<double>(clock.nsecsElapsed()) / NsInMs);
}

// Qt paints a window in response to one event.
class WatchedApplication : public QApplication {
 public:
  using QApplication::QApplication;
  int paintings = 0;

  bool notify(QObject* receiver, QEvent* event) override {
    const bool done = QApplication::notify(receiver, event);
    if (event->type() == QEvent::UpdateRequest || event->type() == QEvent::Expose) ++paintings;
    return done;
  }
};

void PaintOnce(WatchedApplication& application, Parlino::QtPlatform& platform) {
  const int before = application.paintings;
  while (application.paintings == before) platform.ProcessEvents(1);
}

}  // namespace

int main(int count, char* arguments[]) {
  using namespace Parlino;
  if (count != 2) {
    std::fprintf(stderr, "usage: parlino-start-steps FOLDER-OF-THE-GAME\n");
    return 2;
  }
  Print("loading the program and its libraries (processor)", ProcessorMs());
  std::unique_ptr<WatchedApplication> application;
  std::unique_ptr<QtPlatform> platform;
  Time("connecting to the display, style and fonts",
       [&] { application = std::make_unique<WatchedApplication>(count, arguments); });
  Time("making the table window",
       [&] { platform = std::make_unique<QtPlatform>(std::filesystem::path(arguments[1])); });
  Time("reading the four files, setting up the game", [&] {
    SetUpGame(*platform);
    Events.Form_Load();
  });
  Time("showing the window and painting it", [&] { PaintOnce(*application, *platform); });
  std::printf("made when first asked for:\n");
  Time("the faces of 52 cards", [&] {
    for (int card = 1; card <= CardsInPack; ++card) {
      SetPicture(Table.Cds[card], static_cast<Integer>(card));
      Show(Table.Cds[card]);
    }
    PaintOnce(*application, *platform);
  });
  Time("the sounds", [&] { platform->StartSound(CardSound); });
  Time("the message dialog", [&] {
    MFormDeluxe.Picture = 3;
    MFormDeluxe.Visible = true;
    PaintOnce(*application, *platform);
  });
  MFormDeluxe.Visible = false;
  platform->ProcessEvents(0);
  Time("the help", [&] {
    ChooseMenu(MenuItem::MnuRules);
    PaintOnce(*application, *platform);
  });
  Time("the about window", [&] {
    ChooseMenu(MenuItem::MnuAbout);
    PaintOnce(*application, *platform);
  });
  return 0;
}
