// Everything that moves on the table, and the pauses and sounds that pace it. All procedures run on
// the window's thread; those that pause process the table's events meanwhile, so handlers run
// inside them and they may throw HandAbandoned or ProgramEnded.
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

// Each lays out the hand of its seat from the first place on, without gaps and sorted by card
// number: the Player's face up, the robots' face down. Other cards and visibility stay as they are.
void ShowPlayerHand();
void ShowWestHand();
void ShowNorthHand();
void ShowEastHand();

// The cards that lie face up in the Player's row: once a hand is dealt, those still to be played.
CardSet PlayersRow();

// Where the card that the seat has played lies, in the middle of the table.
TablePoint PlaceInMiddle(Integer seat);

// The seat in front of which the card lies in the middle of the table, or NoSeat.
Integer SeatBehindCard(Integer card);

// Moves a dealt card from the pack towards `seat` in two hops, with a pause between them.
void MoveDealtCard(Integer card, Integer seat);

// Puts the card at its seat's place in the middle of the table.
void MoveToMiddle(Integer card, Integer seat);

// Moves the finished trick in TrickCards to the winner's trick pile and lays out all four hands;
// TricksWon must already count the trick. Takes two pauses of 500 ms and leaves PauseMs at
// DefaultPauseMs. Reports its own errors.
void JustMoveCardsOut(Integer winner);

// Pauses for PauseMs milliseconds; returns at once, without processing events, when that is 0.
void WaitMs();

// Starts the card sound, then pauses like WaitMs.
void PlayCardSound();

// Shows the text in LblInfo for `ms` milliseconds and hides LblInfo again. PauseMs stays at `ms`.
void ShowInfoNote(Pieces text, Integer ms);

// Starts a sound file from the program's folder and returns at once, cutting off one still playing.
void StartSound(std::string_view fileName);

// Processes events, sleeping until there are some.
void WaitForEvents();

}  // namespace Parlino
