// parlino-demonstration: plays one hand in the real window with an automatic South, saves pictures
// of it and prints the cards played.
//
//   parlino-demonstration FOLDER

#include <filesystem>
#include <iostream>

#include <QApplication>

#include "engine/Generator.h"
#include "game/Game.h"
#include "headless/FirstFiles.h"
#include "table/window/QtPlatform.h"
#include "tools/demonstration/Demonstrator.h"

namespace {

namespace fs = std::filesystem;

// A seed whose hand is worth looking at.
constexpr std::uint64_t Seed = 5;

int Report(const Parlino::Demonstrator& demonstrator, const fs::path& folder) {
  for (const std::string& line : demonstrator.CardsPlayed()) std::cout << line << '\n';
  constexpr std::size_t picturesWanted = 5;
  constexpr std::size_t linesOfHand = 65;
  std::cout << "Pictures of the hand are in " << fs::absolute(folder).string() << ":\n";
  for (const std::string& picture : demonstrator.Pictures()) std::cout << "  " << picture << '\n';
  const bool whole = demonstrator.Pictures().size() == picturesWanted &&
                     demonstrator.CardsPlayed().size() == linesOfHand;
  if (!whole) std::cerr << "parlino-demonstration: the hand was not played to its end\n";
  return whole ? 0 : 1;
}

}  // namespace

int main(int count, char* arguments[]) {
  if (count != 2) {
    std::cerr << "usage: parlino-demonstration FOLDER\n";
    return 2;
  }
  const fs::path folder = arguments[1];
  const QApplication application(count, arguments);
  fs::create_directories(folder);
  Parlino::QtPlatform platform(folder);
  Parlino::SetUpGame(platform);
  Parlino::WriteFirstRecords();  // the demonstration must not use a player's own score
  Parlino::DealGenerator.Seed(Seed);
  const Parlino::Demonstrator demonstrator(folder);
  const int status = Parlino::RunGame();
  return status != 0 ? status : Report(demonstrator, folder);
}
