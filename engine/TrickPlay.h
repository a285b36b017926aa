// The turns that make up a trick: the human's with its clicks and hints, and the robots'.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// Waits until the human has played a card. May throw HandAbandoned or ProgramEnded.
void TakeHumansTurn();

// A click on card picture `card` 1..52 plays the card if it is the human's turn and the card may be
// played. If it does not follow suit, a note says so for half a second; any other click is ignored.
// Exactly one card is accepted in a turn. Reports its own errors.
void Cds_Click(Integer card);

// The mouse moves over card picture `card`: a card of the human's hand gets the pointer and the
// hint that tell whether it is the human's turn.
void Cds_MouseMove(Integer card);

// Whether the card is in the human's hand and has the pointer and the hint that a mouse move over
// it would set now.
bool HintHolds(Integer card);

// Plays the robot's card at `position` 1..4 of the trick: chooses it, records it and puts it on the
// table. Takes about one second. Reports its own errors under the position's name, as below. May
// throw HandAbandoned or ProgramEnded.
void TakeRobotsTurn(int position, Integer seat);

// The same for one position each, under the names that error reports use, so that a reported
// procedure can be found and called.
void PlayFirstCard(Integer seat);
void PlaySecondCard(Integer seat);
void PlayThirdCard(Integer seat);
void PlayFourthCard(Integer seat);

// Shows a robot's card, moves it to the middle and lists it. The card must be recorded in the
// trick. Takes about one second; leaves PauseMs at DefaultPauseMs. Reports its own errors.
void PlayCard(Integer seat, Integer card);

// Records who plays what at `position` 1..4 of the trick.
void RecordInTrick(int position, Integer seat, Integer card);

}  // namespace Parlino
