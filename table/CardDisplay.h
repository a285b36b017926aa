// Everything that moves on the table, and the pauses and sounds that pace it. All procedures run on
// the window's thread; those that pause process the table's events meanwhile, so that handlers run
// inside them, and may leave by HandAbandoned or ProgramEnded.
#pragma once

#include <cstdint>
#include <string_view>

#include "engine/state/GameState.h"
#include "table/TableView.h"

namespace Parlino {

inline constexpr std::string_view ShuffleSound = "Shuffle.wav";
inline constexpr std::string_view CardSound = "Card.wav";
inline constexpr std::string_view RingSound = "ringout.wav";

// Puts all 52 cards face down on the pack, in no hand. Reports its own errors.
void PlacePackDeal();

// Lay out the hand of their seat as it stands, closed up from its first place and sorted by card
// number: the Player's face up, the robots' as backs. Other cards and visibility stay untouched.
void ShowPlayerHand();
void ShowWestHand();
void ShowNorthHand();
void ShowEastHand();

// The cards that lie face up in the Player's row: what is left of a hand once it has been dealt.
CardSet PlayersRow();

// The seat before which the card lies in the middle of the table, or NoSeat.
Integer SeatBehindCard(Integer card);

// The two hops of a dealt card from the pack towards `seat`, with a pause between them.
void MoveDealtCard(Integer card, Integer seat);

// Puts the card at its seat's place in the middle of the table.
void MoveToMiddle(Integer card, Integer seat);

// Moves the finished trick in TrickCards to the winner's trick pile, whose TricksWon is already
// raised, and lays out all four hands. Takes two pauses of 500 ms and leaves PauseMs at
// DefaultPauseMs. Reports its own errors.
void JustMoveCardsOut(Integer winner);

// Pauses for PauseMs milliseconds; returns at once, without processing events, when that is 0.
void WaitMs();

// Starts the card sound, then pauses like WaitMs.
void PlayCardSound();

// Shows the text in LblInfo for `ms` milliseconds and hides LblInfo again. PauseMs stays at `ms`.
void ShowInfoNote(Pieces text, Integer ms);

// Starts a sound of the program's folder and returns at once, cutting off the one playing.
void StartSound(std::string_view fileName);

// Processes events, sleeping until there are some.
void WaitForEvents();

}  // namespace Parlino
