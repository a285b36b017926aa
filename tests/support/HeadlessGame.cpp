#include "tests/support/HeadlessGame.h"

#include <algorithm>
#include <sstream>

#include "engine/Generator.h"
#include "engine/TrickPlay.h"
#include "game/Game.h"
#include "table/TableEvents.h"

namespace Parlino {
namespace {

template <class Action>
void ForEachWord(std::string_view text, Action action) {
  std::istringstream words{std::string(text)};
  for (std::string word; words >> word;) action(word);
}

}  // namespace

HeadlessGame::HeadlessGame(std::uint64_t seed) {
  SetUpGame(platform);
  DealGenerator.Seed(seed);
  platform.keepsRecord = true;
}

void HeadlessGame::Load() {
  Events.Form_Load();
}

Integer SuitOf(char letter) {
  return static_cast<Integer>(Diamonds + std::string_view("DCHS").find(letter));
}

int CardOf(std::string_view letters) {
  const auto value = std::string_view("23456789TJQKA").find(letters[0]) + 2;
  return CardNumber(static_cast<int>(value), SuitOf(letters[1]));
}

void GiveHand(Integer seat, std::string_view cards) {
  ForEachWord(cards, [seat](const std::string& card) { Pack[CardOf(card)].Owner = seat; });
}

void SetTrick(Integer leader, std::string_view cards) {
  Leader = leader;
  int position = 1;
  ForEachWord(cards, [&](const std::string& card) {
    RecordInTrick(position, SeatAfter(leader, position - 1), static_cast<Integer>(CardOf(card)));
    ++position;
  });
}

bool Recorded(const HeadlessPlatform& platform, std::string_view text) {
  return std::any_of(platform.record.begin(), platform.record.end(),
                     [text](const auto& line) { return line.find(text) != std::string::npos; });
}

}  // namespace Parlino
