// Watches the table while hands are played and writes each hand as one line of JSON.
#pragma once

#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

#include "engine/state/GameState.h"

namespace Parlino {

// Writes the line that comes before all hands. `handsInSession` is 0 if the run is not divided.
void WriteTranscriptHeader(std::ostream& out, std::uint64_t seed, int hands, std::string_view south,
                           int handsInSession);

class Transcript {
 public:
  explicit Transcript(std::ostream& out) : out_(out) {}

  // Notes what has happened since the last call. To be called each time the game processes events,
  // which is at least once for every card dealt and every trick.
  void Look();

  // Writes the hand that has just been scored, as number `hand`, and starts the next.
  void WriteHand(int hand, bool gameOver);

 private:
  struct DealtCard {
    Integer seat;
    int card;
  };
  struct Trick {
    Integer leader;
    Indexed<Integer, 1, 4> cards;
    Integer winner;
  };

  void WriteDeal();
  void WriteTricks();
  void WritePlayedList();

  std::ostream& out_;
  std::vector<DealtCard> deal_;
  std::vector<bool> dealt_ = std::vector<bool>(CardsInPack + 1);
  std::vector<Trick> tricks_;
};

}  // namespace Parlino
