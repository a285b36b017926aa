#include "tools/demonstration/Demonstrator.h"

#include <iostream>

#include <QApplication>
#include <QPixmap>
#include <QScreen>

#include "engine/Generator.h"
#include "engine/RoundDriver.h"
#include "engine/state/Questions.h"
#include "game/Game.h"
#include "headless/FirstFiles.h"
#include "robots/Bidding.h"
#include "robots/Choices.h"
#include "table/MessageDialog.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr int TrickOfPicture = 7;

// If the display lets no click through, the demonstration must still come to an end.
constexpr int LongestMs = 600'000;

}  // namespace

Demonstrator::Demonstrator(std::filesystem::path folder, int thinkingMs)
    : folder_(std::move(folder)) {
  person_.chooseBid = [] { return GetBid(Player); };
  person_.chooseCard = [] { return ChooseRobotsCard(HumansPosition(), Player); };
  clock_.start();
  startTimer(thinkingMs);
}

void Demonstrator::timerEvent(QTimerEvent*) {
  if (clock_.elapsed() > LongestMs) return QCoreApplication::quit();
  TakePicture("1-welcome");
  if (HandInProgress && TrumpSuit >= Diamonds) TakePicture("2-dealt");
  if (Table.FramBids.Visible) TakePicture("3-bidding");
  if (PlayerTurn != False && TrickNumber == TrickOfPicture) TakePicture("4-middle");
  if (MFormDeluxe.Visible && cardsPlayed_.empty()) {
    TakePicture("5-score");
    for (int line = 0; line < Table.LstCardsPlayed.Count(); ++line)
      cardsPlayed_.emplace_back(Table.LstCardsPlayed.Line(line));
  }
  if (!HandInProgress) person_.starts = 0;  // the window may not have had the keys yet
  const bool isWaitedFor =
      !HandInProgress || MFormDeluxe.Visible || Table.FramBids.Visible || PlayerTurn != False;
  if (isWaitedFor) person_.Act();
}

// The first moment of each kind is saved as the screen shows it.
void Demonstrator::TakePicture(const char* name) {
  if (!taken_.insert(name).second || folder_.empty()) return;
  const std::filesystem::path file = folder_ / (std::string(name) + ".png");
  if (QApplication::primaryScreen()->grabWindow(0).save(QString::fromStdString(file.string())))
    pictures_.push_back(file.string());
}

bool Demonstrator::Report() const {
  for (const std::string& line : cardsPlayed_) std::cout << line << '\n';
  constexpr std::size_t picturesWanted = 5;
  constexpr std::size_t linesOfHand = 65;
  std::cout << "Pictures of the hand are in " << std::filesystem::absolute(folder_).string()
            << ":\n";
  for (const std::string& picture : pictures_) std::cout << "  " << picture << '\n';
  return pictures_.size() == picturesWanted && cardsPlayed_.size() == linesOfHand;
}

int Demonstrate(QtPlatform& platform, const std::filesystem::path& folder, int thinkingMs) {
  constexpr std::uint64_t seed = 5;
  SetUpGame(platform);
  WriteFirstRecords();  // the demonstration must not use a player's own score
  DealGenerator.Seed(seed);
  const Demonstrator demonstrator(folder, thinkingMs);
  const int status = RunGame();
  if (status != 0) return status;
  if (demonstrator.Report()) return 0;
  std::cerr << "parlino-demonstration: the hand was not played to its end\n";
  return 1;
}

}  // namespace Parlino
