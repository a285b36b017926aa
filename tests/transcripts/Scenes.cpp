#include "tests/transcripts/Scenes.h"

#include <cerrno>

#include "engine/Deal.h"
#include "engine/Generator.h"
#include "engine/RoundDriver.h"
#include "engine/TrickPlay.h"
#include "engine/state/Questions.h"
#include "game/Game.h"
#include "headless/South.h"
#include "table/CardDisplay.h"
#include "table/SystemInfo.h"
#include "table/TableEvents.h"

namespace Parlino {
namespace {

using Detail = TranscribedPlatform::Detail;

void SetUp(TranscribedPlatform& platform, std::uint64_t seed, bool isOpeningTold = false) {
  SetUpGame(platform);
  DealGenerator.Seed(seed);
  platform.Begin(isOpeningTold);
}

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
    platform_.Note("> points at " + CardName(card));
    HoverCard(card);
  }

  void Click(int card) {
    platform_.Note("> clicks " + CardName(card));
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
    platform_.Note("> clicks " + CardName(card));
    return card;
  }

  TranscribedPlatform& platform_;
  bool triedOutOfTurn_ = false;
  bool triedOtherSuit_ = false;
};

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

void PlayFrom(TranscribedPlatform& platform, const std::string& savedGame, int hands, int bid) {
  platform.Note("# from " + savedGame);
  platform.files["SaveGame.dat"] = savedGame + "\r\n";
  platform.ticks = 0;  // so that the hand is the same each time
  SetUp(platform, 5);
  South south(hands, bid);
  Run(platform, south);
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

class CommandScene {
 public:
  explicit CommandScene(TranscribedPlatform& platform) : platform_(platform) {
    platform.files["Points.dat"] = "3,7\r\n";
    SetUp(platform, 7);
    platform.script = [this](std::uint32_t) {
      PressAnswer(answer_);
      platform_.Note("> presses and clicks");
      ClickAnswer(answer_);
    };
    Do("start", [] {
      Events.Form_Load();
      return true;
    });
  }

  // `answer` is the button that is clicked in a dialog.
  template <class Deed>
  void Do(const std::string& what, Deed deed, int answer = 0) {
    answer_ = answer;
    platform_.Note("# " + what);
    try {
      if (!deed()) platform_.Note("nothing happens");
    } catch (const ProgramEnded&) {
      platform_.Note("the program ends");
    }
    platform_.Note("");
  }

  void Choose(const std::string& what, MenuItem item, int answer = 0) {
    Do(
        what, [item] { return ChooseMenu(item); }, answer);
  }

 private:
  TranscribedPlatform& platform_;
  int answer_ = 0;
};

void GiveNames(TranscribedPlatform& platform) {
  CommandScene scene(platform);
  constexpr std::pair<MenuItem, const char*> names[] = {
      {MenuItem::MnuPname, "Ann"},
      {MenuItem::MnuNameBot1, "Bob, \"the\" West"},
      {MenuItem::MnuNameBot2, ""},
      {MenuItem::MnuBot3Name, "Dee"}};
  for (const auto& [item, name] : names) {
    platform.answerInputBox = [name = name](auto, auto, auto) { return name; };
    scene.Choose("names", item);
  }
  platform.answerInputBox = nullptr;
  for (const auto& [item, name] : names) scene.Choose("default names", item);
  platform.filesCanBeWritten = false;
  scene.Choose("a name that cannot be saved", MenuItem::MnuPname);
  platform.filesCanBeWritten = true;
  scene.Do("the welcome panel's button", ClickDontShow);
}

void LookAtStatistics(CommandScene& scene) {
  constexpr std::pair<Integer, Integer> records[] = {{0, 0}, {1, 2}, {2, 3}, {3, 7}, {-1, 0}};
  for (const auto& [won, played] : records) {
    GamesWon = won;
    GamesPlayed = played;
    scene.Choose("statistics", MenuItem::MnuView);
  }
  scene.Choose("erasing, no", MenuItem::ErasePoints, 1);
  scene.Choose("statistics", MenuItem::MnuView);
  scene.Choose("erasing, yes", MenuItem::ErasePoints);
  scene.Choose("statistics", MenuItem::MnuView);
}

void OpenHelpAndAbout(TranscribedPlatform& platform, CommandScene& scene) {
  scene.Do("closing what is not open",
           [] { return CloseHelp() || CloseAbout() || ClickSysInfo(); });
  scene.Choose("help without a document", MenuItem::MnuRules);
  for (const char* document : {"{\\rtf1 Old rules}", "{\\rtf1 New rules}", "no such format"}) {
    platform.files["/parlino/ParlinoHelp.rtf"] = document;
    scene.Choose("help", MenuItem::MnuRules);
  }
  scene.Do("closing help", CloseHelp);
  for (const char* folder : {"C:\\Games", "C:\\"}) {
    platform.programFolder = folder;
    platform.files["C:\\Games\\ParlinoHelp.rtf"] = platform.files["C:\\ParlinoHelp.rtf"] =
        "{\\rtf1 Rules}";
    scene.Choose("help", MenuItem::MnuRules);
  }
  scene.Choose("about", MenuItem::MnuAbout);
  scene.Choose("about again", MenuItem::MnuAbout);
  scene.Do("system information", ClickSysInfo);
  scene.Do("closing about", CloseAbout);
  scene.Choose("about", MenuItem::MnuAbout);
}

void Leave(CommandScene& scene) {
  scene.Do("close box, carry on", CloseTableWindow, 1);
  GameInProgress = True;
  scene.Choose("exit, carry on", MenuItem::MnuExit, 1);
  scene.Choose("exit, yes", MenuItem::MnuExit);
  scene.Choose("after the end", MenuItem::MnuNew);
}

void ChooseCommands(TranscribedPlatform& platform) {
  CommandScene scene(platform);
  scene.Choose("save game", MenuItem::MnuSave);
  LookAtStatistics(scene);
  OpenHelpAndAbout(platform, scene);
  Leave(scene);
  CommandScene second(platform);
  second.Choose("exit without a game", MenuItem::MnuExit);
  CommandScene third(platform);
  third.Do("close box without a game", CloseTableWindow);
}

void StartInTrouble(TranscribedPlatform& platform) {
  const std::pair<const char*, const char*> files[] = {
      {"Names2.dat", nullptr},       {"Names2.dat", "\"Ann\r\n"}, {"Points.dat", "1\r\n"},
      {"SaveGame.dat", "1,2,3\r\n"}, {"Welcome.dat", "TRUE\r\n"}, {"Welcome.dat", "#TRUE#\r\n"}};
  for (const auto& [file, content] : files) {
    TranscribedPlatform fresh;
    fresh.files["Points.dat"] = "3,7\r\n";
    fresh.files.erase(file);
    if (content != nullptr) fresh.files[file] = content;
    SetUp(fresh, 8);
    fresh.Note(std::string("# ") + file + " " + (content == nullptr ? "missing" : Quote(content)));
    Events.Form_Load();
    fresh.Note(JoinText({GamesWon, " of ", GamesPlayed, " won"}));
    platform.transcript.insert(platform.transcript.end(), fresh.transcript.begin(),
                               fresh.transcript.end());
  }
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

void PlayInTrouble(TranscribedPlatform& platform) {
  platform.detail = Detail::StatusBar;
  PlayWithErrors(platform);
  for (const char* saved : {"10,20,#TRUE#\r\n", "1000,0,#TRUE#\r\n"})
    PlayWithoutRoom(platform, saved);
  platform.unreadFiles = {"SaveGame.dat", "Points.dat"};
  PlayFrom(platform, "1000,0,#TRUE#", 1, 3);
  StartInTrouble(platform);
}

void ShowDialog(TranscribedPlatform& platform, std::string_view second, std::string_view third,
                int answer) {
  platform.script = [&platform, answer](std::uint32_t) {
    PressAnswer(answer);
    platform.Note(JoinText({"> presses and clicks button ", answer}));
    if (!ClickAnswer(answer)) ClickAnswer(0);
  };
  ShowMessage("A prompt that goes over more than one line of the dialog, or two", "Yes", second,
              third, 3, "Title");
}

// What goes wrong with cards that are none and with a clock that cannot be read.
void RaiseErrors(TranscribedPlatform& platform) {
  Cds_Click(0);
  PlayCard(West, 0);
  for (const auto play : {PlayFirstCard, PlaySecondCard, PlayThirdCard, PlayFourthCard}) play(West);
  JustMoveCardsOut(West);
  platform.clock = []() -> double { throw GameError(EIO, "The clock cannot be read"); };
  GameInProgress = False;
  GetDealer();
  DealCards();
  platform.clock = nullptr;
}

void ReadRegistry(TranscribedPlatform& platform, const std::string& key,
                  const HeadlessPlatform::ScriptedValue& value) {
  platform.registry = {{{key, "PATH"}, value}};
  for (const char* name : {"PATH", "ROUTE"}) {
    std::string text = "as it was";
    const bool isRead = GetKeyValue(RegistryLocalMachine, key, name, text);
    if (text.size() > 100) text = JoinText({"of length ", static_cast<int>(text.size())});
    platform.Note(JoinText({name, isRead ? " is " : " cannot be read: ", Quote(text)}));
  }
}

// Values of a registry, and the ways to the tool for system information.
void LookIntoRegistry(TranscribedPlatform& platform) {
  using namespace std::string_literals;
  const std::string toolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
  const std::string folderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";
  constexpr std::uint32_t otherType = 4, readOnly = 0x20019;
  for (const auto& [type, bytes] : {std::pair(RegistryString, "C:\\x\0"s),
                                    {RegistryString, "C:\\x"},
                                    {RegistryString, "a\0\0"s},
                                    {RegistryString, ""},
                                    {RegistryString, std::string(1024, 'x')},
                                    {RegistryString, std::string(1025, 'x')},
                                    {otherType, "1234"}})
    ReadRegistry(platform, toolKey, {type, bytes});
  platform.registryRights = readOnly;
  ReadRegistry(platform, toolKey, {RegistryString, "C:\\x"});
  platform.registryRights = RegistryFullAccess;
  constexpr const char* ways[][3] = {{"D:\\info.exe", "C:\\ms", "D:\\info.exe"},
                                     {nullptr, "C:\\ms", "C:\\ms\\MSINFO32.EXE"},
                                     {nullptr, "C:\\ms", "C:\\ms\\other.exe"},
                                     {"D:\\info.exe", "C:\\ms", "C:\\ms\\MSINFO32.EXE"},
                                     {"", "C:\\ms", ""},
                                     {"D:\\info.exe", nullptr, "D:\\info.exe"}};
  for (const auto& [path, folder, file] : ways) {
    platform.Note("# system information");
    platform.registry.clear();
    if (path != nullptr) platform.registry[{toolKey, "PATH"}] = {RegistryString, path};
    if (folder != nullptr) platform.registry[{folderKey, "MSINFO"}] = {RegistryString, folder};
    platform.registryRaises = folder == nullptr;
    platform.files = {{file, ""}};
    StartSysInfo();
  }
}

// What no game of today shows: a dialog with three buttons; and who bids first, which the first
// bidder's own line replaces at once.
void ShowRareThings(TranscribedPlatform& platform) {
  SetUp(platform, 10);
  Events.Form_Load();
  for (Dealer = Player; Dealer <= East; ++Dealer) {
    DisplayTrumps();
    platform.Note(JoinText({"trump suit ", TrumpSuit}));
  }
  ShowDialog(platform, "", "", 1);
  ShowDialog(platform, "No", "", 2);
  for (int answer = 0; answer <= 2; ++answer) ShowDialog(platform, "No", "Perhaps", answer);
  ShowDialog(platform, "", "", 0);
  RaiseErrors(platform);
  LookIntoRegistry(platform);
}

}  // namespace

const Scene Scenes[9] = {{"first-hand", PlayFirstHands}, {"ends-of-games", EndGames},
                         {"edges", ReachTheEdges},       {"saved-game", GoOnWithSavedGames},
                         {"loading", LoadGames},         {"names", GiveNames},
                         {"commands", ChooseCommands},   {"trouble", PlayInTrouble},
                         {"rare-things", ShowRareThings}};

}  // namespace Parlino
