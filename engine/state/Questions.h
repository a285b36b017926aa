// Questions about the state of the game. They change nothing, so anyone may ask them at any time:
// the engine, the robots, and the window whenever it draws or speaks.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// The name of the seat: PlayerName for the human's.
const std::string& NameOf(Integer seat);

// The position 1..4 at which the human plays to the trick that Leader leads.
int HumansPosition();

// Whether the seat holds a card of the suit that was led.
bool HoldsLedSuit(Integer seat);

// Whether the card of this value and suit has been played; false if there is no such card. Reports
// its own errors.
bool CardGoneQuery(Integer value, Integer suit);

// Whether the human holds `card` and may play it to the trick: any card when leading or without a
// card of the led suit, otherwise a card of the led suit.
bool MayPlayCard(Integer card);

// The cards that the human may play now: none out of turn.
CardSet CardsHumanMayPlay();

// The seat that wins the four cards of the trick: the highest trump, or else the highest card of
// the led suit.
Integer WinnerOfTrick();

// The tricks that the team has won in this hand: Player and North, West and East.
int OurTricks();
int TheirTricks();

// The points a team makes in a hand: 10 for every trick bid and 1 for every trick over, or, if it
// falls short, minus 10 for every trick bid.
Integer HandScore(int tricks, int bid);

// Whether a team has reached the target and the totals differ. Equal totals never end a game,
// however high they are.
bool GameIsOver();

}  // namespace Parlino
