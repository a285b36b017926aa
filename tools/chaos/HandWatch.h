// A referee who sits beside the table and remembers: whose each card was, what was played, what the
// teams had. It knows the rules of play and of scoring by itself and compares.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/state/GameState.h"

namespace Parlino {

class HandWatch {
 public:
  // The program begins, perhaps once more in the same folder. `nothingLost` says that everything
  // could be written the time before: names, statistics and the wish must then be as they were.
  void BeginProgram(bool nothingLost);

  // The program has ended; what it has saved is remembered.
  void EndProgram();

  // Looks at the table as it stands and returns the name of the first rule that is broken, or
  // nothing. To be asked at every chance to process events, or it loses the thread.
  std::string_view Look();

  // The player loads the saved game, or is asked whether to erase the statistics.
  void ExpectLoad();
  void ExpectErasing() { mayErase_ = true; }

  [[nodiscard]] int HandsDealt() const { return handsDealt_; }
  [[nodiscard]] int HandsScored() const { return handsScored_; }
  [[nodiscard]] int GamesEnded() const { return gamesEnded_; }

 private:
  struct Pair {
    Integer ours = 0;
    Integer theirs = 0;
    bool operator==(const Pair&) const = default;
  };

  // What outlives the program.
  struct Kept {
    std::vector<std::string> names;
    Pair statistics;  // games won and played
    Flag hideWelcome = False;
    Pair savedTotals;
    Flag savedInProgress = False;
    bool operator==(const Kept&) const = default;
  };

  void NoteDeal();
  void NoteScores();
  bool ReadList();
  bool TakeCard(int card);
  void EndTrick();

  bool CardsAreInOnePlaceEach() const;
  bool BidsAreKept() const;
  bool TrickAgreesWithList() const;
  bool TricksAreTheReferees() const;
  bool TurnIsTheHumans() const;
  bool TotalsAreTheReferees();
  bool StatisticsAreTheReferees();
  bool WhatIsKeptIsThere();
  bool ScoresAreShown() const;

  bool isDealt_ = false;
  bool isDealtWell_ = false;
  bool isScored_ = false;
  Indexed<Integer, 1, CardsInPack> dealtTo_;
  Indexed<bool, 1, CardsInPack> isPlayed_;
  int linesRead_ = 0;
  std::vector<Integer> trick_;
  std::vector<Integer> bids_;
  Integer leader_ = Player;
  Indexed<Integer, 0, 3> tricksWon_;

  bool programBegins_ = true;
  bool nothingLost_ = false;
  Kept kept_;
  std::optional<Pair> perhapsSaved_;

  Pair totals_;
  Pair handScore_;
  std::optional<Pair> loaded_;
  bool gameOver_ = false;
  bool mayErase_ = false;

  int handsDealt_ = 0;
  int handsScored_ = 0;
  int gamesEnded_ = 0;
};

}  // namespace Parlino
