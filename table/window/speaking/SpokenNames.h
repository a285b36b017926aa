// What assistive tools say about the table. Nobody is told more than can be seen.
#pragma once

#include <QString>

#include "table/TableView.h"
#include "table/window/speaking/Speaker.h"

namespace Parlino {

// A card of the Player's hand, with its place there and whether it may be played now; a card played
// to the trick, with its seat; any other card that lies face up. Card backs are hidden from tools.
Spoken SpokenCard(Integer card);

// "Trumps Hearts", once the trumps are known.
Spoken SpokenTrumps();

// One of the small backs of a trick pile: "Trick 3 of West".
Spoken SpokenTrick(Integer seat, int trick);

// "West: bid 4, took 2", including the name that the seat has been given; before the first hand,
// the greeting.
Spoken SpokenSeat(Integer seat);

// The information line, which is read out when it changes.
Spoken SpokenInfo();

// A line of the list of cards played; `place` is 0 for the first.
QString SpokenLine(int place, const QString& line);

}  // namespace Parlino
