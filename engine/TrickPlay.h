// The plays that make up a trick: the human's turn with its clicks and hints, the way every robot
// card goes, and the questions about the cards that both ask.
#pragma once

#include "engine/GameState.h"

namespace Parlino {

// Waits until the human has played a card. May leave by HandAbandoned or ProgramEnded.
void TakeHumansTurn();

// The position 1..4 at which the human plays to the trick that Leader leads.
int HumansPosition();

// Whether the seat holds `card` and may play it to the trick: any card at the head of a trick or
// without a card of the led suit, otherwise a card of the led suit. Changes nothing.
bool MayPlayCard(Integer seat, Integer card, int position);

// The cards that the human may play now: none out of turn. Changes nothing.
CardSet CardsHumanMayPlay();

// A click on card picture `card` 1..52: plays it when it is the human's turn and the card may be
// played; says so for half a second when suit was not followed; otherwise ignored. Exactly one card
// is accepted in a turn. Reports its own errors.
void Cds_Click(Integer card);

// The mouse moves over card picture `card`: a card of the human's hand gets the pointer and the
// hint that say whether it may be played now.
void Cds_MouseMove(Integer card);

// Whether the card is in the human's hand and its pointer and hint say what the mouse would be told
// over it now.
bool HintHolds(Integer card);

// Shows a robot's card, moves it to the middle and lists it. The caller has recorded it in the
// trick. Takes about one second; leaves PauseMs at DefaultPauseMs. Reports its own errors.
void PlayCard(Integer seat, Integer card);

// Whether the seat holds a card of the led suit. When it does not, PauseMs is put back to
// DefaultPauseMs. Without a led suit nobody does. Reports its own errors.
bool HasStartSuitQuery(Integer seat);

// Whether the card of this value and suit has been played; false for what is no card. Reports its
// own errors.
bool CardGoneQuery(Integer value, Integer suit);

// Records the card and its suit at `position` 1..4 of the trick.
void RecordInTrick(int position, Integer card);

}  // namespace Parlino
