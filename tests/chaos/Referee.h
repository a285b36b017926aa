// A referee who sits beside the table and remembers: whose each card was, what was played, what the
// teams had. It knows the rules of play and of scoring by itself and compares.
#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/state/GameState.h"

namespace Parlino {

class Referee {
 public:
  // The program begins, perhaps once more, with what it finds in its files.
  void BeginProgram() { programBegins_ = true; }

  // Looks at the table as it stands and returns the name of the first rule that is broken, or
  // nothing. To be asked at every chance to process events, or it loses the thread.
  std::string_view Look();

  // The player loads the saved game.
  void ExpectLoad() { mayLoad_ = true; }

  [[nodiscard]] int HandsDealt() const { return handsDealt_; }
  [[nodiscard]] int HandsScored() const { return handsScored_; }
  [[nodiscard]] int GamesEnded() const { return gamesEnded_; }

 private:
  using Pair = std::pair<int, int>;  // of the two teams, or of games won and played

  bool DealIsGood();
  bool ListTellsAPossiblePlay();
  bool TakeCard(int card);
  void EndTrick();
  void NoteScores();
  bool CardsAreInOnePlaceEach() const;
  bool TrickAndTurnAgreeWithList() const;
  bool TotalsAreTheSumOfHands();
  bool StatisticsChangeAtTheEndOfAGame();

  struct Hand {
    bool isScored = false;
    Indexed<Integer, 1, CardsInPack> dealtTo;
    Indexed<bool, 1, CardsInPack> isPlayed;
    int linesRead = 0;
    std::vector<int> trick;
    std::vector<Integer> bids;
    Integer leader = Player;
    Indexed<Integer, 0, 3> tricksWon;
  };
  std::optional<Hand> hand_;  // the one dealt last

  bool programBegins_ = true;
  Pair totals_;
  bool mayLoad_ = false;
  bool isGameOver_ = false;
  Pair statistics_;

  int handsDealt_ = 0;
  int handsScored_ = 0;
  int gamesEnded_ = 0;
};

}  // namespace Parlino
