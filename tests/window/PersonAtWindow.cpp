#include "tests/window/PersonAtWindow.h"

#include <stdexcept>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include "engine/state/GameState.h"
#include "tests/window/WindowGame.h"

namespace Parlino {
namespace {

constexpr int PlayersRowTop = 440;
constexpr QPoint SpotOfCard(8, 48);  // visible even if the next card covers the rest

// The pointer has to get there first.
void MoveAndClick(QWidget& widget, QPoint spot) {
  QMouseEvent move(QEvent::MouseMove, spot, widget.mapToGlobal(spot), Qt::NoButton, Qt::NoButton,
                   Qt::NoModifier);
  QApplication::sendEvent(&widget, &move);
  QTest::mouseClick(&widget, Qt::LeftButton, {}, spot);
}

}  // namespace

PersonAtWindow::PersonAtWindow(Means means)
    : chooseCard([this] { return NextOfRow(); }), means_(means) {}

void PersonAtWindow::Act() {
  if (QWidget* dialog = QApplication::activeModalWidget()) return Answer(*dialog);
  if (starts == 0) {
    ++starts;
    return PressKey(Qt::Key_F2);
  }
  if (WindowGame::Find("FramBids").isVisible()) return Bid();
  PlayCard();
}

void PersonAtWindow::Bid() {
  ++bids;
  const QString bid = QString::number(chooseBid());
  if (means_ == Means::AssistiveTools) return PressVoice(FindVoice("FrmMain", "Bid " + bid));
  if (means_ == Means::Mouse) {
    QWidget& button = WindowGame::Find("LblBids(" + bid + ")");
    return MoveAndClick(button, button.rect().center());
  }
  for (const QChar digit : bid) PressKey(static_cast<Qt::Key>(digit.unicode()));
  PressKey(Qt::Key_Return);
}

void PersonAtWindow::PlayCard() {
  if (means_ == Means::Mouse) {
    const int card = chooseCard();
    if (card == 0) return;
    ++cards;
    return MoveAndClick(WindowGame::FindMember("Cds", card), SpotOfCard);
  }
  if (means_ == Means::Keys) {
    ++cards;
    PressKey(Qt::Key_Up);
    return PressKey(Qt::Key_Space);
  }
  for (const Voice voice : VoicesIn(VoiceOf("Table"))) {
    if (voice->role() != QAccessible::Button || !NameOf(voice).contains(", playable, ")) continue;
    ++cards;
    return PressVoice(voice);
  }
}

void PersonAtWindow::Answer(QWidget& dialog) {
  ++answers;
  const int answer = chooseAnswer();
  if (means_ == Means::Mouse) return Click(WindowGame::FindMember("Label1", answer));
  if (means_ == Means::Keys) {
    for (int step = 0; step < answer; ++step) PressKey(Qt::Key_Right);
    return PressKey(Qt::Key_Space);
  }
  QList<Voice> buttons = VoicesIn(VoiceOf(dialog.objectName()));
  buttons.removeIf([](Voice voice) { return voice->role() != QAccessible::Button; });
  PressVoice(buttons.at(answer));
}

// The next card of the Player's hand, 0 if there is none.
int PersonAtWindow::NextOfRow() {
  for (int tried = 0; tried < CardsInPack; ++tried) {
    last_ = last_ % CardsInPack + 1;
    const QWidget& card = WindowGame::FindMember("Cds", last_);
    if (card.isVisible() && card.y() == PlayersRowTop) return last_;
  }
  return 0;
}

Voice VoiceOf(const QString& widget) {
  return QAccessible::queryAccessibleInterface(&WindowGame::Find(widget));
}

QString NameOf(Voice voice) {
  return voice->text(QAccessible::Name);
}

QList<Voice> VoicesIn(Voice voice) {
  QList<Voice> found;
  for (int place = 0; place < voice->childCount(); ++place) {
    const Voice child = voice->child(place);
    if (child == nullptr || voice->indexOfChild(child) != place)
      throw std::logic_error("a child of " + NameOf(voice).toStdString() + " is not at its place");
    if (!child->state().invisible) found << child << VoicesIn(child);
  }
  return found;
}

Voice FindVoice(const QString& window, const QString& name) {
  for (const Voice voice : VoicesIn(VoiceOf(window)))
    if (NameOf(voice) == name) return voice;
  throw std::out_of_range("nothing says " + name.toStdString());
}

// A button that is pressed by a tool stays down for a moment, and longer if it is pressed again.
void PressVoice(Voice voice) {
  if (!voice->state().pressed)
    voice->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

}  // namespace Parlino
