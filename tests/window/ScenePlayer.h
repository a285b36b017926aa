// Scenes at the window: what a person does step by step, and under each step what the windows show
// differently afterwards, what the game is told, and what is heard.
#pragma once

#include <functional>
#include <optional>

#include <QPalette>
#include <QPointer>
#include <QStringList>

#include "WindowGame.h"
#include "WindowLook.h"
#include "table/TableEvents.h"
#include "table/window/speaking/AssistiveTools.h"

namespace Parlino {

class ScenePlayer {
 public:
  // The lines of one scene, without what came of them.
  explicit ScenePlayer(const QStringList& lines);
  ~ScenePlayer();

  // Plays it in a game of its own and returns the lines, under each what came of it.
  QStringList Play();

  // For the steps: tells something under the present one; lets so many waits pass until the next
  // one, or after each.
  void Tell(const QString& what) { told_ << what; }
  void WaitFor(int waits) { waits_ = waits; }
  void SetPace(int waits) { pace_ = waits_ = waits; }
  void TellVoices(const QStringList& now);
  void ListenToTools(bool listens);

  WindowGame game;
  bool isDeaf = false;     // then the game hears of no events but moves of the mouse
  bool keysReturn = true;  // to the table when no window has them

 private:
  void OnWait();
  void ReturnKeys();
  void EndStep();
  void BeginLine();

  QStringList lines_;
  QStringList steps_;  // of the present line
  QStringList out_, told_, voices_;
  WindowLook look_;
  QStringList way_;  // of the focus
  std::optional<SpokenChanges> tools_;
  QPointer<QWidget> withKeys_;
  QObject focusWatch_;
  int pace_ = 5, waits_ = 5;
  bool isSilent_ = true;
  bool isPressed_ = false;  // by a key, which keeps a button down for a moment
  const QString style_;
  const QPalette palette_;
  const QFont font_;
};

// Does the step on a line; returns false if there is no such step.
bool DoStep(ScenePlayer& player, const QString& line);

// The scenes of a file, one after the other: each begins at a line "== title".
QStringList PlayScenes(const QStringList& lines);

}  // namespace Parlino
