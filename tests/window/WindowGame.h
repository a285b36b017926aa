// A game in a real window, for the tests and the long runs. Time and clock are virtual: a pause is
// over as soon as Qt has done its work.
#pragma once

#include <functional>
#include <optional>

#include <QDialog>
#include <QTemporaryDir>
#include <QWidget>

#include "game/Game.h"
#include "table/window/QtPlatform.h"

namespace Parlino {

// How long a test waits for what must happen, however busy the machine is.
inline constexpr int PatienceMs = 120'000;

// Thrown by a script that has seen enough.
struct SeenEnough {};

class QuickPlatform : public QtPlatform {
 public:
  using QtPlatform::Motion;
  using QtPlatform::QtPlatform;

  // The person at the window: called before every wait, when the table is shown as it is in the
  // model.
  std::function<void()> person = [] {};
  std::function<void(const std::string& file)> onSound = [](const std::string&) {};
  std::uint32_t ticks = 0;
  // Whether cards glide, whatever the desktop answers; unless it is set, the desktop decides.
  std::optional<bool> cardsGlide;
  // Of the clock on the wall, which is mixed into the deals.
  double clockAtStart = 43'200;

  std::uint32_t Ticks() override { return ticks; }
  double ClockSeconds() override;
  void StartSound(std::string_view fileName) override;

 protected:
  void WaitForQt(std::uint32_t atMostMs) override;
};

class WindowGame {
 public:
  explicit WindowGame(std::uint64_t seed = 1);

  // Loads the table window and shows it.
  void Load();
  // Shows what has changed and raises what has been clicked.
  void Turn() { platform.ProcessEvents(0); }
  // Plays with this person until the program ends, and returns its exit status, or -1 if the person
  // has seen enough.
  int Run(std::function<void()> person);

  // The widget with the name of the control; throws if there is none.
  static QWidget& Find(const QString& name);
  static QWidget& FindMember(const char* array, int index);

  // The desktop closes the session, or asks the program to end.
  static void EndSession();

  QTemporaryDir folder;
  QuickPlatform platform;
};

void Click(QWidget& widget);
void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// The plain box or text-input box that is open, or none.
QDialog* OpenBox();

}  // namespace Parlino
