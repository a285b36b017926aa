#include "engine/Generator.h"
#include "engine/state/Questions.h"
#include "game/Game.h"
#include "headless/CardText.h"
#include "headless/South.h"
#include "table/TableEvents.h"
#include "tests/transcripts/Scenes.h"

namespace Parlino {
namespace {

using Detail = TranscribedPlatform::Detail;

void Run(TranscribedPlatform& platform, South& south) {
  platform.script = [&south](std::uint32_t atMostMs) { south.OnEvents(atMostMs); };
  RunGame();
}

// Clicks and hovers that play nothing: out of turn, on cards of others, of another suit.
class CuriousSouth : public South {
 public:
  CuriousSouth(TranscribedPlatform& platform, int hands) : South(hands, 4), platform_(platform) {
    chooseBid = [this] {
      HoverFirst();
      platform_.Note("> bids 4");
      return 4;
    };
    chooseCard = [this] { return TryCards(); };
  }

  void OnPause() {
    if (TrickNumber != 2 || triedOutOfTurn_ || HandOf(Player).IsEmpty()) return;
    triedOutOfTurn_ = true;
    Click(HandOf(Player).Lowest());
    HoverFirst();
  }

 private:
  void HoverFirst() {
    const int card = HandOf(Player).Lowest();
    platform_.Note("> points at " + CardText(card));
    HoverCard(card);
  }

  void Click(int card) {
    platform_.Note("> clicks " + CardText(card));
    ClickCard(card);
  }

  int TryCards() {
    HoverFirst();
    if (TrickNumber == 1)
      for (const Integer seat : {West, North}) Click(HandOf(seat).Lowest());
    for (const Integer card : HandOf(Player)) {
      if (triedOtherSuit_ || MayPlayCard(card)) continue;
      triedOtherSuit_ = true;
      Click(card);
    }
    const int card = FirstCardAllowed();
    platform_.Note("> clicks " + CardText(card));
    return card;
  }

  TranscribedPlatform& platform_;
  bool triedOutOfTurn_ = false;
  bool triedOtherSuit_ = false;
};

void PlayFrom(TranscribedPlatform& platform, const std::string& savedGame, int hands, int bid) {
  platform.Note("# from " + savedGame);
  platform.files["SaveGame.dat"] = savedGame + "\r\n";
  platform.ticks = 0;  // so that the hand is the same each time
  SetUp(platform, 5);
  South south(hands, bid);
  Run(platform, south);
}

void LoadAndLeave(TranscribedPlatform& platform, const char* savedGame) {
  platform.Note(std::string("# loads ") + (savedGame == nullptr ? "nothing" : Quote(savedGame)));
  platform.files.erase("SaveGame.dat");
  if (savedGame != nullptr) platform.files["SaveGame.dat"] = savedGame;
  platform.script = [&](std::uint32_t atMostMs) {
    if (atMostMs != Forever || ClickAnswer(0)) return;
    if (platform.detail == Detail::StatusBar) UnloadAllForms();
    platform.detail = Detail::StatusBar;
    platform.Note("> loads again");
    ChooseMenu(MenuItem::MnuLoad);
  };
  try {
    ChooseMenu(MenuItem::MnuLoad);
  } catch (const ProgramEnded&) {
  }
  platform.Note(JoinText({"points ", OurPoints, " and ", TheirPoints}));
}

// Plays a hand whose end can be saved at the third try only.
void PlayWithoutRoom(TranscribedPlatform& platform, const char* savedGame) {
  platform.files["SaveGame.dat"] = savedGame;
  platform.ticks = 0;
  SetUp(platform, 9);
  constexpr const char* notWritten[] = {"SaveGame.dat", "Points.dat", ""};
  South south(1);
  south.onDialog = [&] {
    platform.fileThatCannotBeWritten = notWritten[(MFormDeluxe.Showings - 1) % 3];
  };
  Run(platform, south);
}

// Sums that overflow in the bidding of the first hand and at the end of the second one.
void PlayWithErrors(TranscribedPlatform& platform) {
  SetUp(platform, 9);
  int handsBegun = 0;
  South south(1);
  south.chooseBid = [&] {
    if (++handsBegun == 1) Bids[West] = 32767;
    return 3;
  };
  platform.script = [&](std::uint32_t atMostMs) {
    if (handsBegun == 2 && TrickNumber == TricksInHand) OurBid = 32767;
    south.OnEvents(atMostMs);
  };
  RunGame();
}

}  // namespace

// The first hand is told in full, the second until its first trick begins.
void PlayFirstHands(TranscribedPlatform& platform) {
  SetUp(platform, 3, true);
  CuriousSouth south(platform, 2);
  platform.script = [&](std::uint32_t atMostMs) {
    if (south.HandsScored() == 1 && TrickNumber > 0) platform.detail = Detail::EveryWait;
    south.OnPause();
    south.OnEvents(atMostMs);
  };
  RunGame();
}

// In the hand that is played first we score 61 and they -80.
void EndGames(TranscribedPlatform& platform) {
  platform.files["Welcome.dat"] = "#TRUE#\r\n";
  platform.files["Points.dat"] = "3,7\r\n";
  platform.detail = Detail::EveryWait;
  PlayFrom(platform, "239,-10,#TRUE#", 2, 3);
  platform.detail = Detail::StatusBar;
  for (const char* saved : {"239,-10,#TRUE#", "238,-10,#TRUE#", "0,380,#TRUE#", "0,379,#TRUE#",
                            "300,500,#TRUE#", "239,380,#TRUE#", "300,441,#TRUE#"})
    PlayFrom(platform, saved, 1, 3);
}

// Totals and counts at the edges of 16 bits and one beyond.
void ReachTheEdges(TranscribedPlatform& platform) {
  platform.detail = Detail::StatusBar;
  constexpr std::pair<const char*, const char*> starts[] = {
      {"32706,-32688,#TRUE#", "32766,32766\r\n"}, {"32707,-32689,#TRUE#", "32767,32767\r\n"},
      {"2000,5,#TRUE#", "5,32767\r\n"},           {"2000,5,#TRUE#", "32767,5\r\n"},
      {"5,2000,#TRUE#", "-32768,-32768\r\n"},     {"5,2000,#TRUE#", "32767,32767\r\n"}};
  for (const auto& [saved, points] : starts) {
    platform.files["Points.dat"] = points;
    PlayFrom(platform, saved, 1, 3);
  }
}

void GoOnWithSavedGames(TranscribedPlatform& platform) {
  platform.detail = Detail::EveryWait;
  PlayFrom(platform, "120,80,#TRUE#", 2, 3);
}

// The first game is told in full and loaded a second time in the middle of its hand.
void LoadGames(TranscribedPlatform& platform) {
  platform.detail = Detail::EveryWait;
  for (const char* saved :
       {"120,80,#TRUE#\r\n", "-1,1,#TRUE#\r\n", "150,0,#TRUE#\r\n", "0,150,#TRUE#\r\n",
        "120,80,#FALSE#\r\n", "150,-20,TRUE\r\n", static_cast<const char*>(nullptr)}) {
    platform.files["SaveGame.dat"] = "7,8,#TRUE#\r\n";
    SetUp(platform, 6);
    Events.Form_Load();
    LoadAndLeave(platform, saved);
  }
}

void PlayInTrouble(TranscribedPlatform& platform) {
  platform.detail = Detail::StatusBar;
  PlayWithErrors(platform);
  for (const char* saved : {"10,20,#TRUE#\r\n", "1000,0,#TRUE#\r\n"})
    PlayWithoutRoom(platform, saved);
  platform.unreadFiles = {"SaveGame.dat", "Points.dat"};
  PlayFrom(platform, "1000,0,#TRUE#", 1, 3);
  StartInTrouble(platform);
}

}  // namespace Parlino
