// A person who plays whole games at the window: starts, bids, plays and answers, each when it can
// be seen that the game waits for it.
#pragma once

#include <functional>

#include <QAccessible>
#include <QString>
#include <QWidget>

namespace Parlino {

using Voice = QAccessibleInterface*;

class PersonAtWindow {
 public:
  enum class Means { Mouse, Keys, AssistiveTools };

  explicit PersonAtWindow(Means means = Means::Mouse);

  std::function<int()> chooseBid = [] { return 3; };
  // Which card to click. Unless something else is put here, they are tried one after the other.
  std::function<int()> chooseCard;
  // Which answer to give to a dialog, 0 for the first; "Save and Exit" when a hand was scored.
  std::function<int()> chooseAnswer = [] { return 1; };

  // Does what the game waits for.
  void Act();
  void PlayCard();

  // How often each was done; of the cards, how many were tried.
  int starts = 0;
  int bids = 0;
  int cards = 0;
  int answers = 0;

 private:
  void Bid();
  void Answer(QWidget& dialog);
  int NextOfRow();

  Means means_;
  int last_ = 0;
};

// What assistive tools find by the widget with this name, and its name for them.
Voice VoiceOf(const QString& widget);
QString NameOf(Voice voice);
// Everything in it that is not hidden from tools.
QList<Voice> VoicesIn(Voice voice);
// The one in that window that is called so; throws if there is none.
Voice FindVoice(const QString& window, const QString& name);
void PressVoice(Voice voice);

}  // namespace Parlino
